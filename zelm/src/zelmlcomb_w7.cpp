// Kernels on two-wide `64f` vectors: LComb, unit strides.
#include "zelmsaxpy.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmLComb_vv_64f,     LCOMB_VV,   S, UNIT, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vav_64f,    LCOMB_VAV,  S, UNIT, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vava_64f,   LCOMB_VAVA, S, UNIT, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vav_64f_L,  LCOMB_VAV,  L, UNIT, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vava_64f_L, LCOMB_VAVA, L, UNIT, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
// clang-format on
