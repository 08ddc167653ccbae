// Portable kernels: determinants of an array of matrices, any strides and pointer layout.
#include "zelmdet.h"

// clang-format off
//               kernel  arguments layout strides type  body
KERNEL_IN_BLOCKS(ownzelmDet_ma_32f_S2,  DET_MA, S, ANY, float,  determinants)
KERNEL_IN_BLOCKS(ownzelmDet_ma_64f_S2,  DET_MA, S, ANY, double, determinants)
KERNEL_IN_BLOCKS(ownzelmDet_ma_32f_LS2, DET_MA, L, ANY, float,  determinants)
KERNEL_IN_BLOCKS(ownzelmDet_ma_64f_LS2, DET_MA, L, ANY, double, determinants)
KERNEL_IN_BLOCKS(ownzelmDet_ma_32f_P,   DET_MA, P, ANY, float,  determinants)
KERNEL_IN_BLOCKS(ownzelmDet_ma_64f_P,   DET_MA, P, ANY, double, determinants)
// clang-format on
