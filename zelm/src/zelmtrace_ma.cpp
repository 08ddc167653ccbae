// Exported functions: traces of an array of matrices.
#include "zelmtracesignature.h"

// clang-format off
//           exported function  arguments layout type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmTrace_ma_32f,   TRACE_MA, S, float,  N_C_Z_S,   sides, from(3601), from(3601), ownzelmTrace_ma_32f,   ownzelmTrace_ma_32f_S2,  ownOMP_zelmTrace_ma_32f)
STRIDE_FIRST(zelmTrace_ma_64f,   TRACE_MA, S, double, N_C_Z_S,   sides, from(3601), from(3601), ownzelmTrace_ma_64f,   ownzelmTrace_ma_64f_S2,  ownOMP_zelmTrace_ma_64f)
STRIDE_FIRST(zelmTrace_ma_32f_L, TRACE_MA, L, float,  N_C_Z_S_H, sides, from(3601), from(3601), ownzelmTrace_ma_32f_L, ownzelmTrace_ma_32f_LS2, ownOMP_zelmTrace_ma_32f_L)
STRIDE_FIRST(zelmTrace_ma_64f_L, TRACE_MA, L, double, N_C_Z_S_H, sides, from(3601), from(3601), ownzelmTrace_ma_64f_L, ownzelmTrace_ma_64f_LS2, ownOMP_zelmTrace_ma_64f_L)

//            exported function  arguments layout type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmTrace_ma_32f_P, TRACE_MA, P, float,  N_C_Z_S_H, sides, from(3601), ownzelmTrace_ma_32f_P, ownOMP_zelmTrace_ma_32f_P)
ARRAY_POINTER(zelmTrace_ma_64f_P, TRACE_MA, P, double, N_C_Z_S_H, sides, from(3601), ownzelmTrace_ma_64f_P, ownOMP_zelmTrace_ma_64f_P)
// clang-format on
