// Kernels on two-wide `64f` vectors: solution of a system with a Cholesky factor, unit strides.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sides
KERNEL(ownzelmCholeskyBackSubst_mv_64f, CHOLESKY_SOLVE_MV, S, UNIT, double, choleskySolutions)
// clang-format on
