// Kernels on two-wide `64f` vectors: Transpose on an array of matrices, unit strides.
#include "zelmtranspose.h"

// clang-format off
//     kernel                      arguments     strides type  body            straight-line sizes
KERNEL(ownzelmTranspose_ma_64f,   TRANSPOSE_MA, S, UNIT, double, transposeRows<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmTranspose_ma_64f_L, TRANSPOSE_MA, L, UNIT, double, transposeRows<Sizes<3, 4, 5, 6>>)
// clang-format on
