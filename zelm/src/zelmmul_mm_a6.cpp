// Kernels on four-wide `32f` vectors: Mul on single matrices, unit strides.
#include "zelmmul_mm.h"

// clang-format off
//     kernel             arguments  strides  type   body      straight-line sizes
KERNEL(ownzelmMul_mm_32f, MUL_MM, S,  UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mt_32f, MUL_MT, S,  UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tm_32f, MUL_TM, S,  UNIT,    float, multiply<Sizes<3, 4, 5>>)
KERNEL(ownzelmMul_tt_32f, MUL_TT, S,  UNIT,    float, multiply<Sizes<3, 4, 5, 6>>)
// clang-format on
