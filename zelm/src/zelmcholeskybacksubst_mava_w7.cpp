// Kernels on two-wide `64f` vectors: solution of systems with a Cholesky factor each, unit strides.
#include "zelmcholesky.h"

// clang-format off
//               kernel  arguments strides type  body  straight-line sides
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_64f,   CHOLESKY_SOLVE_MAVA, S, UNIT, double, choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_64f_L, CHOLESKY_SOLVE_MAVA, L, UNIT, double, choleskySolutions)
// clang-format on
