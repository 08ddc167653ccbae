// Portable kernels: solution of systems with a Cholesky factor each, any strides and pointer layout.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sides
KERNEL(ownzelmCholeskyBackSubst_mava_32f_S2,  CHOLESKY_SOLVE_MAVA_S, ANY, float,  choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mava_64f_S2,  CHOLESKY_SOLVE_MAVA_S, ANY, double, choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mava_32f_LS2, CHOLESKY_SOLVE_MAVA_L, ANY, float,  choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mava_64f_LS2, CHOLESKY_SOLVE_MAVA_L, ANY, double, choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mava_32f_P,   CHOLESKY_SOLVE_MAVA_P, ANY, float,  choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mava_64f_P,   CHOLESKY_SOLVE_MAVA_P, ANY, double, choleskySolutions, Straight3To6)
// clang-format on
