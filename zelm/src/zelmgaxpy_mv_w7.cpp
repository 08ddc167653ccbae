// Kernels on two-wide `64f` vectors: Gaxpy on single vectors, unit strides.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmGaxpy_mv_64f, GAXPY_MV, S, UNIT, double, multiplyAddVectors<Pairs64>)
// clang-format on
