// Kernels on two-wide `64f` vectors: Mul on an array of matrices and a single vector, unit strides.
#include "zelmmulv.h"

// clang-format off
// tav takes another sum in the list layout; this is meant.
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mav_64f,   MAV, S, UNIT, double, multiplyVectors<Pairs64>)
KERNEL(ownzelmMul_tav_64f,   TAV, S, UNIT, double, multiplyVectors<Chain>)
KERNEL(ownzelmMul_mav_64f_L, MAV, L, UNIT, double, multiplyVectors<Pairs64>)
KERNEL(ownzelmMul_tav_64f_L, TAV, L, UNIT, double, multiplyVectors<Pairs64>)
// clang-format on
