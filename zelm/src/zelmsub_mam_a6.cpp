// Kernels on four-wide `32f` vectors: Sub of a single matrix from an array, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mam_32f,   MAM, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mat_32f,   MAT, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tam_32f,   TAM, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tat_32f,   TAT, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mam_32f_L, MAM, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tam_32f_L, TAM, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tat_32f_L, TAT, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmSub_mat_32f_L, MAT, L, UNIT, float, MT, ownzelmSub_mt_32f)
// clang-format on
