// Exported functions: Mul on arrays of matrices and vectors.
#include "zelmmulvsignature.h"

// clang-format off
// In 32f the standard layout forks earlier, with unit strides; this is meant.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmMul_mava_32f,   MAVA, S, float,  N_C_Z_M_S_MV,   NoSingle{}, above(2500), above(1440), ownzelmMul_mava_32f,   ownzelmMul_mava_32f_S2,  ownOMP_zelmMul_mava_32f)
STRIDE_FIRST(zelmMul_mava_64f,   MAVA, S, double, N_C_Z_M_S_MV,   NoSingle{}, above(3600), above(1440), ownzelmMul_mava_64f,   ownzelmMul_mava_64f_S2,  ownOMP_zelmMul_mava_64f)
STRIDE_FIRST(zelmMul_tava_32f,   TAVA, S, float,  N_C_Z_M_S_MV,   NoSingle{}, above(2500), above(1440), ownzelmMul_tava_32f,   ownzelmMul_tava_32f_S2,  ownOMP_zelmMul_tava_32f)
STRIDE_FIRST(zelmMul_tava_64f,   TAVA, S, double, N_C_Z_M_S_MV,   NoSingle{}, above(3600), above(1440), ownzelmMul_tava_64f,   ownzelmMul_tava_64f_S2,  ownOMP_zelmMul_tava_64f)
STRIDE_FIRST(zelmMul_mava_32f_L, MAVA, L, float,  N_C_Z_M_S_H_MV, NoSingle{}, above(3600), above(1440), ownzelmMul_mava_32f_L, ownzelmMul_mava_32f_LS2, ownOMP_zelmMul_mava_32f_L)
STRIDE_FIRST(zelmMul_mava_64f_L, MAVA, L, double, N_C_Z_M_S_H_MV, NoSingle{}, above(3600), above(1440), ownzelmMul_mava_64f_L, ownzelmMul_mava_64f_LS2, ownOMP_zelmMul_mava_64f_L)
STRIDE_FIRST(zelmMul_tava_32f_L, TAVA, L, float,  N_C_Z_M_S_H_MV, NoSingle{}, above(3600), above(1440), ownzelmMul_tava_32f_L, ownzelmMul_tava_32f_LS2, ownOMP_zelmMul_tava_32f_L)
STRIDE_FIRST(zelmMul_tava_64f_L, TAVA, L, double, N_C_Z_M_S_H_MV, NoSingle{}, above(3600), above(1440), ownzelmMul_tava_64f_L, ownzelmMul_tava_64f_LS2, ownOMP_zelmMul_tava_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmMul_mava_32f_P, MAVA, P, float,  N_C_Z_M_S_H_MV, NoSingle{}, above(1440), ownzelmMul_mava_32f_P, ownOMP_zelmMul_mava_32f_P)
ARRAY_POINTER(zelmMul_mava_64f_P, MAVA, P, double, N_C_Z_M_S_H_MV, NoSingle{}, above(1440), ownzelmMul_mava_64f_P, ownOMP_zelmMul_mava_64f_P)
ARRAY_POINTER(zelmMul_tava_32f_P, TAVA, P, float,  N_C_Z_M_S_H_MV, NoSingle{}, above(1440), ownzelmMul_tava_32f_P, ownOMP_zelmMul_tava_32f_P)
ARRAY_POINTER(zelmMul_tava_64f_P, TAVA, P, double, N_C_Z_M_S_H_MV, NoSingle{}, above(1440), ownzelmMul_tava_64f_P, ownOMP_zelmMul_tava_64f_P)
// clang-format on
