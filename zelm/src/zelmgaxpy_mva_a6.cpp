// Kernels on four-wide `32f` vectors: Gaxpy on arrays of vectors, unit strides.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmGaxpy_mva_32f,    GAXPY_MVA, S,  UNIT, float, multiplyAddVectors<EvenOdd>)
KERNEL(ownzelmGaxpy_mvav_32f,   GAXPY_MVAV, S, UNIT, float, multiplyAddVectors<EvenOdd>)
KERNEL(ownzelmGaxpy_mva_32f_L,  GAXPY_MVA, L,  UNIT, float, multiplyAddVectors<EvenOdd>)
KERNEL(ownzelmGaxpy_mvav_32f_L, GAXPY_MVAV, L, UNIT, float, multiplyAddVectors<EvenOdd>)
// clang-format on
