// Portable kernels: Frobenius norm of a matrix.
#include "zelmfrobnorm.h"

// clang-format off
//     kernel  arguments layout strides type  body: order of the sum
KERNEL(ownzelmFrobNorm_m_64f,   FROBNORM_M, S, ANY, double, norm<InOrder>)
KERNEL(ownzelmFrobNorm_m_64f_P, FROBNORM_M, P, ANY, double, norm<InOrder>)
KERNEL(ownzelmFrobNorm_m_32f_P, FROBNORM_M, P, ANY, float,  pairedNorm)
// clang-format on
