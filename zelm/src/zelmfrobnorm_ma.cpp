// Exported functions: Frobenius norms of an array of matrices.
#include "zelmfrobnormsignature.h"

// clang-format off
// The limits follow no pattern: they are the members' own.
//           exported function  arguments layout type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmFrobNorm_ma_32f,   FROBNORM_MA, S, float,  N_C_Z_S,   elements, from(2501), from(1801), ownzelmFrobNorm_ma_32f,   ownzelmFrobNorm_ma_32f_S2,  ownOMP_zelmFrobNorm_ma_32f)
STRIDE_FIRST(zelmFrobNorm_ma_64f,   FROBNORM_MA, S, double, N_C_Z_S,   elements, from(1801), from(1501), ownzelmFrobNorm_ma_64f,   ownzelmFrobNorm_ma_64f_S2,  ownOMP_zelmFrobNorm_ma_64f)
STRIDE_FIRST(zelmFrobNorm_ma_32f_L, FROBNORM_MA, L, float,  N_C_Z_S_H, elements, from(1601), from(1601), ownzelmFrobNorm_ma_32f_L, ownzelmFrobNorm_ma_32f_LS2, ownOMP_zelmFrobNorm_ma_32f_L)
STRIDE_FIRST(zelmFrobNorm_ma_64f_L, FROBNORM_MA, L, double, N_C_Z_S_H, elements, from(1601), from(1601), ownzelmFrobNorm_ma_64f_L, ownzelmFrobNorm_ma_64f_LS2, ownOMP_zelmFrobNorm_ma_64f_L)

//            exported function  arguments layout type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmFrobNorm_ma_32f_P, FROBNORM_MA, P, float,  N_C_Z_S_H, elements, from(1501), ownzelmFrobNorm_ma_32f_P, ownOMP_zelmFrobNorm_ma_32f_P)
ARRAY_POINTER(zelmFrobNorm_ma_64f_P, FROBNORM_MA, P, double, N_C_Z_S_H, elements, from(2501), ownzelmFrobNorm_ma_64f_P, ownOMP_zelmFrobNorm_ma_64f_P)
// clang-format on
