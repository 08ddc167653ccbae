// Kernels on four-wide `32f` and two-wide `64f` vectors: Frobenius norms of an array of matrices, unit strides.
#include "zelmfrobnorm.h"

// clang-format off
//     kernel  arguments layout strides type  body: order of the sums
KERNEL(ownzelmFrobNorm_ma_32f, FROBNORM_MA, S, UNIT, float,  laneNorms)
KERNEL(ownzelmFrobNorm_ma_64f, FROBNORM_MA, S, UNIT, double, norms<InTwoLanes>)
// clang-format on
