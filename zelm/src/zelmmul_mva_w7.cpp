// Kernels on two-wide `64f` vectors: Mul on a single matrix and an array of vectors, unit strides.
#include "zelmmulv.h"

// clang-format off
// A list kernel with ZeroChain has no straight-line sizes, unlike its sister; this is meant.
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mva_64f,   MVA, S, UNIT, double, multiplyVectors<Pairs64>)
KERNEL(ownzelmMul_tva_64f,   TVA, S, UNIT, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_mva_64f_L, MVA, L, UNIT, double, multiplyVectors<Pairs64>)
KERNEL(ownzelmMul_tva_64f_L, TVA, L, UNIT, double, multiplyVectors<ZeroChain>)
// clang-format on
