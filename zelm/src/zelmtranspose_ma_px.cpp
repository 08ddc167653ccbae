// Portable kernels: Transpose on an array of matrices, any strides and pointer layout.
#include "zelmtranspose.h"

// clang-format off
//     kernel                      arguments     strides type  body            straight-line sizes
KERNEL(ownzelmTranspose_ma_32f_S2,  TRANSPOSE_MA, S, ANY, float,  transpose<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmTranspose_ma_64f_S2,  TRANSPOSE_MA, S, ANY, double, transpose<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmTranspose_ma_32f_LS2, TRANSPOSE_MA, L, ANY, float,  transpose<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmTranspose_ma_64f_LS2, TRANSPOSE_MA, L, ANY, double, transpose<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmTranspose_ma_32f_P,   TRANSPOSE_MA, P, ANY, float,  transpose<Sizes<>>)
KERNEL(ownzelmTranspose_ma_64f_P,   TRANSPOSE_MA, P, ANY, double, transpose<Sizes<>>)
// clang-format on
