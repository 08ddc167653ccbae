// Kernels on four-wide `32f` vectors: determinants of an array of matrices, unit strides.
#include "zelmdet.h"

// clang-format off
//               kernel  arguments layout strides type  body
KERNEL_IN_BLOCKS(ownzelmDet_ma_32f,   DET_MA, S, UNIT, float, determinants)
KERNEL_IN_BLOCKS(ownzelmDet_ma_32f_L, DET_MA, L, UNIT, float, determinants)
// clang-format on
