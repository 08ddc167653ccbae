// Kernels on four-wide `32f` vectors: solution of systems with a Cholesky factor each, unit strides.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sides
KERNEL(ownzelmCholeskyBackSubst_mava_32f,   CHOLESKY_SOLVE_MAVA_S, UNIT, float, choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mava_32f_L, CHOLESKY_SOLVE_MAVA_L, UNIT, float, choleskySolutions, Straight3To6)
// clang-format on
