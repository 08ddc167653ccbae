// Portable kernels: Mul on a single matrix and an array of matrices, any strides and pointer layout.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                 arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mma_32f_S2, MUL_MMA_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mta_32f_S2, MUL_MTA_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tma_32f_S2, MUL_TMA_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tta_32f_S2, MUL_TTA_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mma_64f_S2, MUL_MMA_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mta_64f_S2, MUL_MTA_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tma_64f_S2, MUL_TMA_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tta_64f_S2, MUL_TTA_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mma_32f_P,  MUL_MMA_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mta_32f_P,  MUL_MTA_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tma_32f_P,  MUL_TMA_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tta_32f_P,  MUL_TTA_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mma_64f_P,  MUL_MMA_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mta_64f_P,  MUL_MTA_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tma_64f_P,  MUL_TMA_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tta_64f_P,  MUL_TTA_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)

//                kernel                  arguments  strides  type    called for each object:  kernel
KERNEL_PER_OBJECT(ownzelmMul_mma_32f_LS2, MUL_MMA_L, ANY,     float,  MUL_MM_S,                ownzelmMul_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mta_32f_LS2, MUL_MTA_L, ANY,     float,  MUL_MT_S,                ownzelmMul_mt_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tma_32f_LS2, MUL_TMA_L, ANY,     float,  MUL_TM_S,                ownzelmMul_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tta_32f_LS2, MUL_TTA_L, ANY,     float,  MUL_TT_S,                ownzelmMul_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mma_64f_LS2, MUL_MMA_L, ANY,     double, MUL_MM_S,                ownzelmMul_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mta_64f_LS2, MUL_MTA_L, ANY,     double, MUL_MT_S,                ownzelmMul_mt_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tma_64f_LS2, MUL_TMA_L, ANY,     double, MUL_TM_S,                ownzelmMul_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tta_64f_LS2, MUL_TTA_L, ANY,     double, MUL_TT_S,                ownzelmMul_tt_64f_S2)
// clang-format on
