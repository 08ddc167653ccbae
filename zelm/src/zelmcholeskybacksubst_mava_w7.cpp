// Kernels on two-wide `64f` vectors: solution of systems with a Cholesky factor each, unit strides.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sides
KERNEL(ownzelmCholeskyBackSubst_mava_64f,   CHOLESKY_SOLVE_MAVA_S, UNIT, double, choleskySolutions, Straight3To6)
KERNEL(ownzelmCholeskyBackSubst_mava_64f_L, CHOLESKY_SOLVE_MAVA_L, UNIT, double, choleskySolutions, Straight3To6)
// clang-format on
