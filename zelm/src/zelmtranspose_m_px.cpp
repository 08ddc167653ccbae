// Portable kernels: Transpose on a matrix, any strides and pointer layout.
#include "zelmtranspose.h"

// clang-format off
//     kernel                      arguments     strides type  body            straight-line sizes
KERNEL(ownzelmTranspose_m_32f_S2, TRANSPOSE_M, S, ANY, float,  transpose<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmTranspose_m_64f_S2, TRANSPOSE_M, S, ANY, double, transpose<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmTranspose_m_32f_P,  TRANSPOSE_M, P, ANY, float,  transpose<Sizes<>>)
KERNEL(ownzelmTranspose_m_64f_P,  TRANSPOSE_M, P, ANY, double, transpose<Sizes<>>)
// clang-format on
