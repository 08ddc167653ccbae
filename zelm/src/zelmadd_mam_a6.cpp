// Kernels on four-wide `32f` vectors: Add on an array of matrices and a single one, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mam_32f,   MAM, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mat_32f,   MAT, S, UNIT, float, elementwise<Plus, Sizes<4, 5, 6>>)
KERNEL(ownzelmAdd_tam_32f,   TAM, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tat_32f,   TAT, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mam_32f_L, MAM, L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mat_32f_L, MAT, L, UNIT, float, elementwise<Plus, Sizes<4, 5, 6>>)
KERNEL(ownzelmAdd_tam_32f_L, TAM, L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tat_32f_L, TAT, L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
// clang-format on
