// Kernels on four-wide `32f` vectors: Mul on a matrix and a vector, unit strides.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mv_32f, MV, S, UNIT, float, multiplyVectors<Chain>)
KERNEL(ownzelmMul_tv_32f, TV, S, UNIT, float, multiplyVectors<Chain>)
// clang-format on
