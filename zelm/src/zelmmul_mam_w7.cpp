// Kernels on two-wide `64f` vectors: Mul on an array of matrices and a single one, unit strides.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mam_64f,   MUL_MAM_S, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mat_64f,   MUL_MAT_S, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tam_64f,   MUL_TAM_S, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tat_64f,   MUL_TAT_S, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mam_64f_L, MUL_MAM_L, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mat_64f_L, MUL_MAT_L, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tam_64f_L, MUL_TAM_L, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tat_64f_L, MUL_TAT_L, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
// clang-format on
