// Exported functions: Mul on a matrix and a vector.
#include "zelmmulvsignature.h"

// clang-format off
//             exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmMul_mv_32f, MV, S, float,  N_Z_M_S_MV, ownzelmMul_mv_32f, ownzelmMul_mv_32f_S2)
SINGLE(zelmMul_mv_64f, MV, S, double, N_Z_M_S_MV, ownzelmMul_mv_64f, ownzelmMul_mv_64f_S2)
SINGLE(zelmMul_tv_32f, TV, S, float,  N_Z_M_S_MV, ownzelmMul_tv_32f, ownzelmMul_tv_32f_S2)
SINGLE(zelmMul_tv_64f, TV, S, double, N_Z_M_S_MV, ownzelmMul_tv_64f, ownzelmMul_tv_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmMul_mv_32f_P, MV, P, float,  N_Z_M_H_MV, ownzelmMul_mv_32f_P)
SINGLE_POINTER(zelmMul_mv_64f_P, MV, P, double, N_Z_M_H_MV, ownzelmMul_mv_64f_P)
SINGLE_POINTER(zelmMul_tv_32f_P, TV, P, float,  N_Z_M_H_MV, ownzelmMul_tv_32f_P)
SINGLE_POINTER(zelmMul_tv_64f_P, TV, P, double, N_Z_M_H_MV, ownzelmMul_tv_64f_P)
// clang-format on
