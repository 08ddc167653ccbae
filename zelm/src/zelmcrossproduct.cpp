// Exported functions: CrossProduct.
#include "zelmvectorsignature.h"

// clang-format off
//     exported function  arguments  type  order of tests  kernels: unit strides, any
SINGLE(zelmCrossProduct_vv_32f, CROSS_VV, S, float,  N_S, ownzelmCrossProduct_vv_32f, ownzelmCrossProduct_vv_32f_S2)
SINGLE(zelmCrossProduct_vv_64f, CROSS_VV, S, double, N_S, ownzelmCrossProduct_vv_64f, ownzelmCrossProduct_vv_64f_S2)

//             exported function  arguments  type  order of tests  kernel
SINGLE_POINTER(zelmCrossProduct_vv_32f_P, CROSS_VV, P, float,  N_H, ownzelmCrossProduct_vv_32f_P)
SINGLE_POINTER(zelmCrossProduct_vv_64f_P, CROSS_VV, P, double, N_H, ownzelmCrossProduct_vv_64f_P)

//           exported function  arguments  type  order of tests  estimate  forks  kernels: unit strides, any  front
ESTIMATE_FIRST(zelmCrossProduct_vav_32f,    CROSS_VAV,  S, float,  N_S_C,   oneArrayCrossed, above(3000), ownzelmCrossProduct_vav_32f,    ownzelmCrossProduct_vav_32f_S2,   ownOMP_zelmCrossProduct_vav_32f)
ESTIMATE_FIRST(zelmCrossProduct_vva_32f,    CROSS_VVA,  S, float,  N_C_S,   oneArrayCrossed, above(3000), ownzelmCrossProduct_vva_32f,    ownzelmCrossProduct_vva_32f_S2,   ownOMP_zelmCrossProduct_vva_32f)
ESTIMATE_FIRST(zelmCrossProduct_vava_32f,   CROSS_VAVA, S, float,  N_C_S,   arraysCrossed,   above(3000), ownzelmCrossProduct_vava_32f,   ownzelmCrossProduct_vava_32f_S2,  ownOMP_zelmCrossProduct_vava_32f)
ESTIMATE_FIRST(zelmCrossProduct_vav_64f,    CROSS_VAV,  S, double, N_S_C,   oneArrayCrossed, above(3000), ownzelmCrossProduct_vav_64f,    ownzelmCrossProduct_vav_64f_S2,   ownOMP_zelmCrossProduct_vav_64f)
ESTIMATE_FIRST(zelmCrossProduct_vva_64f,    CROSS_VVA,  S, double, N_C_S,   oneArrayCrossed, above(3000), ownzelmCrossProduct_vva_64f,    ownzelmCrossProduct_vva_64f_S2,   ownOMP_zelmCrossProduct_vva_64f)
ESTIMATE_FIRST(zelmCrossProduct_vava_64f,   CROSS_VAVA, S, double, N_C_S,   arraysCrossed,   above(3000), ownzelmCrossProduct_vava_64f,   ownzelmCrossProduct_vava_64f_S2,  ownOMP_zelmCrossProduct_vava_64f)
ESTIMATE_FIRST(zelmCrossProduct_vav_32f_L,  CROSS_VAV,  L, float,  N_S_H_C, oneArrayCrossed, above(3000), ownzelmCrossProduct_vav_32f_L,  ownzelmCrossProduct_vav_32f_LS2,  ownOMP_zelmCrossProduct_vav_32f_L)
ESTIMATE_FIRST(zelmCrossProduct_vva_32f_L,  CROSS_VVA,  L, float,  N_C_S_H, oneArrayCrossed, above(3000), ownzelmCrossProduct_vva_32f_L,  ownzelmCrossProduct_vva_32f_LS2,  ownOMP_zelmCrossProduct_vva_32f_L)
ESTIMATE_FIRST(zelmCrossProduct_vava_32f_L, CROSS_VAVA, L, float,  N_C_S_H, arraysCrossed,   above(3000), ownzelmCrossProduct_vava_32f_L, ownzelmCrossProduct_vava_32f_LS2, ownOMP_zelmCrossProduct_vava_32f_L)
ESTIMATE_FIRST(zelmCrossProduct_vav_64f_L,  CROSS_VAV,  L, double, N_S_H_C, oneArrayCrossed, above(3000), ownzelmCrossProduct_vav_64f_L,  ownzelmCrossProduct_vav_64f_LS2,  ownOMP_zelmCrossProduct_vav_64f_L)
ESTIMATE_FIRST(zelmCrossProduct_vva_64f_L,  CROSS_VVA,  L, double, N_C_S_H, oneArrayCrossed, above(3000), ownzelmCrossProduct_vva_64f_L,  ownzelmCrossProduct_vva_64f_LS2,  ownOMP_zelmCrossProduct_vva_64f_L)
ESTIMATE_FIRST(zelmCrossProduct_vava_64f_L, CROSS_VAVA, L, double, N_C_S_H, arraysCrossed,   above(3000), ownzelmCrossProduct_vava_64f_L, ownzelmCrossProduct_vava_64f_LS2, ownOMP_zelmCrossProduct_vava_64f_L)

//            exported function  arguments  type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmCrossProduct_vav_32f_P,  CROSS_VAV,  P, float,  N_S_C_H, oneArrayCrossed, above(3000), ownzelmCrossProduct_vav_32f_P,  ownOMP_zelmCrossProduct_vav_32f_P)
ARRAY_POINTER(zelmCrossProduct_vva_32f_P,  CROSS_VVA,  P, float,  N_C_S_H, oneArrayCrossed, above(3000), ownzelmCrossProduct_vva_32f_P,  ownOMP_zelmCrossProduct_vva_32f_P)
ARRAY_POINTER(zelmCrossProduct_vava_32f_P, CROSS_VAVA, P, float,  N_C_S_H, arraysCrossed,   above(3000), ownzelmCrossProduct_vava_32f_P, ownOMP_zelmCrossProduct_vava_32f_P)
ARRAY_POINTER(zelmCrossProduct_vav_64f_P,  CROSS_VAV,  P, double, N_S_C_H, oneArrayCrossed, above(3000), ownzelmCrossProduct_vav_64f_P,  ownOMP_zelmCrossProduct_vav_64f_P)
ARRAY_POINTER(zelmCrossProduct_vava_64f_P, CROSS_VAVA, P, double, N_C_S_H, arraysCrossed,   above(3000), ownzelmCrossProduct_vava_64f_P, ownOMP_zelmCrossProduct_vava_64f_P)

// No front: it runs on the calling thread whatever the count; this is meant.
//             exported function  arguments  type  order of tests  kernel
SINGLE_POINTER(zelmCrossProduct_vva_64f_P, CROSS_VVA, P, double, N_C_S_H, ownzelmCrossProduct_vva_64f_P)
// clang-format on
