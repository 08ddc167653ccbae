// Exported functions: Cholesky decomposition of an array of matrices.
#include "zelmcholeskysignature.h"

// clang-format off
// The limits follow no pattern: they are the members' own.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmCholeskyDecomp_ma_32f,   CHOLESKY_FACTOR_MA, S, float,  N_C_Z_S,   squares, from(7501), from(7501), ownzelmCholeskyDecomp_ma_32f,   ownzelmCholeskyDecomp_ma_32f_S2,  ownOMP_zelmCholeskyDecomp_ma_32f)
STRIDE_FIRST(zelmCholeskyDecomp_ma_64f,   CHOLESKY_FACTOR_MA, S, double, N_C_Z_S,   squares, from(2001), from(2001), ownzelmCholeskyDecomp_ma_64f,   ownzelmCholeskyDecomp_ma_64f_S2,  ownOMP_zelmCholeskyDecomp_ma_64f)
STRIDE_FIRST(zelmCholeskyDecomp_ma_32f_L, CHOLESKY_FACTOR_MA, L, float,  N_C_Z_S_H, squares, from(2001), from(2001), ownzelmCholeskyDecomp_ma_32f_L, ownzelmCholeskyDecomp_ma_32f_LS2, ownOMP_zelmCholeskyDecomp_ma_32f_L)
STRIDE_FIRST(zelmCholeskyDecomp_ma_64f_L, CHOLESKY_FACTOR_MA, L, double, N_C_Z_S_H, squares, from(721),  from(2001), ownzelmCholeskyDecomp_ma_64f_L, ownzelmCholeskyDecomp_ma_64f_LS2, ownOMP_zelmCholeskyDecomp_ma_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmCholeskyDecomp_ma_32f_P, CHOLESKY_FACTOR_MA, P, float,  N_C_Z_S_H, squares, from(2001), ownzelmCholeskyDecomp_ma_32f_P, ownOMP_zelmCholeskyDecomp_ma_32f_P)
ARRAY_POINTER(zelmCholeskyDecomp_ma_64f_P, CHOLESKY_FACTOR_MA, P, double, N_C_Z_S_H, squares, from(2001), ownzelmCholeskyDecomp_ma_64f_P, ownOMP_zelmCholeskyDecomp_ma_64f_P)
// clang-format on
