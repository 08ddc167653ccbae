// Kernels on four-wide `32f` vectors: DotProduct, unit strides.
#include "zelmdotproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmDotProduct_vv_32f,     DOT_VV,   S, UNIT, float, longDotProduct<Chain>)
KERNEL(ownzelmDotProduct_vav_32f,    DOT_VAV,  S, UNIT, float, dotProducts<ChainOrTwoPairs>)
KERNEL(ownzelmDotProduct_vava_32f,   DOT_VAVA, S, UNIT, float, dotProducts<Chain>)
KERNEL(ownzelmDotProduct_vav_32f_L,  DOT_VAV,  L, UNIT, float, dotProducts<ChainOrTwoPairs>)
KERNEL(ownzelmDotProduct_vava_32f_L, DOT_VAVA, L, UNIT, float, dotProducts<Chain>)
// clang-format on
