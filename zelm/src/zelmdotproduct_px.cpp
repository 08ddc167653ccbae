// Portable kernels: DotProduct, any strides and pointer layout.
#include "zelmdotproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmDotProduct_vv_32f_S2,    DOT_VV,   S, ANY, float,  dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vv_64f_S2,    DOT_VV,   S, ANY, double, dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vv_32f_P,     DOT_VV,   P, ANY, float,  dotProducts<Chain>)
KERNEL(ownzelmDotProduct_vv_64f_P,     DOT_VV,   P, ANY, double, dotProducts<Chain>)
KERNEL(ownzelmDotProduct_vav_32f_S2,   DOT_VAV,  S, ANY, float,  dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vava_32f_S2,  DOT_VAVA, S, ANY, float,  dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vav_64f_S2,   DOT_VAV,  S, ANY, double, dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vava_64f_S2,  DOT_VAVA, S, ANY, double, dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vav_32f_LS2,  DOT_VAV,  L, ANY, float,  dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vava_32f_LS2, DOT_VAVA, L, ANY, float,  dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vav_64f_LS2,  DOT_VAV,  L, ANY, double, dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vava_64f_LS2, DOT_VAVA, L, ANY, double, dotProducts<TailPairFirst>)
KERNEL(ownzelmDotProduct_vav_32f_P,    DOT_VAV,  P, ANY, float,  dotProducts<Chain>)
KERNEL(ownzelmDotProduct_vava_32f_P,   DOT_VAVA, P, ANY, float,  dotProducts<Chain>)
KERNEL(ownzelmDotProduct_vav_64f_P,    DOT_VAV,  P, ANY, double, dotProducts<Chain>)
KERNEL(ownzelmDotProduct_vava_64f_P,   DOT_VAVA, P, ANY, double, dotProducts<Chain>)
// clang-format on
