// Parallel fronts: eigenvalues and right eigenvectors of an array of matrices.
#include "zelmeigenvaluessignature.h"
#include "zelmfront.h"

// clang-format off
//            front, arguments, layout, type, statuses, kernel
FRONT_POINTER(ownOMP_zelmEigenValuesVectorsRight_ma_32f,   EIGEN_VECTORS_MA, S, float,  Merges, ownzelmEigenValuesVectorsRight_ma_32f)
FRONT_POINTER(ownOMP_zelmEigenValuesVectorsRight_ma_64f,   EIGEN_VECTORS_MA, S, double, Merges, ownzelmEigenValuesVectorsRight_ma_64f)
FRONT_POINTER(ownOMP_zelmEigenValuesVectorsRight_ma_32f_L, EIGEN_VECTORS_MA, L, float,  Merges, ownzelmEigenValuesVectorsRight_ma_32f_L)
FRONT_POINTER(ownOMP_zelmEigenValuesVectorsRight_ma_64f_L, EIGEN_VECTORS_MA, L, double, Merges, ownzelmEigenValuesVectorsRight_ma_64f_L)
FRONT_POINTER(ownOMP_zelmEigenValuesVectorsRight_ma_32f_P, EIGEN_VECTORS_MA, P, float,  Merges, ownzelmEigenValuesVectorsRight_ma_32f_P)
FRONT_POINTER(ownOMP_zelmEigenValuesVectorsRight_ma_64f_P, EIGEN_VECTORS_MA, P, double, Merges, ownzelmEigenValuesVectorsRight_ma_64f_P)
// clang-format on
