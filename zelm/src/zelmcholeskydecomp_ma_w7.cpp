// Kernels on two-wide `64f` vectors: Cholesky decomposition of an array of matrices, unit strides.
#include "zelmcholesky.h"

// clang-format off
//               kernel  arguments strides type  body  pivots
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_64f,   CHOLESKY_FACTOR_MA, S, UNIT, double, choleskyFactors<AboveZero>)
KERNEL_IN_BLOCKS(ownzelmCholeskyDecomp_ma_64f_L, CHOLESKY_FACTOR_MA, L, UNIT, double, choleskyFactors<AboveZero>)
// clang-format on
