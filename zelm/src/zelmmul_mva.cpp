// Exported functions: Mul on a single matrix and an array of vectors.
#include "zelmmulvsignature.h"

// clang-format off
// In 32f the standard layout forks earlier, with unit strides; this is meant.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmMul_mva_32f,   MVA, S, float,  N_C_Z_M_S_MV,   SingleMatrix{}, above(2500), above(1440), ownzelmMul_mva_32f,   ownzelmMul_mva_32f_S2,  ownOMP_zelmMul_mva_32f)
STRIDE_FIRST(zelmMul_mva_64f,   MVA, S, double, N_C_Z_M_S_MV,   SingleMatrix{}, above(3600), above(1440), ownzelmMul_mva_64f,   ownzelmMul_mva_64f_S2,  ownOMP_zelmMul_mva_64f)
STRIDE_FIRST(zelmMul_tva_32f,   TVA, S, float,  N_C_Z_M_S_MV,   SingleMatrix{}, above(2500), above(1440), ownzelmMul_tva_32f,   ownzelmMul_tva_32f_S2,  ownOMP_zelmMul_tva_32f)
STRIDE_FIRST(zelmMul_tva_64f,   TVA, S, double, N_C_Z_M_S_MV,   SingleMatrix{}, above(3600), above(1440), ownzelmMul_tva_64f,   ownzelmMul_tva_64f_S2,  ownOMP_zelmMul_tva_64f)
STRIDE_FIRST(zelmMul_mva_32f_L, MVA, L, float,  N_C_Z_M_S_H_MV, SingleMatrix{}, above(3600), above(1440), ownzelmMul_mva_32f_L, ownzelmMul_mva_32f_LS2, ownOMP_zelmMul_mva_32f_L)
STRIDE_FIRST(zelmMul_mva_64f_L, MVA, L, double, N_C_Z_M_S_H_MV, SingleMatrix{}, above(3600), above(1440), ownzelmMul_mva_64f_L, ownzelmMul_mva_64f_LS2, ownOMP_zelmMul_mva_64f_L)
STRIDE_FIRST(zelmMul_tva_32f_L, TVA, L, float,  N_C_Z_M_S_H_MV, SingleMatrix{}, above(3600), above(1440), ownzelmMul_tva_32f_L, ownzelmMul_tva_32f_LS2, ownOMP_zelmMul_tva_32f_L)
STRIDE_FIRST(zelmMul_tva_64f_L, TVA, L, double, N_C_Z_M_S_H_MV, SingleMatrix{}, above(3600), above(1440), ownzelmMul_tva_64f_L, ownzelmMul_tva_64f_LS2, ownOMP_zelmMul_tva_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmMul_mva_32f_P, MVA, P, float,  N_C_Z_M_S_H_MV, SingleMatrix{}, above(1440), ownzelmMul_mva_32f_P, ownOMP_zelmMul_mva_32f_P)
ARRAY_POINTER(zelmMul_mva_64f_P, MVA, P, double, N_C_Z_M_S_H_MV, SingleMatrix{}, above(1440), ownzelmMul_mva_64f_P, ownOMP_zelmMul_mva_64f_P)
ARRAY_POINTER(zelmMul_tva_32f_P, TVA, P, float,  N_C_Z_M_S_H_MV, SingleMatrix{}, above(1440), ownzelmMul_tva_32f_P, ownOMP_zelmMul_tva_32f_P)
ARRAY_POINTER(zelmMul_tva_64f_P, TVA, P, double, N_C_Z_M_S_H_MV, SingleMatrix{}, above(1440), ownzelmMul_tva_64f_P, ownOMP_zelmMul_tva_64f_P)
// clang-format on
