// Kernels on four-wide `32f` vectors: solution of systems with a Cholesky factor each, unit strides.
#include "zelmcholesky.h"

// clang-format off
//               kernel  arguments strides type  body  straight-line sides
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_32f,   CHOLESKY_SOLVE_MAVA, S, UNIT, float, choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mava_32f_L, CHOLESKY_SOLVE_MAVA, L, UNIT, float, choleskySolutions)
// clang-format on
