// Portable kernels: Cholesky decomposition of a matrix, any strides and pointer layout.
#include "zelmcholesky.h"

// clang-format off
//     kernel  arguments strides type  body  pivots
KERNEL(ownzelmCholeskyDecomp_m_32f_S2, CHOLESKY_FACTOR_M, S, ANY, float,  choleskyFactors<AboveZero>)
KERNEL(ownzelmCholeskyDecomp_m_64f_S2, CHOLESKY_FACTOR_M, S, ANY, double, choleskyFactors<AboveZero>)

// The general loop of `32f` is the one place where the root is rounded before the division.
KERNEL(ownzelmCholeskyDecomp_m_32f_P, CHOLESKY_FACTOR_M, P, ANY, float,  choleskyFactors<AboveEpsilonAt3RoundedRoot>)
KERNEL(ownzelmCholeskyDecomp_m_64f_P, CHOLESKY_FACTOR_M, P, ANY, double, choleskyFactors<AboveEpsilonAt3>)
// clang-format on
