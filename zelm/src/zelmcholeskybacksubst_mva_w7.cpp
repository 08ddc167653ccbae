// Kernels on two-wide `64f` vectors: solution of systems with one Cholesky factor, unit strides.
#include "zelmcholesky.h"

// clang-format off
//               kernel  arguments strides type  body  straight-line sides
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_64f,   CHOLESKY_SOLVE_MVA, S, UNIT, double, choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_64f_L, CHOLESKY_SOLVE_MVA, L, UNIT, double, choleskySolutions)
// clang-format on
