// Kernels on four-wide `32f` vectors: solution of a system with a Cholesky factor, unit strides.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sides
KERNEL(ownzelmCholeskyBackSubst_mv_32f, CHOLESKY_SOLVE_MV, S, UNIT, float, choleskySolutions)
// clang-format on
