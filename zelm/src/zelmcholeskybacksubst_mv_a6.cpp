// Kernels on four-wide `32f` vectors: solution of a system with a Cholesky factor, unit strides.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sides
KERNEL(ownzelmCholeskyBackSubst_mv_32f, CHOLESKY_SOLVE_MV_S, UNIT, float, choleskySolutions, Straight3To6)
// clang-format on
