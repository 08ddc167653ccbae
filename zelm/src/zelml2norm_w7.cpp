// Kernels on two-wide `64f` vectors: L2Norm, unit strides.
#include "zelmdotproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmL2Norm_v_64f,    NORM_V,  S, UNIT, double, longNorm<NormInLanes>)
KERNEL(ownzelmL2Norm_va_64f,   NORM_VA, S, UNIT, double, norms<NormInLanes>)
KERNEL(ownzelmL2Norm_va_64f_L, NORM_VA, L, UNIT, double, norms<NormInLanes>)
// clang-format on
