// Kernels on two-wide `64f` vectors: Mul on arrays of matrices and vectors, unit strides.
#include "zelmmulv.h"

// clang-format off
// A list kernel with ZeroChain has no straight-line sizes, unlike its sister; this is meant.
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mava_64f,   MAVA, S, UNIT, double, multiplyVectors<Pairs64>)
KERNEL(ownzelmMul_tava_64f,   TAVA, S, UNIT, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_mava_64f_L, MAVA, L, UNIT, double, multiplyVectors<Pairs64>)
KERNEL(ownzelmMul_tava_64f_L, TAVA, L, UNIT, double, multiplyVectors<ZeroChain>)
// clang-format on
