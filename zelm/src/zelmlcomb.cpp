// Exported functions: LComb.
#include "zelmvectorsignature.h"

// clang-format off
//     exported function  arguments  type  order of tests  kernels: unit strides, any
SINGLE(zelmLComb_vv_32f, LCOMB_VV, S, float,  N_Z_S, ownzelmLComb_vv_32f, ownzelmLComb_vv_32f_S2)
SINGLE(zelmLComb_vv_64f, LCOMB_VV, S, double, N_Z_S, ownzelmLComb_vv_64f, ownzelmLComb_vv_64f_S2)

//             exported function  arguments  type  order of tests  kernel
SINGLE_POINTER(zelmLComb_vv_32f_P, LCOMB_VV, P, float,  N_Z_H, ownzelmLComb_vv_32f_P)
SINGLE_POINTER(zelmLComb_vv_64f_P, LCOMB_VV, P, double, N_Z_H, ownzelmLComb_vv_64f_P)

//           exported function  arguments  type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmLComb_vav_32f,    LCOMB_VAV,  S, float,  N_C_Z_S,   oneArrayCombined, above(4500), above(4500), ownzelmLComb_vav_32f,    ownzelmLComb_vav_32f_S2,   ownOMP_zelmLComb_vav_32f)
STRIDE_FIRST(zelmLComb_vava_32f,   LCOMB_VAVA, S, float,  N_C_Z_S,   arraysCombined,   above(4500), above(4500), ownzelmLComb_vava_32f,   ownzelmLComb_vava_32f_S2,  ownOMP_zelmLComb_vava_32f)
STRIDE_FIRST(zelmLComb_vav_64f,    LCOMB_VAV,  S, double, N_C_Z_S,   oneArrayCombined, above(4500), above(4500), ownzelmLComb_vav_64f,    ownzelmLComb_vav_64f_S2,   ownOMP_zelmLComb_vav_64f)
STRIDE_FIRST(zelmLComb_vava_64f,   LCOMB_VAVA, S, double, N_C_Z_S,   arraysCombined,   above(4500), above(4500), ownzelmLComb_vava_64f,   ownzelmLComb_vava_64f_S2,  ownOMP_zelmLComb_vava_64f)
STRIDE_FIRST(zelmLComb_vav_32f_L,  LCOMB_VAV,  L, float,  N_C_Z_S_H, oneArrayCombined, above(4500), above(3750), ownzelmLComb_vav_32f_L,  ownzelmLComb_vav_32f_LS2,  ownOMP_zelmLComb_vav_32f_L)
STRIDE_FIRST(zelmLComb_vava_32f_L, LCOMB_VAVA, L, float,  N_C_Z_S_H, arraysCombined,   above(4500), above(3750), ownzelmLComb_vava_32f_L, ownzelmLComb_vava_32f_LS2, ownOMP_zelmLComb_vava_32f_L)
STRIDE_FIRST(zelmLComb_vav_64f_L,  LCOMB_VAV,  L, double, N_C_Z_S_H, oneArrayCombined, above(4500), above(4500), ownzelmLComb_vav_64f_L,  ownzelmLComb_vav_64f_LS2,  ownOMP_zelmLComb_vav_64f_L)
STRIDE_FIRST(zelmLComb_vava_64f_L, LCOMB_VAVA, L, double, N_C_Z_S_H, arraysCombined,   above(4500), above(4500), ownzelmLComb_vava_64f_L, ownzelmLComb_vava_64f_LS2, ownOMP_zelmLComb_vava_64f_L)

//            exported function  arguments  type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmLComb_vav_32f_P,  LCOMB_VAV,  P, float,  N_C_Z_S_H, oneArrayCombined, above(4500), ownzelmLComb_vav_32f_P,  ownOMP_zelmLComb_vav_32f_P)
ARRAY_POINTER(zelmLComb_vava_32f_P, LCOMB_VAVA, P, float,  N_C_Z_S_H, arraysCombined,   above(4500), ownzelmLComb_vava_32f_P, ownOMP_zelmLComb_vava_32f_P)
ARRAY_POINTER(zelmLComb_vav_64f_P,  LCOMB_VAV,  P, double, N_C_Z_S_H, oneArrayCombined, above(4500), ownzelmLComb_vav_64f_P,  ownOMP_zelmLComb_vav_64f_P)
ARRAY_POINTER(zelmLComb_vava_64f_P, LCOMB_VAVA, P, double, N_C_Z_S_H, arraysCombined,   above(4500), ownzelmLComb_vava_64f_P, ownOMP_zelmLComb_vava_64f_P)
// clang-format on
