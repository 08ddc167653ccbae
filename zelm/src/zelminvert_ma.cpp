// Exported functions: inverses of an array of matrices.
#include "zelminvertsignature.h"

// clang-format off
// One limit stands out; this is meant.
//           exported function  arguments layout type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmInvert_ma_32f,   INVERT_MA, S, float,  N_C_Z_S_Elements,   twoSides, from(3601), from(2501), ownzelmInvert_ma_32f,   ownzelmInvert_ma_32f_S2,  ownOMP_zelmInvert_ma_32f)
STRIDE_FIRST(zelmInvert_ma_64f,   INVERT_MA, S, double, N_C_Z_S_Elements,   twoSides, from(2501), from(2501), ownzelmInvert_ma_64f,   ownzelmInvert_ma_64f_S2,  ownOMP_zelmInvert_ma_64f)
STRIDE_FIRST(zelmInvert_ma_32f_L, INVERT_MA, L, float,  N_C_Z_S_H_Elements, twoSides, from(2501), from(2501), ownzelmInvert_ma_32f_L, ownzelmInvert_ma_32f_LS2, ownOMP_zelmInvert_ma_32f_L)
STRIDE_FIRST(zelmInvert_ma_64f_L, INVERT_MA, L, double, N_C_Z_S_H_Elements, twoSides, from(2501), from(2501), ownzelmInvert_ma_64f_L, ownzelmInvert_ma_64f_LS2, ownOMP_zelmInvert_ma_64f_L)

//            exported function  arguments layout type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmInvert_ma_32f_P, INVERT_MA, P, float,  N_C_Z_S_H_Elements, twoSides, from(2501), ownzelmInvert_ma_32f_P, ownOMP_zelmInvert_ma_32f_P)
ARRAY_POINTER(zelmInvert_ma_64f_P, INVERT_MA, P, double, N_C_Z_S_H_Elements, twoSides, from(2501), ownzelmInvert_ma_64f_P, ownOMP_zelmInvert_ma_64f_P)
// clang-format on
