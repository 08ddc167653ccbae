// Kernels on four-wide `32f` vectors: Transpose on an array of matrices, unit strides.
#include "zelmtranspose.h"

// clang-format off
//     kernel                      arguments     strides type  body            straight-line sizes
KERNEL(ownzelmTranspose_ma_32f,   TRANSPOSE_MA, S, UNIT, float,  transposeRows<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmTranspose_ma_32f_L, TRANSPOSE_MA, L, UNIT, float,  transposeRows<Sizes<3, 4, 5, 6>>)
// clang-format on
