// Portable kernels: Gaxpy on single vectors, any strides and pointer layout.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmGaxpy_mv_32f_S2, GAXPY_MV, S, ANY, float,  multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mv_64f_S2, GAXPY_MV, S, ANY, double, multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mv_32f_P,  GAXPY_MV, P, ANY, float,  multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mv_64f_P,  GAXPY_MV, P, ANY, double, multiplyAddVectors<TailFirst>)
// clang-format on
