// Kernels on two-wide `64f` vectors: determinants of an array of matrices, unit strides.
#include "zelmdet.h"

// clang-format off
//               kernel  arguments layout strides type  body
KERNEL_IN_BLOCKS(ownzelmDet_ma_64f,   DET_MA, S, UNIT, double, determinants)
KERNEL_IN_BLOCKS(ownzelmDet_ma_64f_L, DET_MA, L, UNIT, double, determinants)
// clang-format on
