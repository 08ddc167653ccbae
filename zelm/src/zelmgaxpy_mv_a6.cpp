// Kernels on four-wide `32f` vectors: Gaxpy on single vectors, unit strides.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmGaxpy_mv_32f, GAXPY_MV, S, UNIT, float, multiplyAddVectors<EvenOdd>)
// clang-format on
