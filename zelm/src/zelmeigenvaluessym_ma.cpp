// Exported functions: eigenvalues of an array of symmetric matrices.
#include "zelmsymmetricsignature.h"

// clang-format off
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmEigenValuesSym_ma_32f,   SYM_VALUES_MA, S, float,  N_Z_C_S,   symmetricMatrices, from(1001), from(1001), ownzelmEigenValuesSym_ma_32f,   ownzelmEigenValuesSym_ma_32f_S2,  ownOMP_zelmEigenValuesSym_ma_32f)
STRIDE_FIRST(zelmEigenValuesSym_ma_64f,   SYM_VALUES_MA, S, double, N_Z_C_S,   symmetricMatrices, from(1001), from(1001), ownzelmEigenValuesSym_ma_64f,   ownzelmEigenValuesSym_ma_64f_S2,  ownOMP_zelmEigenValuesSym_ma_64f)
STRIDE_FIRST(zelmEigenValuesSym_ma_32f_L, SYM_VALUES_MA, L, float,  N_Z_C_H_S, symmetricMatrices, from(1001), from(1001), ownzelmEigenValuesSym_ma_32f_L, ownzelmEigenValuesSym_ma_32f_LS2, ownOMP_zelmEigenValuesSym_ma_32f_L)
STRIDE_FIRST(zelmEigenValuesSym_ma_64f_L, SYM_VALUES_MA, L, double, N_Z_C_H_S, symmetricMatrices, from(1001), from(1001), ownzelmEigenValuesSym_ma_64f_L, ownzelmEigenValuesSym_ma_64f_LS2, ownOMP_zelmEigenValuesSym_ma_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmEigenValuesSym_ma_32f_P, SYM_VALUES_MA, P, float,  N_Z_C_H_S, symmetricMatrices, from(1001), ownzelmEigenValuesSym_ma_32f_P, ownOMP_zelmEigenValuesSym_ma_32f_P)
ARRAY_POINTER(zelmEigenValuesSym_ma_64f_P, SYM_VALUES_MA, P, double, N_Z_C_H_S, symmetricMatrices, from(1001), ownzelmEigenValuesSym_ma_64f_P, ownOMP_zelmEigenValuesSym_ma_64f_P)
// clang-format on
