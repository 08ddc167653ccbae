// Kernels on four-wide `32f` vectors: LComb, unit strides.
#include "zelmsaxpy.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmLComb_vv_32f,     LCOMB_VV,   S, UNIT, float, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vav_32f,    LCOMB_VAV,  S, UNIT, float, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vava_32f,   LCOMB_VAVA, S, UNIT, float, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vav_32f_L,  LCOMB_VAV,  L, UNIT, float, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vava_32f_L, LCOMB_VAVA, L, UNIT, float, elementwise<Combination, Sizes<3, 4, 5, 6>>)
// clang-format on
