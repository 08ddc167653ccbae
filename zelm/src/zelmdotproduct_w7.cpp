// Kernels on two-wide `64f` vectors: DotProduct, unit strides.
#include "zelmdotproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmDotProduct_vv_64f,     DOT_VV,   S, UNIT, double, longDotProduct<DotInLanes>)
KERNEL(ownzelmDotProduct_vav_64f,    DOT_VAV,  S, UNIT, double, dotProducts<DotInLanes>)
KERNEL(ownzelmDotProduct_vava_64f,   DOT_VAVA, S, UNIT, double, dotProducts<DotInLanes>)
KERNEL(ownzelmDotProduct_vav_64f_L,  DOT_VAV,  L, UNIT, double, dotProducts<DotInLanes>)
KERNEL(ownzelmDotProduct_vava_64f_L, DOT_VAVA, L, UNIT, double, dotProducts<DotInLanes>)
// clang-format on
