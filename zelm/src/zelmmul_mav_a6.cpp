// Kernels on four-wide `32f` vectors: Mul on an array of matrices and a single vector, unit strides.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mav_32f,   MAV, S, UNIT, float, multiplyVectors<EvenOdd>)
KERNEL(ownzelmMul_tav_32f,   TAV, S, UNIT, float, multiplyVectors<Pairs32>)
KERNEL(ownzelmMul_mav_32f_L, MAV, L, UNIT, float, multiplyVectors<EvenOdd>)
KERNEL(ownzelmMul_tav_32f_L, TAV, L, UNIT, float, multiplyVectors<Pairs32>)
// clang-format on
