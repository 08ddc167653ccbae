// Kernels on two-wide `64f` vectors: Mul on two arrays of matrices, unit strides.
#include "zelmmul_rows.h"

// clang-format off
//     kernel                 arguments   strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mama_64f,   MUL_MAMA, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mata_64f,   MUL_MATA, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tama_64f,   MUL_TAMA, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tata_64f,   MUL_TATA, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mama_64f_L, MUL_MAMA, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mata_64f_L, MUL_MATA, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tama_64f_L, MUL_TAMA, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tata_64f_L, MUL_TATA, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
// clang-format on

ZELM_PRODUCTS_OF_ROWS(double, false, false)
