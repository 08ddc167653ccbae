// Exported functions: QR decomposition of an array of matrices.
#include "zelmqrsignature.h"

// clang-format off
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmQRDecomp_ma_32f,   QR_FACTOR_MA, S, float,  N_C_Z_S_Shape,   twice, from(2801), from(2801), ownzelmQRDecomp_ma_32f,   ownzelmQRDecomp_ma_32f_S2,  ownOMP_zelmQRDecomp_ma_32f)
STRIDE_FIRST(zelmQRDecomp_ma_64f,   QR_FACTOR_MA, S, double, N_C_Z_S_Shape,   twice, from(2801), from(2801), ownzelmQRDecomp_ma_64f,   ownzelmQRDecomp_ma_64f_S2,  ownOMP_zelmQRDecomp_ma_64f)
STRIDE_FIRST(zelmQRDecomp_ma_32f_L, QR_FACTOR_MA, L, float,  N_C_Z_S_H_Shape, twice, from(1801), from(1801), ownzelmQRDecomp_ma_32f_L, ownzelmQRDecomp_ma_32f_LS2, ownOMP_zelmQRDecomp_ma_32f_L)
STRIDE_FIRST(zelmQRDecomp_ma_64f_L, QR_FACTOR_MA, L, double, N_C_Z_S_H_Shape, twice, from(1801), from(1801), ownzelmQRDecomp_ma_64f_L, ownzelmQRDecomp_ma_64f_LS2, ownOMP_zelmQRDecomp_ma_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmQRDecomp_ma_32f_P, QR_FACTOR_MA, P, float,  N_C_Z_S_H_Shape, twice, from(1801), ownzelmQRDecomp_ma_32f_P, ownOMP_zelmQRDecomp_ma_32f_P)
ARRAY_POINTER(zelmQRDecomp_ma_64f_P, QR_FACTOR_MA, P, double, N_C_Z_S_H_Shape, twice, from(1801), ownzelmQRDecomp_ma_64f_P, ownOMP_zelmQRDecomp_ma_64f_P)
// clang-format on
