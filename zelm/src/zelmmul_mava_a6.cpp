// Kernels on four-wide `32f` vectors: Mul on arrays of matrices and vectors, unit strides.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mava_32f,   MAVA, S, UNIT, float, multiplyVectors<EvenOdd>)
KERNEL(ownzelmMul_tava_32f,   TAVA, S, UNIT, float, multiplyVectors<Pairs32>)
KERNEL(ownzelmMul_mava_32f_L, MAVA, L, UNIT, float, multiplyVectors<EvenOdd>)
KERNEL(ownzelmMul_tava_32f_L, TAVA, L, UNIT, float, multiplyVectors<Pairs32>)
// clang-format on
