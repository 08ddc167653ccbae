// Portable kernels: Mul on an array of matrices and a single one, any strides and pointer layout.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                  arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mam_32f_S2,  MUL_MAM_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mat_32f_S2,  MUL_MAT_S, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_tam_32f_S2,  MUL_TAM_S, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_tat_32f_S2,  MUL_TAT_S, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mam_64f_S2,  MUL_MAM_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mat_64f_S2,  MUL_MAT_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tam_64f_S2,  MUL_TAM_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tat_64f_S2,  MUL_TAT_S, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mam_32f_LS2, MUL_MAM_L, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_mat_32f_LS2, MUL_MAT_L, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_tam_32f_LS2, MUL_TAM_L, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_tat_32f_LS2, MUL_TAT_L, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_mam_32f_P,   MUL_MAM_P, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_mat_32f_P,   MUL_MAT_P, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_tam_32f_P,   MUL_TAM_P, ANY,     float,  multiply, Sizes<3>)
KERNEL(ownzelmMul_tat_32f_P,   MUL_TAT_P, ANY,     float,  multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mam_64f_P,   MUL_MAM_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mat_64f_P,   MUL_MAT_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tam_64f_P,   MUL_TAM_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tat_64f_P,   MUL_TAT_P, ANY,     double, multiply, Sizes<3, 4, 5, 6>)

//                kernel                  arguments  strides  type    called for each object:  kernel
KERNEL_PER_OBJECT(ownzelmMul_mam_64f_LS2, MUL_MAM_L, ANY,     double, MUL_MM_S,                ownzelmMul_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mat_64f_LS2, MUL_MAT_L, ANY,     double, MUL_MT_S,                ownzelmMul_mt_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tam_64f_LS2, MUL_TAM_L, ANY,     double, MUL_TM_S,                ownzelmMul_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tat_64f_LS2, MUL_TAT_L, ANY,     double, MUL_TT_S,                ownzelmMul_tt_64f_S2)
// clang-format on
