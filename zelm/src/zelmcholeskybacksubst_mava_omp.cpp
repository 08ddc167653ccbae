// Parallel fronts: solution of systems with a Cholesky factor each.
#include "zelmcholeskysignature.h"
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmCholeskyBackSubst_mava_32f,   CHOLESKY_SOLVE_MAVA, S, float,  Discards, ownzelmCholeskyBackSubst_mava_32f,   ownzelmCholeskyBackSubst_mava_32f_S2)
FRONT(ownOMP_zelmCholeskyBackSubst_mava_64f,   CHOLESKY_SOLVE_MAVA, S, double, Discards, ownzelmCholeskyBackSubst_mava_64f,   ownzelmCholeskyBackSubst_mava_64f_S2)
FRONT(ownOMP_zelmCholeskyBackSubst_mava_32f_L, CHOLESKY_SOLVE_MAVA, L, float,  Discards, ownzelmCholeskyBackSubst_mava_32f_L, ownzelmCholeskyBackSubst_mava_32f_LS2)
FRONT(ownOMP_zelmCholeskyBackSubst_mava_64f_L, CHOLESKY_SOLVE_MAVA, L, double, Discards, ownzelmCholeskyBackSubst_mava_64f_L, ownzelmCholeskyBackSubst_mava_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmCholeskyBackSubst_mava_32f_P, CHOLESKY_SOLVE_MAVA, P, float,  Discards, ownzelmCholeskyBackSubst_mava_32f_P)
FRONT_POINTER(ownOMP_zelmCholeskyBackSubst_mava_64f_P, CHOLESKY_SOLVE_MAVA, P, double, Discards, ownzelmCholeskyBackSubst_mava_64f_P)
// clang-format on
