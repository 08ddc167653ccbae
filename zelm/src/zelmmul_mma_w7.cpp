// Kernels on two-wide `64f` vectors: Mul on a single matrix and an array of matrices, unit strides.
#include "zelmmul_mm.h"

// clang-format off
//     kernel                arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mma_64f,   MUL_MMA_S, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mta_64f,   MUL_MTA_S, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tma_64f,   MUL_TMA_S, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tta_64f,   MUL_TTA_S, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mma_64f_L, MUL_MMA_L, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mta_64f_L, MUL_MTA_L, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tma_64f_L, MUL_TMA_L, UNIT,    double, multiply, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tta_64f_L, MUL_TTA_L, UNIT,    double, multiply, Sizes<>)
// clang-format on
