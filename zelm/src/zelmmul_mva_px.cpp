// Portable kernels: Mul on a single matrix and an array of vectors, any strides and pointer layout.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mva_32f_S2, MVA_S, ANY, float,  multiplyVectors, Chain)
KERNEL(ownzelmMul_mva_64f_S2, MVA_S, ANY, double, multiplyVectors, Chain)
KERNEL(ownzelmMul_tva_32f_S2, TVA_S, ANY, float,  multiplyVectors, Chain)
KERNEL(ownzelmMul_tva_64f_S2, TVA_S, ANY, double, multiplyVectors, Chain)
KERNEL(ownzelmMul_mva_32f_P,  MVA_P, ANY, float,  multiplyVectors, Chain)
KERNEL(ownzelmMul_mva_64f_P,  MVA_P, ANY, double, multiplyVectors, Chain)
KERNEL(ownzelmMul_tva_32f_P,  TVA_P, ANY, float,  multiplyVectors, Chain)
KERNEL(ownzelmMul_tva_64f_P,  TVA_P, ANY, double, multiplyVectors, Chain)

//                kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmMul_mva_32f_LS2, MVA_L, ANY, float,  MV_S, ownzelmMul_mv_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mva_64f_LS2, MVA_L, ANY, double, MV_S, ownzelmMul_mv_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tva_32f_LS2, TVA_L, ANY, float,  TV_S, ownzelmMul_tv_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tva_64f_LS2, TVA_L, ANY, double, TV_S, ownzelmMul_tv_64f_S2)
// clang-format on
