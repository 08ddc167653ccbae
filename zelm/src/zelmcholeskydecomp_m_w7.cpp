// Kernels on two-wide `64f` vectors: Cholesky decomposition of a matrix, unit strides.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  pivots
KERNEL(ownzelmCholeskyDecomp_m_64f, CHOLESKY_FACTOR_M, S, UNIT, double, choleskyFactors<AboveZero>)
// clang-format on
