// Exported functions: Cholesky decomposition of a matrix.
#include "zelmcholeskysignature.h"

// clang-format off
//     exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmCholeskyDecomp_m_32f, CHOLESKY_FACTOR_M, S, float,  N_Z_S, ownzelmCholeskyDecomp_m_32f, ownzelmCholeskyDecomp_m_32f_S2)
SINGLE(zelmCholeskyDecomp_m_64f, CHOLESKY_FACTOR_M, S, double, N_Z_S, ownzelmCholeskyDecomp_m_64f, ownzelmCholeskyDecomp_m_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmCholeskyDecomp_m_32f_P, CHOLESKY_FACTOR_M, P, float,  N_Z_H, ownzelmCholeskyDecomp_m_32f_P)
SINGLE_POINTER(zelmCholeskyDecomp_m_64f_P, CHOLESKY_FACTOR_M, P, double, N_Z_H, ownzelmCholeskyDecomp_m_64f_P)
// clang-format on
