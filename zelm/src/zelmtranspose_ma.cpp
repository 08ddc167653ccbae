// Exported functions: Transpose on arrays of matrices.
#include "zelmtransposesignature.h"

// clang-format off
// There is no front: arrays are called as single matrices are.
//             exported function  arguments layout type  order  kernels: unit strides, any
SINGLE(        zelmTranspose_ma_32f,   TRANSPOSE_MA, S, float,  N_C_Z_S,   ownzelmTranspose_ma_32f,   ownzelmTranspose_ma_32f_S2)
SINGLE(        zelmTranspose_ma_64f,   TRANSPOSE_MA, S, double, N_C_Z_S,   ownzelmTranspose_ma_64f,   ownzelmTranspose_ma_64f_S2)
SINGLE(        zelmTranspose_ma_32f_L, TRANSPOSE_MA, L, float,  N_C_Z_S_H, ownzelmTranspose_ma_32f_L, ownzelmTranspose_ma_32f_LS2)
SINGLE(        zelmTranspose_ma_64f_L, TRANSPOSE_MA, L, double, N_C_Z_S_H, ownzelmTranspose_ma_64f_L, ownzelmTranspose_ma_64f_LS2)
SINGLE_POINTER(zelmTranspose_ma_32f_P, TRANSPOSE_MA, P, float,  N_C_Z_S_H, ownzelmTranspose_ma_32f_P)
SINGLE_POINTER(zelmTranspose_ma_64f_P, TRANSPOSE_MA, P, double, N_C_Z_S_H, ownzelmTranspose_ma_64f_P)
// clang-format on
