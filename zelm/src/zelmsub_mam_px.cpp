// Portable kernels: Sub of a single matrix from an array, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mam_32f_S2, MAM, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mam_64f_S2, MAM, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mat_32f_S2, MAT, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mat_64f_S2, MAT, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tam_32f_S2, TAM, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tam_64f_S2, TAM, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tat_32f_S2, TAT, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tat_64f_S2, TAT, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmSub_mam_32f_LS2, MAM, L, ANY, float,  MM, ownzelmSub_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_mam_64f_LS2, MAM, L, ANY, double, MM, ownzelmSub_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmSub_mat_32f_LS2, MAT, L, ANY, float,  MT, ownzelmSub_mt_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_mat_64f_LS2, MAT, L, ANY, double, MT, ownzelmSub_mt_64f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tam_32f_LS2, TAM, L, ANY, float,  TM, ownzelmSub_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tam_64f_LS2, TAM, L, ANY, double, TM, ownzelmSub_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tat_32f_LS2, TAT, L, ANY, float,  TT, ownzelmSub_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tat_64f_LS2, TAT, L, ANY, double, TT, ownzelmSub_tt_64f_S2)

KERNEL(ownzelmSub_mam_32f_P, MAM, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mam_64f_P, MAM, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_mat_32f_P, MAT, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mat_64f_P, MAT, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tam_32f_P, TAM, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_tam_64f_P, TAM, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tat_32f_P, TAT, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_tat_64f_P, TAT, P, ANY, double, elementwise<Minus>)
// clang-format on
