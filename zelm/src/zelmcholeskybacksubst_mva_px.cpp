// Portable kernels: solution of systems with one Cholesky factor, any strides and pointer layout.
#include "zelmcholesky.h"

// clang-format off
//               kernel  arguments strides type  body  straight-line sides
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_32f_S2,  CHOLESKY_SOLVE_MVA, S, ANY, float,  choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_64f_S2,  CHOLESKY_SOLVE_MVA, S, ANY, double, choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_32f_LS2, CHOLESKY_SOLVE_MVA, L, ANY, float,  choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_64f_LS2, CHOLESKY_SOLVE_MVA, L, ANY, double, choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_32f_P,   CHOLESKY_SOLVE_MVA, P, ANY, float,  choleskySolutions)
KERNEL_IN_BLOCKS(ownzelmCholeskyBackSubst_mva_64f_P,   CHOLESKY_SOLVE_MVA, P, ANY, double, choleskySolutions)
// clang-format on
