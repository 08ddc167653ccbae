// Kernels on four-wide `32f` vectors: Frobenius norm of a matrix, any strides.
#include "zelmfrobnorm.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmFrobNorm_m_32f, FROBNORM_M, S, ANY, float, laneNorm)
// clang-format on
