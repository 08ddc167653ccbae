// Portable kernels: solution of systems with a Cholesky factor each, any strides and pointer layout.
#include "zelmcholesky.h"

// clang-format off
//               kernel  arguments strides type  body  straight-line sides
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_32f_S2,  CHOLESKY_SOLVE_MAVA, S, ANY, float,  choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_64f_S2,  CHOLESKY_SOLVE_MAVA, S, ANY, double, choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_32f_LS2, CHOLESKY_SOLVE_MAVA, L, ANY, float,  choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_64f_LS2, CHOLESKY_SOLVE_MAVA, L, ANY, double, choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_32f_P,   CHOLESKY_SOLVE_MAVA, P, ANY, float,  choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_64f_P,   CHOLESKY_SOLVE_MAVA, P, ANY, double, choleskySolutions)
// clang-format on
