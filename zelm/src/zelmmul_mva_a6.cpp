// Kernels on four-wide `32f` vectors: Mul on a single matrix and an array of vectors, unit strides.
#include "zelmmulv.h"

// clang-format off
// A list kernel with ZeroChain has no straight-line sizes, unlike its sister; this is meant.
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mva_32f,   MVA, S, UNIT, float, multiplyVectors<EvenOdd>)
KERNEL(ownzelmMul_tva_32f,   TVA, S, UNIT, float, multiplyVectors<Pairs32>)
KERNEL(ownzelmMul_mva_32f_L, MVA, L, UNIT, float, multiplyVectors<ZeroChain>)
KERNEL(ownzelmMul_tva_32f_L, TVA, L, UNIT, float, multiplyVectors<ZeroChain>)
// clang-format on
