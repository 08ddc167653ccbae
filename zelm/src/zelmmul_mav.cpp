// Exported functions: Mul on an array of matrices and a single vector.
#include "zelmmulvsignature.h"

// clang-format off
// In 32f the standard layout forks earlier, with unit strides; this is meant.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmMul_mav_32f,   MAV, S, float,  N_C_Z_M_S_MV,   SingleVector{}, above(2500), above(1440), ownzelmMul_mav_32f,   ownzelmMul_mav_32f_S2,  ownOMP_zelmMul_mav_32f)
STRIDE_FIRST(zelmMul_mav_64f,   MAV, S, double, N_C_Z_M_S_MV,   SingleVector{}, above(3600), above(1440), ownzelmMul_mav_64f,   ownzelmMul_mav_64f_S2,  ownOMP_zelmMul_mav_64f)
STRIDE_FIRST(zelmMul_tav_32f,   TAV, S, float,  N_C_Z_M_S_MV,   SingleVector{}, above(2500), above(1440), ownzelmMul_tav_32f,   ownzelmMul_tav_32f_S2,  ownOMP_zelmMul_tav_32f)
STRIDE_FIRST(zelmMul_tav_64f,   TAV, S, double, N_C_Z_M_S_MV,   SingleVector{}, above(3600), above(1440), ownzelmMul_tav_64f,   ownzelmMul_tav_64f_S2,  ownOMP_zelmMul_tav_64f)
STRIDE_FIRST(zelmMul_mav_32f_L, MAV, L, float,  N_C_Z_M_S_H_MV, SingleVector{}, above(3600), above(1440), ownzelmMul_mav_32f_L, ownzelmMul_mav_32f_LS2, ownOMP_zelmMul_mav_32f_L)
STRIDE_FIRST(zelmMul_mav_64f_L, MAV, L, double, N_C_Z_M_S_H_MV, SingleVector{}, above(3600), above(1440), ownzelmMul_mav_64f_L, ownzelmMul_mav_64f_LS2, ownOMP_zelmMul_mav_64f_L)
STRIDE_FIRST(zelmMul_tav_32f_L, TAV, L, float,  N_C_Z_M_S_H_MV, SingleVector{}, above(3600), above(1440), ownzelmMul_tav_32f_L, ownzelmMul_tav_32f_LS2, ownOMP_zelmMul_tav_32f_L)
STRIDE_FIRST(zelmMul_tav_64f_L, TAV, L, double, N_C_Z_M_S_H_MV, SingleVector{}, above(3600), above(1440), ownzelmMul_tav_64f_L, ownzelmMul_tav_64f_LS2, ownOMP_zelmMul_tav_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmMul_mav_32f_P, MAV, P, float,  N_C_Z_M_S_H_MV, SingleVector{}, above(1440), ownzelmMul_mav_32f_P, ownOMP_zelmMul_mav_32f_P)
ARRAY_POINTER(zelmMul_mav_64f_P, MAV, P, double, N_C_Z_M_S_H_MV, SingleVector{}, above(1440), ownzelmMul_mav_64f_P, ownOMP_zelmMul_mav_64f_P)
ARRAY_POINTER(zelmMul_tav_32f_P, TAV, P, float,  N_C_Z_M_S_H_MV, SingleVector{}, above(1440), ownzelmMul_tav_32f_P, ownOMP_zelmMul_tav_32f_P)
ARRAY_POINTER(zelmMul_tav_64f_P, TAV, P, double, N_C_Z_M_S_H_MV, SingleVector{}, above(1440), ownzelmMul_tav_64f_P, ownOMP_zelmMul_tav_64f_P)
// clang-format on
