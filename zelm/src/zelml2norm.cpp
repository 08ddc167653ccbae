// Exported functions: L2Norm.
#include "zelmvectorsignature.h"

// clang-format off
//     exported function  arguments  type  order of tests  kernels: unit strides, any
SINGLE(zelmL2Norm_v_32f, NORM_V, S, float,  N_Z_S, ownzelmL2Norm_v_32f, ownzelmL2Norm_v_32f_S2)
SINGLE(zelmL2Norm_v_64f, NORM_V, S, double, N_Z_S, ownzelmL2Norm_v_64f, ownzelmL2Norm_v_64f_S2)

//             exported function  arguments  type  order of tests  kernel
SINGLE_POINTER(zelmL2Norm_v_32f_P, NORM_V, P, float,  N_Z_H, ownzelmL2Norm_v_32f_P)
SINGLE_POINTER(zelmL2Norm_v_64f_P, NORM_V, P, double, N_Z_H, ownzelmL2Norm_v_64f_P)

//           exported function  arguments  type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmL2Norm_va_32f,   NORM_VA, S, float,  N_C_Z_S,   arrayElements, above(1500), above(1500), ownzelmL2Norm_va_32f,   ownzelmL2Norm_va_32f_S2,  ownOMP_zelmL2Norm_va_32f)
STRIDE_FIRST(zelmL2Norm_va_64f,   NORM_VA, S, double, N_C_Z_S,   arrayElements, above(1500), above(1500), ownzelmL2Norm_va_64f,   ownzelmL2Norm_va_64f_S2,  ownOMP_zelmL2Norm_va_64f)
STRIDE_FIRST(zelmL2Norm_va_32f_L, NORM_VA, L, float,  N_C_Z_S_H, arrayElements, above(1500), above(1500), ownzelmL2Norm_va_32f_L, ownzelmL2Norm_va_32f_LS2, ownOMP_zelmL2Norm_va_32f_L)
STRIDE_FIRST(zelmL2Norm_va_64f_L, NORM_VA, L, double, N_C_Z_S_H, arrayElements, above(1500), above(1500), ownzelmL2Norm_va_64f_L, ownzelmL2Norm_va_64f_LS2, ownOMP_zelmL2Norm_va_64f_L)

//            exported function  arguments  type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmL2Norm_va_32f_P, NORM_VA, P, float,  N_C_Z_S_H, arrayElements, above(1500), ownzelmL2Norm_va_32f_P, ownOMP_zelmL2Norm_va_32f_P)
ARRAY_POINTER(zelmL2Norm_va_64f_P, NORM_VA, P, double, N_C_Z_S_H, arrayElements, above(1500), ownzelmL2Norm_va_64f_P, ownOMP_zelmL2Norm_va_64f_P)
// clang-format on
