// Kernels on two-wide `64f` vectors: Mul on a single matrix and an array of matrices, unit strides.
#include "zelmmul_rows.h"

// clang-format off
//     kernel                arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mma_64f,   MUL_MMA, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mta_64f,   MUL_MTA, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tma_64f,   MUL_TMA, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tta_64f,   MUL_TTA, S, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mma_64f_L, MUL_MMA, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mta_64f_L, MUL_MTA, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tma_64f_L, MUL_TMA, L, UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tta_64f_L, MUL_TTA, L, UNIT,    double, multiply<Sizes<>>)
// clang-format on

ZELM_PRODUCTS_OF_ROWS(double, true, false)
