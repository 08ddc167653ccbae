// Portable kernels: solution of a system with a Cholesky factor, any strides and pointer layout.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sides
KERNEL(ownzelmCholeskyBackSubst_mv_32f_S2, CHOLESKY_SOLVE_MV_S, ANY, float,  choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mv_64f_S2, CHOLESKY_SOLVE_MV_S, ANY, double, choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mv_32f_P,  CHOLESKY_SOLVE_MV_P, ANY, float,  choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mv_64f_P,  CHOLESKY_SOLVE_MV_P, ANY, double, choleskySolutions, Straight3To6)
// clang-format on
