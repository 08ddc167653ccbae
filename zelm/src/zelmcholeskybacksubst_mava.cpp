// Exported functions: solution of systems with a Cholesky factor each.
#include "zelmcholeskysignature.h"

// clang-format off
// The limits follow no pattern: they are the members' own.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmCholeskyBackSubst_mava_32f,   CHOLESKY_SOLVE_MAVA, S, float,  N_C_Z_S,   factorEach, from(2051), from(1701), ownzelmCholeskyBackSubst_mava_32f,   ownzelmCholeskyBackSubst_mava_32f_S2,  ownOMP_zelmCholeskyBackSubst_mava_32f)
STRIDE_FIRST(zelmCholeskyBackSubst_mava_64f,   CHOLESKY_SOLVE_MAVA, S, double, N_C_Z_S,   factorEach, from(1701), from(1701), ownzelmCholeskyBackSubst_mava_64f,   ownzelmCholeskyBackSubst_mava_64f_S2,  ownOMP_zelmCholeskyBackSubst_mava_64f)
STRIDE_FIRST(zelmCholeskyBackSubst_mava_32f_L, CHOLESKY_SOLVE_MAVA, L, float,  N_C_Z_S_H, factorEach, from(1701), from(1701), ownzelmCholeskyBackSubst_mava_32f_L, ownzelmCholeskyBackSubst_mava_32f_LS2, ownOMP_zelmCholeskyBackSubst_mava_32f_L)
STRIDE_FIRST(zelmCholeskyBackSubst_mava_64f_L, CHOLESKY_SOLVE_MAVA, L, double, N_C_Z_S_H, factorEach, from(1701), from(1701), ownzelmCholeskyBackSubst_mava_64f_L, ownzelmCholeskyBackSubst_mava_64f_LS2, ownOMP_zelmCholeskyBackSubst_mava_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmCholeskyBackSubst_mava_32f_P, CHOLESKY_SOLVE_MAVA, P, float,  N_C_Z_S_H, factorEach, from(1701), ownzelmCholeskyBackSubst_mava_32f_P, ownOMP_zelmCholeskyBackSubst_mava_32f_P)
ARRAY_POINTER(zelmCholeskyBackSubst_mava_64f_P, CHOLESKY_SOLVE_MAVA, P, double, N_C_Z_S_H, factorEach, from(2051), ownzelmCholeskyBackSubst_mava_64f_P, ownOMP_zelmCholeskyBackSubst_mava_64f_P)
// clang-format on
