// Portable kernels: LComb, any strides and pointer layout.
#include "zelmsaxpy.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmLComb_vv_32f_S2,    LCOMB_VV,   S, ANY, float,  elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vv_64f_S2,    LCOMB_VV,   S, ANY, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vv_32f_P,     LCOMB_VV,   P, ANY, float,  elementwise<Combination>)
KERNEL(ownzelmLComb_vv_64f_P,     LCOMB_VV,   P, ANY, double, elementwise<Combination>)
KERNEL(ownzelmLComb_vav_32f_S2,   LCOMB_VAV,  S, ANY, float,  elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vava_32f_S2,  LCOMB_VAVA, S, ANY, float,  elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vav_64f_S2,   LCOMB_VAV,  S, ANY, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vava_64f_S2,  LCOMB_VAVA, S, ANY, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vav_32f_LS2,  LCOMB_VAV,  L, ANY, float,  elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vava_32f_LS2, LCOMB_VAVA, L, ANY, float,  elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vav_64f_LS2,  LCOMB_VAV,  L, ANY, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vava_64f_LS2, LCOMB_VAVA, L, ANY, double, elementwise<Combination, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmLComb_vav_32f_P,    LCOMB_VAV,  P, ANY, float,  elementwise<Combination>)
KERNEL(ownzelmLComb_vava_32f_P,   LCOMB_VAVA, P, ANY, float,  elementwise<Combination>)
KERNEL(ownzelmLComb_vav_64f_P,    LCOMB_VAV,  P, ANY, double, elementwise<Combination>)
KERNEL(ownzelmLComb_vava_64f_P,   LCOMB_VAVA, P, ANY, double, elementwise<Combination>)
// clang-format on
