// Kernels on four-wide `32f` vectors: Cholesky decomposition of a matrix, unit strides.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  pivots
KERNEL(ownzelmCholeskyDecomp_m_32f, CHOLESKY_FACTOR_M, S, UNIT, float, choleskyFactors<AboveZero>)
// clang-format on
