// Kernels on four-wide `32f` vectors: Mul on two arrays of matrices, unit strides.
#include "zelmmul_rows.h"

// clang-format off
//     kernel                 arguments   strides  type   body      straight-line sizes
KERNEL(ownzelmMul_mama_32f,   MUL_MAMA, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mata_32f,   MUL_MATA, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tama_32f,   MUL_TAMA, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tata_32f,   MUL_TATA, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mama_32f_L, MUL_MAMA, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mata_32f_L, MUL_MATA, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tama_32f_L, MUL_TAMA, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tata_32f_L, MUL_TATA, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
// clang-format on

ZELM_PRODUCTS_OF_ROWS(float, false, false)
