// Exported functions: solution of systems with one Cholesky factor.
#include "zelmcholeskysignature.h"

// clang-format off
// In the list layout size and count are tested last, in this form alone.
// The limits follow no pattern: they are the members' own.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmCholeskyBackSubst_mva_32f,   CHOLESKY_SOLVE_MVA, S, float,  N_C_Z_S,   oneFactor, from(1201), from(1201), ownzelmCholeskyBackSubst_mva_32f,   ownzelmCholeskyBackSubst_mva_32f_S2,  ownOMP_zelmCholeskyBackSubst_mva_32f)
STRIDE_FIRST(zelmCholeskyBackSubst_mva_64f,   CHOLESKY_SOLVE_MVA, S, double, N_C_Z_S,   oneFactor, from(721),  from(721),  ownzelmCholeskyBackSubst_mva_64f,   ownzelmCholeskyBackSubst_mva_64f_S2,  ownOMP_zelmCholeskyBackSubst_mva_64f)
STRIDE_FIRST(zelmCholeskyBackSubst_mva_32f_L, CHOLESKY_SOLVE_MVA, L, float,  N_S_H_Z_C, oneFactor, from(721),  from(721),  ownzelmCholeskyBackSubst_mva_32f_L, ownzelmCholeskyBackSubst_mva_32f_LS2, ownOMP_zelmCholeskyBackSubst_mva_32f_L)
STRIDE_FIRST(zelmCholeskyBackSubst_mva_64f_L, CHOLESKY_SOLVE_MVA, L, double, N_S_H_Z_C, oneFactor, from(721),  from(721),  ownzelmCholeskyBackSubst_mva_64f_L, ownzelmCholeskyBackSubst_mva_64f_LS2, ownOMP_zelmCholeskyBackSubst_mva_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmCholeskyBackSubst_mva_32f_P, CHOLESKY_SOLVE_MVA, P, float,  N_C_Z_S_H, oneFactor, from(721), ownzelmCholeskyBackSubst_mva_32f_P, ownOMP_zelmCholeskyBackSubst_mva_32f_P)
ARRAY_POINTER(zelmCholeskyBackSubst_mva_64f_P, CHOLESKY_SOLVE_MVA, P, double, N_C_Z_S_H, oneFactor, from(721), ownzelmCholeskyBackSubst_mva_64f_P, ownOMP_zelmCholeskyBackSubst_mva_64f_P)
// clang-format on
