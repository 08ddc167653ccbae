// Portable kernels: Mul on arrays of matrices and vectors, any strides and pointer layout.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mava_32f_S2, MAVA, S, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_mava_64f_S2, MAVA, S, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tava_32f_S2, TAVA, S, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_tava_64f_S2, TAVA, S, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_mava_32f_P,  MAVA, P, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_mava_64f_P,  MAVA, P, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tava_32f_P,  TAVA, P, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_tava_64f_P,  TAVA, P, ANY, double, multiplyVectors<Chain>)

//                kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmMul_mava_32f_LS2, MAVA, L, ANY, float,  MV, ownzelmMul_mv_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mava_64f_LS2, MAVA, L, ANY, double, MV, ownzelmMul_mv_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tava_32f_LS2, TAVA, L, ANY, float,  TV, ownzelmMul_tv_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tava_64f_LS2, TAVA, L, ANY, double, TV, ownzelmMul_tv_64f_S2)
// clang-format on
