// Kernels on two-wide `64f` vectors: Add on an array of matrices and a single one, unit strides.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mam_64f,   MAM_S, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mat_64f,   MAT_S, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tam_64f,   TAM_S, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tat_64f,   TAT_S, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mat_64f_L, MAT_L, UNIT, double, addMatrices, Sizes<>)
KERNEL(ownzelmAdd_tam_64f_L, TAM_L, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tat_64f_L, TAT_L, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)

KERNEL_PER_OBJECT(ownzelmAdd_mam_64f_L, MAM_L, UNIT, double, MM_S, ownzelmAdd_mm_64f)
// clang-format on
