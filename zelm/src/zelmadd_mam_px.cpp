// Portable kernels: Add on an array of matrices and a single one, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mam_32f_S2,  MAM, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mat_32f_S2,  MAT, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tam_32f_S2,  TAM, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tat_32f_S2,  TAT, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mam_64f_S2,  MAM, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mat_64f_S2,  MAT, S, ANY, double, elementwise<Plus>) // unlike its 32f sibling
KERNEL(ownzelmAdd_tam_64f_S2,  TAM, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tat_64f_S2,  TAT, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mat_32f_LS2, MAT, L, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_mat_64f_LS2, MAT, L, ANY, double, elementwise<Plus>)

// Add has no mt to call for each object of mat: its list kernels are loops of their own.
//             kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmAdd_mam_32f_LS2, MAM, L, ANY, float,  MM, ownzelmAdd_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tam_32f_LS2, TAM, L, ANY, float,  TM, ownzelmAdd_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tat_32f_LS2, TAT, L, ANY, float,  TT, ownzelmAdd_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_mam_64f_LS2, MAM, L, ANY, double, MM, ownzelmAdd_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tam_64f_LS2, TAM, L, ANY, double, TM, ownzelmAdd_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tat_64f_LS2, TAT, L, ANY, double, TT, ownzelmAdd_tt_64f_S2)

KERNEL(ownzelmAdd_mam_32f_P, MAM, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_mat_32f_P, MAT, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_tam_32f_P, TAM, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_tat_32f_P, TAT, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_mam_64f_P, MAM, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_mat_64f_P, MAT, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_tam_64f_P, TAM, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_tat_64f_P, TAT, P, ANY, double, elementwise<Plus>)
// clang-format on
