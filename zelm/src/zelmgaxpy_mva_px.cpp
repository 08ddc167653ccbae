// Portable kernels: Gaxpy on arrays of vectors, any strides and pointer layout.
#include "zelmmulv.h"

// clang-format off
//     kernel  arguments strides type  body  sum
KERNEL(ownzelmGaxpy_mva_32f_S2,   GAXPY_MVA, S,  ANY, float,  multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mva_64f_S2,   GAXPY_MVA, S,  ANY, double, multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mvav_32f_S2,  GAXPY_MVAV, S, ANY, float,  multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mvav_64f_S2,  GAXPY_MVAV, S, ANY, double, multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mva_32f_LS2,  GAXPY_MVA, L,  ANY, float,  multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mva_64f_LS2,  GAXPY_MVA, L,  ANY, double, multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mvav_32f_LS2, GAXPY_MVAV, L, ANY, float,  multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mvav_64f_LS2, GAXPY_MVAV, L, ANY, double, multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mva_32f_P,    GAXPY_MVA, P,  ANY, float,  multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mva_64f_P,    GAXPY_MVA, P,  ANY, double, multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mvav_32f_P,   GAXPY_MVAV, P, ANY, float,  multiplyAddVectors<TailFirst>)
KERNEL(ownzelmGaxpy_mvav_64f_P,   GAXPY_MVAV, P, ANY, double, multiplyAddVectors<TailFirst>)
// clang-format on
