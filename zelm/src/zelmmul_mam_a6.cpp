// Kernels on four-wide `32f` vectors: Mul on an array of matrices and a single one, unit strides.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                arguments  strides  type   body      straight-line sizes
KERNEL(ownzelmMul_mam_32f,   MUL_MAM_S, UNIT,    float, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mat_32f,   MUL_MAT_S, UNIT,    float, multiply, SizesWith4By3)
KERNEL(ownzelmMul_tam_32f,   MUL_TAM_S, UNIT,    float, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tat_32f,   MUL_TAT_S, UNIT,    float, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mam_32f_L, MUL_MAM_L, UNIT,    float, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mat_32f_L, MUL_MAT_L, UNIT,    float, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tam_32f_L, MUL_TAM_L, UNIT,    float, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tat_32f_L, MUL_TAT_L, UNIT,    float, multiply, Sizes<3, 4, 5, 6>)
// clang-format on
