// Kernels on two-wide `64f` vectors: Add on an array of matrices and a single one, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mam_64f,   MAM, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mat_64f,   MAT, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tam_64f,   TAM, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tat_64f,   TAT, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mat_64f_L, MAT, L, UNIT, double, elementwise<Plus>)
KERNEL(ownzelmAdd_tam_64f_L, TAM, L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tat_64f_L, TAT, L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)

KERNEL_PER_OBJECT(ownzelmAdd_mam_64f_L, MAM, L, UNIT, double, MM, ownzelmAdd_mm_64f)
// clang-format on
