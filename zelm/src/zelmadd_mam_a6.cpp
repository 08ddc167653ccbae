// Kernels on four-wide `32f` vectors: Add on an array of matrices and a single one, unit strides.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mam_32f,   MAM_S, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mat_32f,   MAT_S, UNIT, float, addMatrices, Sizes<4, 5, 6>)
KERNEL(ownzelmAdd_tam_32f,   TAM_S, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tat_32f,   TAT_S, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mam_32f_L, MAM_L, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mat_32f_L, MAT_L, UNIT, float, addMatrices, Sizes<4, 5, 6>)
KERNEL(ownzelmAdd_tam_32f_L, TAM_L, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tat_32f_L, TAT_L, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
// clang-format on
