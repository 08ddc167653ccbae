// Portable kernels: Mul on two arrays of matrices, any strides and pointer layout.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                  arguments   strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mama_32f_S2, MUL_MAMA_S, ANY,     float,  multiply, Sizes<3, 4, 5>)
KERNEL(ownzelmMul_mata_32f_S2, MUL_MATA_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tama_32f_S2, MUL_TAMA_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tata_32f_S2, MUL_TATA_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mama_64f_S2, MUL_MAMA_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mata_64f_S2, MUL_MATA_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tama_64f_S2, MUL_TAMA_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tata_64f_S2, MUL_TATA_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mama_32f_P,  MUL_MAMA_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mata_32f_P,  MUL_MATA_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tama_32f_P,  MUL_TAMA_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tata_32f_P,  MUL_TATA_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mama_64f_P,  MUL_MAMA_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mata_64f_P,  MUL_MATA_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tama_64f_P,  MUL_TAMA_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tata_64f_P,  MUL_TATA_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)

//                kernel                   arguments   strides  type    called for each object:  kernel
KERNEL_PER_OBJECT(ownzelmMul_mama_32f_LS2, MUL_MAMA_L, ANY,     float,  MUL_MM_S,                ownzelmMul_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mata_32f_LS2, MUL_MATA_L, ANY,     float,  MUL_MT_S,                ownzelmMul_mt_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tama_32f_LS2, MUL_TAMA_L, ANY,     float,  MUL_TM_S,                ownzelmMul_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tata_32f_LS2, MUL_TATA_L, ANY,     float,  MUL_TT_S,                ownzelmMul_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mama_64f_LS2, MUL_MAMA_L, ANY,     double, MUL_MM_S,                ownzelmMul_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mata_64f_LS2, MUL_MATA_L, ANY,     double, MUL_MT_S,                ownzelmMul_mt_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tama_64f_LS2, MUL_TAMA_L, ANY,     double, MUL_TM_S,                ownzelmMul_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tata_64f_LS2, MUL_TATA_L, ANY,     double, MUL_TT_S,                ownzelmMul_tt_64f_S2)
// clang-format on
