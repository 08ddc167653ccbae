// Kernels on two-wide `64f` vectors: Mul on an array of matrices and a single one, unit strides.
#include "zelmmul_rows.h"

// clang-format off
//     kernel                arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mam_64f,   MUL_MAM, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mat_64f,   MUL_MAT, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tam_64f,   MUL_TAM, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tat_64f,   MUL_TAT, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mam_64f_L, MUL_MAM, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mat_64f_L, MUL_MAT, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tam_64f_L, MUL_TAM, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tat_64f_L, MUL_TAT, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
// clang-format on

ZELM_PRODUCTS_OF_ROWS(double, false, true)
