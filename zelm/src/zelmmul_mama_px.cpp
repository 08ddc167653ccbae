// Portable kernels: Mul on two arrays of matrices, any strides and pointer layout.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                  arguments   strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mama_32f_S2, MUL_MAMA, S, ANY,     float,  multiply<Sizes<3, 4, 5>>)
KERNEL(ownzelmMul_mata_32f_S2, MUL_MATA, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tama_32f_S2, MUL_TAMA, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tata_32f_S2, MUL_TATA, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mama_64f_S2, MUL_MAMA, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mata_64f_S2, MUL_MATA, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tama_64f_S2, MUL_TAMA, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tata_64f_S2, MUL_TATA, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mama_32f_P,  MUL_MAMA, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mata_32f_P,  MUL_MATA, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tama_32f_P,  MUL_TAMA, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tata_32f_P,  MUL_TATA, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mama_64f_P,  MUL_MAMA, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mata_64f_P,  MUL_MATA, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tama_64f_P,  MUL_TAMA, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tata_64f_P,  MUL_TATA, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)

//                kernel                   arguments   strides  type    called for each object:  kernel
KERNEL_PER_OBJECT(ownzelmMul_mama_32f_LS2, MUL_MAMA, L, ANY,     float,  MUL_MM,                ownzelmMul_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mata_32f_LS2, MUL_MATA, L, ANY,     float,  MUL_MT,                ownzelmMul_mt_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tama_32f_LS2, MUL_TAMA, L, ANY,     float,  MUL_TM,                ownzelmMul_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tata_32f_LS2, MUL_TATA, L, ANY,     float,  MUL_TT,                ownzelmMul_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mama_64f_LS2, MUL_MAMA, L, ANY,     double, MUL_MM,                ownzelmMul_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mata_64f_LS2, MUL_MATA, L, ANY,     double, MUL_MT,                ownzelmMul_mt_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tama_64f_LS2, MUL_TAMA, L, ANY,     double, MUL_TM,                ownzelmMul_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tata_64f_LS2, MUL_TATA, L, ANY,     double, MUL_TT,                ownzelmMul_tt_64f_S2)
// clang-format on
