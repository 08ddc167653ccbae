// Portable kernels: Mul on a single matrix and an array of matrices, any strides and pointer layout.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                 arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mma_32f_S2, MUL_MMA, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mta_32f_S2, MUL_MTA, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tma_32f_S2, MUL_TMA, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tta_32f_S2, MUL_TTA, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mma_64f_S2, MUL_MMA, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mta_64f_S2, MUL_MTA, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tma_64f_S2, MUL_TMA, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tta_64f_S2, MUL_TTA, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mma_32f_P,  MUL_MMA, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mta_32f_P,  MUL_MTA, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tma_32f_P,  MUL_TMA, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tta_32f_P,  MUL_TTA, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mma_64f_P,  MUL_MMA, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mta_64f_P,  MUL_MTA, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tma_64f_P,  MUL_TMA, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tta_64f_P,  MUL_TTA, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)

//                kernel                  arguments  strides  type    called for each object:  kernel
KERNEL_PER_OBJECT(ownzelmMul_mma_32f_LS2, MUL_MMA, L, ANY,     float,  MUL_MM,                ownzelmMul_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mta_32f_LS2, MUL_MTA, L, ANY,     float,  MUL_MT,                ownzelmMul_mt_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tma_32f_LS2, MUL_TMA, L, ANY,     float,  MUL_TM,                ownzelmMul_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tta_32f_LS2, MUL_TTA, L, ANY,     float,  MUL_TT,                ownzelmMul_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mma_64f_LS2, MUL_MMA, L, ANY,     double, MUL_MM,                ownzelmMul_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mta_64f_LS2, MUL_MTA, L, ANY,     double, MUL_MT,                ownzelmMul_mt_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tma_64f_LS2, MUL_TMA, L, ANY,     double, MUL_TM,                ownzelmMul_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tta_64f_LS2, MUL_TTA, L, ANY,     double, MUL_TT,                ownzelmMul_tt_64f_S2)
// clang-format on
