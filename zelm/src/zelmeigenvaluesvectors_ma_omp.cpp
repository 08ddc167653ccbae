// Parallel fronts: eigenvalues, right and left eigenvectors of an array of matrices.
#include "zelmeigenvaluessignature.h"
#include "zelmfront.h"

// clang-format off
//            front, arguments, layout, type, statuses, kernel
FRONT_POINTER(ownOMP_zelmEigenValuesVectors_ma_32f,   EIGEN_BOTH_VECTORS_MA, S, float,  Merges, ownzelmEigenValuesVectors_ma_32f)
FRONT_POINTER(ownOMP_zelmEigenValuesVectors_ma_64f,   EIGEN_BOTH_VECTORS_MA, S, double, Merges, ownzelmEigenValuesVectors_ma_64f)
FRONT_POINTER(ownOMP_zelmEigenValuesVectors_ma_32f_L, EIGEN_BOTH_VECTORS_MA, L, float,  Merges, ownzelmEigenValuesVectors_ma_32f_L)
FRONT_POINTER(ownOMP_zelmEigenValuesVectors_ma_64f_L, EIGEN_BOTH_VECTORS_MA, L, double, Merges, ownzelmEigenValuesVectors_ma_64f_L)
FRONT_POINTER(ownOMP_zelmEigenValuesVectors_ma_32f_P, EIGEN_BOTH_VECTORS_MA, P, float,  Merges, ownzelmEigenValuesVectors_ma_32f_P)
FRONT_POINTER(ownOMP_zelmEigenValuesVectors_ma_64f_P, EIGEN_BOTH_VECTORS_MA, P, double, Merges, ownzelmEigenValuesVectors_ma_64f_P)
// clang-format on
