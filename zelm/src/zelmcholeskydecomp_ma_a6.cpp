// Kernels on four-wide `32f` vectors: Cholesky decomposition of an array of matrices, unit strides.
#include "zelmcholesky.h"

// clang-format off
//               kernel  arguments strides type  body  pivots
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_32f,   CHOLESKY_FACTOR_MA, S, UNIT, float, choleskyFactors<AboveZero>)
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_32f_L, CHOLESKY_FACTOR_MA, L, UNIT, float, choleskyFactors<AboveZero>)
// clang-format on
