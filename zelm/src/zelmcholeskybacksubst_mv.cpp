// Exported functions: solution of a system with a Cholesky factor.
#include "zelmcholeskysignature.h"

// clang-format off
//     exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmCholeskyBackSubst_mv_32f, CHOLESKY_SOLVE_MV, S, float,  N_Z_S, ownzelmCholeskyBackSubst_mv_32f, ownzelmCholeskyBackSubst_mv_32f_S2)
SINGLE(zelmCholeskyBackSubst_mv_64f, CHOLESKY_SOLVE_MV, S, double, N_Z_S, ownzelmCholeskyBackSubst_mv_64f, ownzelmCholeskyBackSubst_mv_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmCholeskyBackSubst_mv_32f_P, CHOLESKY_SOLVE_MV, P, float,  N_Z_H, ownzelmCholeskyBackSubst_mv_32f_P)
SINGLE_POINTER(zelmCholeskyBackSubst_mv_64f_P, CHOLESKY_SOLVE_MV, P, double, N_Z_H, ownzelmCholeskyBackSubst_mv_64f_P)
// clang-format on
