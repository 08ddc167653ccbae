// Kernels on four-wide `32f` vectors: Mul on an array of matrices and a single one, unit strides.
#include "zelmmul_rows.h"

// clang-format off
//     kernel                arguments  strides  type   body      straight-line sizes
KERNEL(ownzelmMul_mam_32f,   MUL_MAM, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mat_32f,   MUL_MAT, S, UNIT,    float, multiply<SizesWith4By3>)
KERNEL(ownzelmMul_tam_32f,   MUL_TAM, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tat_32f,   MUL_TAT, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mam_32f_L, MUL_MAM, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mat_32f_L, MUL_MAT, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tam_32f_L, MUL_TAM, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tat_32f_L, MUL_TAT, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
// clang-format on

ZELM_PRODUCTS_OF_ROWS(float, false, true)
