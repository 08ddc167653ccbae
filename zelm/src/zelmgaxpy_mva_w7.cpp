// Kernels on two-wide `64f` vectors: Gaxpy on arrays of vectors, unit strides.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmGaxpy_mva_64f,    GAXPY_MVA, S,  UNIT, double, multiplyAddVectors<Pairs64>)
KERNEL(ownzelmGaxpy_mvav_64f,   GAXPY_MVAV, S, UNIT, double, multiplyAddVectors<Pairs64>)
KERNEL(ownzelmGaxpy_mva_64f_L,  GAXPY_MVA, L,  UNIT, double, multiplyAddVectors<Pairs64>)
KERNEL(ownzelmGaxpy_mvav_64f_L, GAXPY_MVAV, L, UNIT, double, multiplyAddVectors<Pairs64>)
// clang-format on
