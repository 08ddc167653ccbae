// Parallel fronts: solution of systems with one Cholesky factor.
#include "zelmcholeskysignature.h"
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmCholeskyBackSubst_mva_32f,   CHOLESKY_SOLVE_MVA, S, float,  Discards, ownzelmCholeskyBackSubst_mva_32f,   ownzelmCholeskyBackSubst_mva_32f_S2)
FRONT(ownOMP_zelmCholeskyBackSubst_mva_64f,   CHOLESKY_SOLVE_MVA, S, double, Discards, ownzelmCholeskyBackSubst_mva_64f,   ownzelmCholeskyBackSubst_mva_64f_S2)
FRONT(ownOMP_zelmCholeskyBackSubst_mva_32f_L, CHOLESKY_SOLVE_MVA, L, float,  Discards, ownzelmCholeskyBackSubst_mva_32f_L, ownzelmCholeskyBackSubst_mva_32f_LS2)
FRONT(ownOMP_zelmCholeskyBackSubst_mva_64f_L, CHOLESKY_SOLVE_MVA, L, double, Discards, ownzelmCholeskyBackSubst_mva_64f_L, ownzelmCholeskyBackSubst_mva_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmCholeskyBackSubst_mva_32f_P, CHOLESKY_SOLVE_MVA, P, float,  Discards, ownzelmCholeskyBackSubst_mva_32f_P)
FRONT_POINTER(ownOMP_zelmCholeskyBackSubst_mva_64f_P, CHOLESKY_SOLVE_MVA, P, double, Discards, ownzelmCholeskyBackSubst_mva_64f_P)
// clang-format on
