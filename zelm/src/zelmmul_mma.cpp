// Exported functions: Mul on a single matrix and an array of matrices.
#include "zelmmulsignature.h"

// clang-format off
//           exported function  arguments  type    order of tests   estimate  forks: unit  any          kernels: unit strides  any                     front
STRIDE_FIRST(zelmMul_mma_32f,   MUL_MMA_S, float,  N_C_Z_M_S_Mul,   Touched,  above(2500), above(1440), ownzelmMul_mma_32f,    ownzelmMul_mma_32f_S2,  ownOMP_zelmMul_mma_32f)
STRIDE_FIRST(zelmMul_mta_32f,   MUL_MTA_S, float,  N_C_Z_M_S_Mul,   Touched,  above(2500), above(1440), ownzelmMul_mta_32f,    ownzelmMul_mta_32f_S2,  ownOMP_zelmMul_mta_32f)
STRIDE_FIRST(zelmMul_tma_32f,   MUL_TMA_S, float,  N_C_Z_M_S_Mul,   Touched,  above(2500), above(1440), ownzelmMul_tma_32f,    ownzelmMul_tma_32f_S2,  ownOMP_zelmMul_tma_32f)
STRIDE_FIRST(zelmMul_tta_32f,   MUL_TTA_S, float,  N_C_Z_M_S_Mul,   Touched,  above(2500), above(1440), ownzelmMul_tta_32f,    ownzelmMul_tta_32f_S2,  ownOMP_zelmMul_tta_32f)
STRIDE_FIRST(zelmMul_mma_64f,   MUL_MMA_S, double, N_C_Z_M_S_Mul,   Touched,  above(3600), above(1440), ownzelmMul_mma_64f,    ownzelmMul_mma_64f_S2,  ownOMP_zelmMul_mma_64f)
STRIDE_FIRST(zelmMul_mta_64f,   MUL_MTA_S, double, N_C_Z_M_S_Mul,   Touched,  above(3600), above(1440), ownzelmMul_mta_64f,    ownzelmMul_mta_64f_S2,  ownOMP_zelmMul_mta_64f)
STRIDE_FIRST(zelmMul_tma_64f,   MUL_TMA_S, double, N_C_Z_M_S_Mul,   Touched,  above(3600), above(1440), ownzelmMul_tma_64f,    ownzelmMul_tma_64f_S2,  ownOMP_zelmMul_tma_64f)
STRIDE_FIRST(zelmMul_tta_64f,   MUL_TTA_S, double, N_C_Z_M_S_Mul,   Touched,  above(3600), above(1440), ownzelmMul_tta_64f,    ownzelmMul_tta_64f_S2,  ownOMP_zelmMul_tta_64f)
STRIDE_FIRST(zelmMul_mma_32f_L, MUL_MMA_L, float,  N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_mma_32f_L,  ownzelmMul_mma_32f_LS2, ownOMP_zelmMul_mma_32f_L)
STRIDE_FIRST(zelmMul_mta_32f_L, MUL_MTA_L, float,  N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_mta_32f_L,  ownzelmMul_mta_32f_LS2, ownOMP_zelmMul_mta_32f_L)
STRIDE_FIRST(zelmMul_tma_32f_L, MUL_TMA_L, float,  N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_tma_32f_L,  ownzelmMul_tma_32f_LS2, ownOMP_zelmMul_tma_32f_L)
STRIDE_FIRST(zelmMul_tta_32f_L, MUL_TTA_L, float,  N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_tta_32f_L,  ownzelmMul_tta_32f_LS2, ownOMP_zelmMul_tta_32f_L)
STRIDE_FIRST(zelmMul_mma_64f_L, MUL_MMA_L, double, N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_mma_64f_L,  ownzelmMul_mma_64f_LS2, ownOMP_zelmMul_mma_64f_L)
STRIDE_FIRST(zelmMul_mta_64f_L, MUL_MTA_L, double, N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_mta_64f_L,  ownzelmMul_mta_64f_LS2, ownOMP_zelmMul_mta_64f_L)
STRIDE_FIRST(zelmMul_tma_64f_L, MUL_TMA_L, double, N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_tma_64f_L,  ownzelmMul_tma_64f_LS2, ownOMP_zelmMul_tma_64f_L)
STRIDE_FIRST(zelmMul_tta_64f_L, MUL_TTA_L, double, N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_tta_64f_L,  ownzelmMul_tta_64f_LS2, ownOMP_zelmMul_tta_64f_L)

//            exported function  arguments  type    order of tests   estimate  forks        kernel                front
ARRAY_POINTER(zelmMul_mma_32f_P, MUL_MMA_P, float,  N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_mma_32f_P, ownOMP_zelmMul_mma_32f_P)
ARRAY_POINTER(zelmMul_mta_32f_P, MUL_MTA_P, float,  N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_mta_32f_P, ownOMP_zelmMul_mta_32f_P)
ARRAY_POINTER(zelmMul_tma_32f_P, MUL_TMA_P, float,  N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_tma_32f_P, ownOMP_zelmMul_tma_32f_P)
ARRAY_POINTER(zelmMul_tta_32f_P, MUL_TTA_P, float,  N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_tta_32f_P, ownOMP_zelmMul_tta_32f_P)
ARRAY_POINTER(zelmMul_mma_64f_P, MUL_MMA_P, double, N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_mma_64f_P, ownOMP_zelmMul_mma_64f_P)
ARRAY_POINTER(zelmMul_mta_64f_P, MUL_MTA_P, double, N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_mta_64f_P, ownOMP_zelmMul_mta_64f_P)
ARRAY_POINTER(zelmMul_tma_64f_P, MUL_TMA_P, double, N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_tma_64f_P, ownOMP_zelmMul_tma_64f_P)
ARRAY_POINTER(zelmMul_tta_64f_P, MUL_TTA_P, double, N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_tta_64f_P, ownOMP_zelmMul_tta_64f_P)
// clang-format on
