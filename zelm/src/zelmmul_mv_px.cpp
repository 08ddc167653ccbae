// Portable kernels: Mul on a matrix and a vector, any strides and pointer layout.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mv_32f_S2, MV, S, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_mv_64f_S2, MV, S, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tv_32f_S2, TV, S, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_tv_64f_S2, TV, S, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_mv_32f_P,  MV, P, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_mv_64f_P,  MV, P, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tv_32f_P,  TV, P, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_tv_64f_P,  TV, P, ANY, double, multiplyVectors<Chain>)
// clang-format on
