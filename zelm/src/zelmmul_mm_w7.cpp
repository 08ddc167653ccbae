// Kernels on two-wide `64f` vectors: Mul on single matrices, unit strides.
#include "zelmmul_mm.h"

// clang-format off
//     kernel             arguments  strides  type    body      straight-line sizes
KERNEL(ownzelmMul_mm_64f, MUL_MM, S,  UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mt_64f, MUL_MT, S,  UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tm_64f, MUL_TM, S,  UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tt_64f, MUL_TT, S,  UNIT,    double, multiply<Sizes<3, 4, 5, 6>>)
// clang-format on
