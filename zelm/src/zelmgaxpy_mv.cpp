// Exported functions: Gaxpy on single vectors.
#include "zelmmulvsignature.h"

// clang-format off
//     exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmGaxpy_mv_32f, GAXPY_MV, S, float,  N_Z_M_S_Gaxpy, ownzelmGaxpy_mv_32f, ownzelmGaxpy_mv_32f_S2)
SINGLE(zelmGaxpy_mv_64f, GAXPY_MV, S, double, N_Z_M_S_Gaxpy, ownzelmGaxpy_mv_64f, ownzelmGaxpy_mv_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmGaxpy_mv_32f_P, GAXPY_MV, P, float,  N_Z_M_H_Gaxpy, ownzelmGaxpy_mv_32f_P)
SINGLE_POINTER(zelmGaxpy_mv_64f_P, GAXPY_MV, P, double, N_Z_M_H_Gaxpy, ownzelmGaxpy_mv_64f_P)
// clang-format on
