// Portable kernels: Mul on an array of matrices and a single vector, any strides and pointer layout.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mav_32f_S2, MAV, S, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_mav_64f_S2, MAV, S, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tav_32f_S2, TAV, S, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_tav_64f_S2, TAV, S, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_mav_32f_P,  MAV, P, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_mav_64f_P,  MAV, P, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tav_32f_P,  TAV, P, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_tav_64f_P,  TAV, P, ANY, double, multiplyVectors<Chain>)

//                kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmMul_mav_32f_LS2, MAV, L, ANY, float,  MV, ownzelmMul_mv_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mav_64f_LS2, MAV, L, ANY, double, MV, ownzelmMul_mv_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tav_32f_LS2, TAV, L, ANY, float,  TV, ownzelmMul_tv_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tav_64f_LS2, TAV, L, ANY, double, TV, ownzelmMul_tv_64f_S2)
// clang-format on
