// Kernels on four-wide `32f` vectors: solution of systems with one Cholesky factor, unit strides.
#include "zelmcholesky.h"

// clang-format off
//               kernel  arguments strides type  body  straight-line sides
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_32f,   CHOLESKY_SOLVE_MVA, S, UNIT, float, choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_32f_L, CHOLESKY_SOLVE_MVA, L, UNIT, float, choleskySolutions)
// clang-format on
