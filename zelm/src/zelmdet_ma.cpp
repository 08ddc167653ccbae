// Exported functions: determinants of an array of matrices.
#include "zelmdetsignature.h"

// clang-format off
//           exported function  arguments layout type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmDet_ma_32f,   DET_MA, S, float,  N_C_Z_S,   sides, from(14401), from(14401), ownzelmDet_ma_32f,   ownzelmDet_ma_32f_S2,  ownOMP_zelmDet_ma_32f)
STRIDE_FIRST(zelmDet_ma_64f,   DET_MA, S, double, N_C_Z_S,   sides, from(14401), from(14401), ownzelmDet_ma_64f,   ownzelmDet_ma_64f_S2,  ownOMP_zelmDet_ma_64f)
STRIDE_FIRST(zelmDet_ma_32f_L, DET_MA, L, float,  N_C_Z_S_H, sides, from(14401), from(14401), ownzelmDet_ma_32f_L, ownzelmDet_ma_32f_LS2, ownOMP_zelmDet_ma_32f_L)
STRIDE_FIRST(zelmDet_ma_64f_L, DET_MA, L, double, N_C_Z_S_H, sides, from(14401), from(14401), ownzelmDet_ma_64f_L, ownzelmDet_ma_64f_LS2, ownOMP_zelmDet_ma_64f_L)

//            exported function  arguments layout type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmDet_ma_32f_P, DET_MA, P, float,  N_C_Z_S_H, sides, from(14401), ownzelmDet_ma_32f_P, ownOMP_zelmDet_ma_32f_P)
ARRAY_POINTER(zelmDet_ma_64f_P, DET_MA, P, double, N_C_Z_S_H, sides, from(14401), ownzelmDet_ma_64f_P, ownOMP_zelmDet_ma_64f_P)
// clang-format on
