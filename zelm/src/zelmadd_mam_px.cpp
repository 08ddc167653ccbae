// Portable kernels: Add on an array of matrices and a single one, any strides and pointer layout.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mam_32f_S2,  MAM_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mat_32f_S2,  MAT_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tam_32f_S2,  TAM_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tat_32f_S2,  TAT_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mam_64f_S2,  MAM_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mat_64f_S2,  MAT_S, ANY, double, addMatrices, Sizes<>) // unlike its 32f sibling
KERNEL(ownzelmAdd_tam_64f_S2,  TAM_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tat_64f_S2,  TAT_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mat_32f_LS2, MAT_L, ANY, float,  addMatrices, Sizes<>)
KERNEL(ownzelmAdd_mat_64f_LS2, MAT_L, ANY, double, addMatrices, Sizes<>)

// Add has no mt to call for each object of mat: its list kernels are loops of their own.
//             kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmAdd_mam_32f_LS2, MAM_L, ANY, float,  MM_S, ownzelmAdd_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tam_32f_LS2, TAM_L, ANY, float,  TM_S, ownzelmAdd_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tat_32f_LS2, TAT_L, ANY, float,  TT_S, ownzelmAdd_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_mam_64f_LS2, MAM_L, ANY, double, MM_S, ownzelmAdd_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tam_64f_LS2, TAM_L, ANY, double, TM_S, ownzelmAdd_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tat_64f_LS2, TAT_L, ANY, double, TT_S, ownzelmAdd_tt_64f_S2)

KERNEL(ownzelmAdd_mam_32f_P, MAM_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_mat_32f_P, MAT_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_tam_32f_P, TAM_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_tat_32f_P, TAT_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_mam_64f_P, MAM_P, ANY, double, addPositions, AnySize)
KERNEL(ownzelmAdd_mat_64f_P, MAT_P, ANY, double, addPositions, AnySize)
KERNEL(ownzelmAdd_tam_64f_P, TAM_P, ANY, double, addPositions, AnySize)
KERNEL(ownzelmAdd_tat_64f_P, TAT_P, ANY, double, addPositions, AnySize)
// clang-format on
