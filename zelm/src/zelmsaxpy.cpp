// Exported functions: Saxpy.
#include "zelmvectorsignature.h"

// clang-format off
//     exported function  arguments  type  order of tests  kernels: unit strides, any
SINGLE(zelmSaxpy_vv_32f, SAXPY_VV, S, float,  N_Z_S, ownzelmSaxpy_vv_32f, ownzelmSaxpy_vv_32f_S2)
SINGLE(zelmSaxpy_vv_64f, SAXPY_VV, S, double, N_Z_S, ownzelmSaxpy_vv_64f, ownzelmSaxpy_vv_64f_S2)

//             exported function  arguments  type  order of tests  kernel
SINGLE_POINTER(zelmSaxpy_vv_32f_P, SAXPY_VV, P, float,  N_Z_H, ownzelmSaxpy_vv_32f_P)
SINGLE_POINTER(zelmSaxpy_vv_64f_P, SAXPY_VV, P, double, N_Z_H, ownzelmSaxpy_vv_64f_P)

// The list layout of vva takes the same limit for any stride2 as for unit strides, in 32f alone; this is meant.
//           exported function  arguments  type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmSaxpy_vav_32f,    SAXPY_VAV,  S, float,  N_C_Z_S,   oneArrayCombined, above(3000), above(2000), ownzelmSaxpy_vav_32f,    ownzelmSaxpy_vav_32f_S2,   ownOMP_zelmSaxpy_vav_32f)
STRIDE_FIRST(zelmSaxpy_vva_32f,    SAXPY_VVA,  S, float,  N_C_Z_S,   oneArrayCombined, above(3000), above(2000), ownzelmSaxpy_vva_32f,    ownzelmSaxpy_vva_32f_S2,   ownOMP_zelmSaxpy_vva_32f)
STRIDE_FIRST(zelmSaxpy_vava_32f,   SAXPY_VAVA, S, float,  N_C_Z_S,   arraysCombined,   above(3000), above(2000), ownzelmSaxpy_vava_32f,   ownzelmSaxpy_vava_32f_S2,  ownOMP_zelmSaxpy_vava_32f)
STRIDE_FIRST(zelmSaxpy_vav_64f,    SAXPY_VAV,  S, double, N_C_Z_S,   oneArrayCombined, above(3000), above(1200), ownzelmSaxpy_vav_64f,    ownzelmSaxpy_vav_64f_S2,   ownOMP_zelmSaxpy_vav_64f)
STRIDE_FIRST(zelmSaxpy_vva_64f,    SAXPY_VVA,  S, double, N_C_Z_S,   oneArrayCombined, above(3000), above(1200), ownzelmSaxpy_vva_64f,    ownzelmSaxpy_vva_64f_S2,   ownOMP_zelmSaxpy_vva_64f)
STRIDE_FIRST(zelmSaxpy_vava_64f,   SAXPY_VAVA, S, double, N_C_Z_S,   arraysCombined,   above(3000), above(1200), ownzelmSaxpy_vava_64f,   ownzelmSaxpy_vava_64f_S2,  ownOMP_zelmSaxpy_vava_64f)
STRIDE_FIRST(zelmSaxpy_vav_32f_L,  SAXPY_VAV,  L, float,  N_C_Z_S_H, oneArrayCombined, above(1500), above(1000), ownzelmSaxpy_vav_32f_L,  ownzelmSaxpy_vav_32f_LS2,  ownOMP_zelmSaxpy_vav_32f_L)
STRIDE_FIRST(zelmSaxpy_vva_32f_L,  SAXPY_VVA,  L, float,  N_C_Z_S_H, oneArrayCombined, above(1500), above(1500), ownzelmSaxpy_vva_32f_L,  ownzelmSaxpy_vva_32f_LS2,  ownOMP_zelmSaxpy_vva_32f_L)
STRIDE_FIRST(zelmSaxpy_vava_32f_L, SAXPY_VAVA, L, float,  N_C_Z_S_H, arraysCombined,   above(1500), above(1000), ownzelmSaxpy_vava_32f_L, ownzelmSaxpy_vava_32f_LS2, ownOMP_zelmSaxpy_vava_32f_L)
STRIDE_FIRST(zelmSaxpy_vav_64f_L,  SAXPY_VAV,  L, double, N_C_Z_S_H, oneArrayCombined, above(1000), above(1000), ownzelmSaxpy_vav_64f_L,  ownzelmSaxpy_vav_64f_LS2,  ownOMP_zelmSaxpy_vav_64f_L)
STRIDE_FIRST(zelmSaxpy_vva_64f_L,  SAXPY_VVA,  L, double, N_C_Z_S_H, oneArrayCombined, above(1000), above(1000), ownzelmSaxpy_vva_64f_L,  ownzelmSaxpy_vva_64f_LS2,  ownOMP_zelmSaxpy_vva_64f_L)
STRIDE_FIRST(zelmSaxpy_vava_64f_L, SAXPY_VAVA, L, double, N_C_Z_S_H, arraysCombined,   above(1000), above(1000), ownzelmSaxpy_vava_64f_L, ownzelmSaxpy_vava_64f_LS2, ownOMP_zelmSaxpy_vava_64f_L)

//            exported function  arguments  type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmSaxpy_vav_32f_P,  SAXPY_VAV,  P, float,  N_C_Z_S_H, oneArrayCombined, above(1200), ownzelmSaxpy_vav_32f_P,  ownOMP_zelmSaxpy_vav_32f_P)
ARRAY_POINTER(zelmSaxpy_vva_32f_P,  SAXPY_VVA,  P, float,  N_C_Z_S_H, oneArrayCombined, above(1200), ownzelmSaxpy_vva_32f_P,  ownOMP_zelmSaxpy_vva_32f_P)
ARRAY_POINTER(zelmSaxpy_vava_32f_P, SAXPY_VAVA, P, float,  N_C_Z_S_H, arraysCombined,   above(1200), ownzelmSaxpy_vava_32f_P, ownOMP_zelmSaxpy_vava_32f_P)
ARRAY_POINTER(zelmSaxpy_vav_64f_P,  SAXPY_VAV,  P, double, N_C_Z_S_H, oneArrayCombined, above(1200), ownzelmSaxpy_vav_64f_P,  ownOMP_zelmSaxpy_vav_64f_P)
ARRAY_POINTER(zelmSaxpy_vva_64f_P,  SAXPY_VVA,  P, double, N_C_Z_S_H, oneArrayCombined, above(1200), ownzelmSaxpy_vva_64f_P,  ownOMP_zelmSaxpy_vva_64f_P)
ARRAY_POINTER(zelmSaxpy_vava_64f_P, SAXPY_VAVA, P, double, N_C_Z_S_H, arraysCombined,   above(1200), ownzelmSaxpy_vava_64f_P, ownOMP_zelmSaxpy_vava_64f_P)
// clang-format on
