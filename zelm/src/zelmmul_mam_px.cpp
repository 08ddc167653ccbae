// Portable kernels: Mul on an array of matrices and a single one, any strides and pointer layout.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                  arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mam_32f_S2,  MUL_MAM, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mat_32f_S2,  MUL_MAT, S, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_tam_32f_S2,  MUL_TAM, S, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_tat_32f_S2,  MUL_TAT, S, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mam_64f_S2,  MUL_MAM, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mat_64f_S2,  MUL_MAT, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tam_64f_S2,  MUL_TAM, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tat_64f_S2,  MUL_TAT, S, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mam_32f_LS2, MUL_MAM, L, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_mat_32f_LS2, MUL_MAT, L, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_tam_32f_LS2, MUL_TAM, L, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_tat_32f_LS2, MUL_TAT, L, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_mam_32f_P,   MUL_MAM, P, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_mat_32f_P,   MUL_MAT, P, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_tam_32f_P,   MUL_TAM, P, ANY,     float,  multiply<Sizes<3>>)
KERNEL(ownzelmMul_tat_32f_P,   MUL_TAT, P, ANY,     float,  multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mam_64f_P,   MUL_MAM, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mat_64f_P,   MUL_MAT, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tam_64f_P,   MUL_TAM, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tat_64f_P,   MUL_TAT, P, ANY,     double, multiply<Sizes<3, 4, 5, 6>>)

//                kernel                  arguments  strides  type    called for each object:  kernel
KERNEL_PER_OBJECT(ownzelmMul_mam_64f_LS2, MUL_MAM, L, ANY,     double, MUL_MM,                ownzelmMul_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mat_64f_LS2, MUL_MAT, L, ANY,     double, MUL_MT,                ownzelmMul_mt_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tam_64f_LS2, MUL_TAM, L, ANY,     double, MUL_TM,                ownzelmMul_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tat_64f_LS2, MUL_TAT, L, ANY,     double, MUL_TT,                ownzelmMul_tt_64f_S2)
// clang-format on
