// Kernels on four-wide `32f` vectors: L2Norm, unit strides.
#include "zelmdotproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmL2Norm_v_32f,    NORM_V,  S, UNIT, float, longNorm<Pairs64>)
KERNEL(ownzelmL2Norm_va_32f,   NORM_VA, S, UNIT, float, norms<ChainOrNormInLanes>)
KERNEL(ownzelmL2Norm_va_32f_L, NORM_VA, L, UNIT, float, norms<ChainOrNormInLanes>)
// clang-format on
