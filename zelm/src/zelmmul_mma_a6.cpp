// Kernels on four-wide `32f` vectors: Mul on a single matrix and an array of matrices, unit strides.
#include "zelmmul_rows.h"

// clang-format off
//     kernel                arguments  strides  type   body      straight-line sizes
KERNEL(ownzelmMul_mma_32f,   MUL_MMA, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mta_32f,   MUL_MTA, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tma_32f,   MUL_TMA, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tta_32f,   MUL_TTA, S, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mma_32f_L, MUL_MMA, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mta_32f_L, MUL_MTA, L, UNIT,    float, multiply<Sizes<>>)
KERNEL(ownzelmMul_tma_32f_L, MUL_TMA, L, UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tta_32f_L, MUL_TTA, L, UNIT,    float, multiply<Sizes<>>)
// clang-format on

ZELM_PRODUCTS_OF_ROWS(float, true, false)
