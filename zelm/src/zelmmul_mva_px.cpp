// Portable kernels: Mul on a single matrix and an array of vectors, any strides and pointer layout.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mva_32f_S2, MVA, S, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_mva_64f_S2, MVA, S, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tva_32f_S2, TVA, S, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_tva_64f_S2, TVA, S, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_mva_32f_P,  MVA, P, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_mva_64f_P,  MVA, P, ANY, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tva_32f_P,  TVA, P, ANY, float,  multiplyVectors<Chain>)
KERNEL(ownzelmMul_tva_64f_P,  TVA, P, ANY, double, multiplyVectors<Chain>)

//                kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmMul_mva_32f_LS2, MVA, L, ANY, float,  MV, ownzelmMul_mv_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mva_64f_LS2, MVA, L, ANY, double, MV, ownzelmMul_mv_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tva_32f_LS2, TVA, L, ANY, float,  TV, ownzelmMul_tv_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tva_64f_LS2, TVA, L, ANY, double, TV, ownzelmMul_tv_64f_S2)
// clang-format on
