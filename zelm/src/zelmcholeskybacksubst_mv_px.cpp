// Portable kernels: solution of a system with a Cholesky factor, any strides and pointer layout.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sides
KERNEL(ownzelmCholeskyBackSubst_mv_32f_S2, CHOLESKY_SOLVE_MV, S, ANY, float,  choleskySolutions)
KERNEL(ownzelmCholeskyBackSubst_mv_64f_S2, CHOLESKY_SOLVE_MV, S, ANY, double, choleskySolutions)
KERNEL(ownzelmCholeskyBackSubst_mv_32f_P,  CHOLESKY_SOLVE_MV, P, ANY, float,  choleskySolutions)
KERNEL(ownzelmCholeskyBackSubst_mv_64f_P,  CHOLESKY_SOLVE_MV, P, ANY, double, choleskySolutions)
// clang-format on
