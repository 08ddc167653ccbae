// Exported functions: eigenvalues, right and left eigenvectors of an array of matrices.
#include "zelmeigenvaluessignature.h"

// clang-format off
// One kernel takes any strides.
//            exported function, arguments, layout, type, order of tests, estimate, forks, kernel, front
ARRAY_POINTER(zelmEigenValuesVectors_ma_32f,   EIGEN_BOTH_VECTORS_MA, S, float,  N_Z_C_S,       eigenVectorsWork, from(501), ownzelmEigenValuesVectors_ma_32f,   ownOMP_zelmEigenValuesVectors_ma_32f)
ARRAY_POINTER(zelmEigenValuesVectors_ma_64f,   EIGEN_BOTH_VECTORS_MA, S, double, N_Z_C_S,       eigenVectorsWork, from(501), ownzelmEigenValuesVectors_ma_64f,   ownOMP_zelmEigenValuesVectors_ma_64f)
ARRAY_POINTER(zelmEigenValuesVectors_ma_32f_L, EIGEN_BOTH_VECTORS_MA, L, float,  N_Z_C_H_S_H_S, eigenVectorsWork, from(501), ownzelmEigenValuesVectors_ma_32f_L, ownOMP_zelmEigenValuesVectors_ma_32f_L)
ARRAY_POINTER(zelmEigenValuesVectors_ma_64f_L, EIGEN_BOTH_VECTORS_MA, L, double, N_Z_C_H_S_H_S, eigenVectorsWork, from(501), ownzelmEigenValuesVectors_ma_64f_L, ownOMP_zelmEigenValuesVectors_ma_64f_L)
ARRAY_POINTER(zelmEigenValuesVectors_ma_32f_P, EIGEN_BOTH_VECTORS_MA, P, float,  N_Z_C_H_S_H_S, eigenVectorsWork, from(501), ownzelmEigenValuesVectors_ma_32f_P, ownOMP_zelmEigenValuesVectors_ma_32f_P)
ARRAY_POINTER(zelmEigenValuesVectors_ma_64f_P, EIGEN_BOTH_VECTORS_MA, P, double, N_Z_C_H_S_H_S, eigenVectorsWork, from(501), ownzelmEigenValuesVectors_ma_64f_P, ownOMP_zelmEigenValuesVectors_ma_64f_P)
// clang-format on
