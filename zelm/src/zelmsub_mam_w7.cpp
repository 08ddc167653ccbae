// Kernels on two-wide `64f` vectors: Sub of a single matrix from an array, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mam_64f,   MAM, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mat_64f,   MAT, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tam_64f,   TAM, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tat_64f,   TAT, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tam_64f_L, TAM, L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tat_64f_L, TAT, L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmSub_mam_64f_L, MAM, L, UNIT, double, MM, ownzelmSub_mm_64f)
KERNEL_PER_OBJECT(ownzelmSub_mat_64f_L, MAT, L, UNIT, double, MT, ownzelmSub_mt_64f)
// clang-format on
