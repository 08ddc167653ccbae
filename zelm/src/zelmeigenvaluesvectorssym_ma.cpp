// Exported functions: eigenvalues and eigenvectors of an array of symmetric matrices.
#include "zelmsymmetricsignature.h"

// clang-format off
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmEigenValuesVectorsSym_ma_32f,   SYM_VECTORS_MA, S, float,  N_Z_C_S,       symmetricPairs, above(700), above(700), ownzelmEigenValuesVectorsSym_ma_32f,   ownzelmEigenValuesVectorsSym_ma_32f_S2,  ownOMP_zelmEigenValuesVectorsSym_ma_32f)
STRIDE_FIRST(zelmEigenValuesVectorsSym_ma_64f,   SYM_VECTORS_MA, S, double, N_Z_C_S,       symmetricPairs, above(700), above(700), ownzelmEigenValuesVectorsSym_ma_64f,   ownzelmEigenValuesVectorsSym_ma_64f_S2,  ownOMP_zelmEigenValuesVectorsSym_ma_64f)
STRIDE_FIRST(zelmEigenValuesVectorsSym_ma_32f_L, SYM_VECTORS_MA, L, float,  N_Z_C_H_S_H_S, symmetricPairs, above(700), above(700), ownzelmEigenValuesVectorsSym_ma_32f_L, ownzelmEigenValuesVectorsSym_ma_32f_LS2, ownOMP_zelmEigenValuesVectorsSym_ma_32f_L)
STRIDE_FIRST(zelmEigenValuesVectorsSym_ma_64f_L, SYM_VECTORS_MA, L, double, N_Z_C_H_S_H_S, symmetricPairs, above(700), above(700), ownzelmEigenValuesVectorsSym_ma_64f_L, ownzelmEigenValuesVectorsSym_ma_64f_LS2, ownOMP_zelmEigenValuesVectorsSym_ma_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmEigenValuesVectorsSym_ma_32f_P, SYM_VECTORS_MA, P, float,  N_Z_C_H_S_H_S, symmetricPairs, above(700), ownzelmEigenValuesVectorsSym_ma_32f_P, ownOMP_zelmEigenValuesVectorsSym_ma_32f_P)
ARRAY_POINTER(zelmEigenValuesVectorsSym_ma_64f_P, SYM_VECTORS_MA, P, double, N_Z_C_H_S_H_S, symmetricPairs, above(700), ownzelmEigenValuesVectorsSym_ma_64f_P, ownOMP_zelmEigenValuesVectorsSym_ma_64f_P)
// clang-format on
