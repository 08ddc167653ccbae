// Exported functions: DotProduct.
#include "zelmvectorsignature.h"

// clang-format off
//     exported function  arguments  type  order of tests  kernels: unit strides, any
SINGLE(zelmDotProduct_vv_32f, DOT_VV, S, float,  N_Z_S, ownzelmDotProduct_vv_32f, ownzelmDotProduct_vv_32f_S2)
SINGLE(zelmDotProduct_vv_64f, DOT_VV, S, double, N_Z_S, ownzelmDotProduct_vv_64f, ownzelmDotProduct_vv_64f_S2)

//             exported function  arguments  type  order of tests  kernel
SINGLE_POINTER(zelmDotProduct_vv_32f_P, DOT_VV, P, float,  N_Z_H, ownzelmDotProduct_vv_32f_P)
SINGLE_POINTER(zelmDotProduct_vv_64f_P, DOT_VV, P, double, N_Z_H, ownzelmDotProduct_vv_64f_P)

//           exported function  arguments  type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmDotProduct_vav_32f,    DOT_VAV,  S, float,  N_C_Z_S,   oneArrayMultiplied, above(5000), above(2620), ownzelmDotProduct_vav_32f,    ownzelmDotProduct_vav_32f_S2,   ownOMP_zelmDotProduct_vav_32f)
STRIDE_FIRST(zelmDotProduct_vava_32f,   DOT_VAVA, S, float,  N_C_Z_S,   arraysMultiplied,   above(5000), above(2620), ownzelmDotProduct_vava_32f,   ownzelmDotProduct_vava_32f_S2,  ownOMP_zelmDotProduct_vava_32f)
STRIDE_FIRST(zelmDotProduct_vav_64f,    DOT_VAV,  S, double, N_C_Z_S,   oneArrayMultiplied, above(3500), above(2000), ownzelmDotProduct_vav_64f,    ownzelmDotProduct_vav_64f_S2,   ownOMP_zelmDotProduct_vav_64f)
STRIDE_FIRST(zelmDotProduct_vava_64f,   DOT_VAVA, S, double, N_C_Z_S,   arraysMultiplied,   above(3500), above(2000), ownzelmDotProduct_vava_64f,   ownzelmDotProduct_vava_64f_S2,  ownOMP_zelmDotProduct_vava_64f)
STRIDE_FIRST(zelmDotProduct_vav_32f_L,  DOT_VAV,  L, float,  N_C_Z_S_H, oneArrayMultiplied, above(2400), above(2400), ownzelmDotProduct_vav_32f_L,  ownzelmDotProduct_vav_32f_LS2,  ownOMP_zelmDotProduct_vav_32f_L)
STRIDE_FIRST(zelmDotProduct_vava_32f_L, DOT_VAVA, L, float,  N_C_Z_S_H, arraysMultiplied,   above(2400), above(2400), ownzelmDotProduct_vava_32f_L, ownzelmDotProduct_vava_32f_LS2, ownOMP_zelmDotProduct_vava_32f_L)
STRIDE_FIRST(zelmDotProduct_vav_64f_L,  DOT_VAV,  L, double, N_C_Z_S_H, oneArrayMultiplied, above(4200), above(3300), ownzelmDotProduct_vav_64f_L,  ownzelmDotProduct_vav_64f_LS2,  ownOMP_zelmDotProduct_vav_64f_L)
STRIDE_FIRST(zelmDotProduct_vava_64f_L, DOT_VAVA, L, double, N_C_Z_S_H, arraysMultiplied,   above(4200), above(3300), ownzelmDotProduct_vava_64f_L, ownzelmDotProduct_vava_64f_LS2, ownOMP_zelmDotProduct_vava_64f_L)

//            exported function  arguments  type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmDotProduct_vav_32f_P,  DOT_VAV,  P, float,  N_C_Z_S_H, oneArrayMultiplied, above(2400), ownzelmDotProduct_vav_32f_P,  ownOMP_zelmDotProduct_vav_32f_P)
ARRAY_POINTER(zelmDotProduct_vava_32f_P, DOT_VAVA, P, float,  N_C_Z_S_H, arraysMultiplied,   above(2400), ownzelmDotProduct_vava_32f_P, ownOMP_zelmDotProduct_vava_32f_P)
ARRAY_POINTER(zelmDotProduct_vav_64f_P,  DOT_VAV,  P, double, N_C_Z_S_H, oneArrayMultiplied, above(2000), ownzelmDotProduct_vav_64f_P,  ownOMP_zelmDotProduct_vav_64f_P)
ARRAY_POINTER(zelmDotProduct_vava_64f_P, DOT_VAVA, P, double, N_C_Z_S_H, arraysMultiplied,   above(2000), ownzelmDotProduct_vava_64f_P, ownOMP_zelmDotProduct_vava_64f_P)
// clang-format on
