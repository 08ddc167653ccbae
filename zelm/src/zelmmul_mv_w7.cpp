// Kernels on two-wide `64f` vectors: Mul on a matrix and a vector, unit strides.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmMul_mv_64f, MV, S, UNIT, double, multiplyVectors<Pairs64>)
KERNEL(ownzelmMul_tv_64f, TV, S, UNIT, double, multiplyVectors<Chain>)
// clang-format on
