// Kernels on four-wide `32f` vectors: Transpose on a matrix, unit strides.
#include "zelmtranspose.h"

// clang-format off
//     kernel                      arguments     strides type  body            straight-line sizes
KERNEL(ownzelmTranspose_m_32f, TRANSPOSE_M, S, UNIT, float,  transposeRows<Sizes<3, 4, 5, 6>>)
// clang-format on
