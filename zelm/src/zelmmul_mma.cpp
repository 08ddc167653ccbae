// Exported functions: Mul on a single matrix and an array of matrices.
#include "zelmmulsignature.h"

// clang-format off
//           exported function  arguments  type    order of tests   estimate  forks: unit  any          kernels: unit strides  any                     front
STRIDE_FIRST(zelmMul_mma_32f,   MUL_MMA, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_mma_32f,    ownzelmMul_mma_32f_S2,  ownOMP_zelmMul_mma_32f)
STRIDE_FIRST(zelmMul_mta_32f,   MUL_MTA, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_mta_32f,    ownzelmMul_mta_32f_S2,  ownOMP_zelmMul_mta_32f)
STRIDE_FIRST(zelmMul_tma_32f,   MUL_TMA, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_tma_32f,    ownzelmMul_tma_32f_S2,  ownOMP_zelmMul_tma_32f)
STRIDE_FIRST(zelmMul_tta_32f,   MUL_TTA, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_tta_32f,    ownzelmMul_tta_32f_S2,  ownOMP_zelmMul_tta_32f)
STRIDE_FIRST(zelmMul_mma_64f,   MUL_MMA, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_mma_64f,    ownzelmMul_mma_64f_S2,  ownOMP_zelmMul_mma_64f)
STRIDE_FIRST(zelmMul_mta_64f,   MUL_MTA, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_mta_64f,    ownzelmMul_mta_64f_S2,  ownOMP_zelmMul_mta_64f)
STRIDE_FIRST(zelmMul_tma_64f,   MUL_TMA, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_tma_64f,    ownzelmMul_tma_64f_S2,  ownOMP_zelmMul_tma_64f)
STRIDE_FIRST(zelmMul_tta_64f,   MUL_TTA, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_tta_64f,    ownzelmMul_tta_64f_S2,  ownOMP_zelmMul_tta_64f)
STRIDE_FIRST(zelmMul_mma_32f_L, MUL_MMA, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mma_32f_L,  ownzelmMul_mma_32f_LS2, ownOMP_zelmMul_mma_32f_L)
STRIDE_FIRST(zelmMul_mta_32f_L, MUL_MTA, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mta_32f_L,  ownzelmMul_mta_32f_LS2, ownOMP_zelmMul_mta_32f_L)
STRIDE_FIRST(zelmMul_tma_32f_L, MUL_TMA, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tma_32f_L,  ownzelmMul_tma_32f_LS2, ownOMP_zelmMul_tma_32f_L)
STRIDE_FIRST(zelmMul_tta_32f_L, MUL_TTA, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tta_32f_L,  ownzelmMul_tta_32f_LS2, ownOMP_zelmMul_tta_32f_L)
STRIDE_FIRST(zelmMul_mma_64f_L, MUL_MMA, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mma_64f_L,  ownzelmMul_mma_64f_LS2, ownOMP_zelmMul_mma_64f_L)
STRIDE_FIRST(zelmMul_mta_64f_L, MUL_MTA, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mta_64f_L,  ownzelmMul_mta_64f_LS2, ownOMP_zelmMul_mta_64f_L)
STRIDE_FIRST(zelmMul_tma_64f_L, MUL_TMA, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tma_64f_L,  ownzelmMul_tma_64f_LS2, ownOMP_zelmMul_tma_64f_L)
STRIDE_FIRST(zelmMul_tta_64f_L, MUL_TTA, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tta_64f_L,  ownzelmMul_tta_64f_LS2, ownOMP_zelmMul_tta_64f_L)

//            exported function  arguments  type    order of tests   estimate  forks        kernel                front
ARRAY_POINTER(zelmMul_mma_32f_P, MUL_MMA, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mma_32f_P, ownOMP_zelmMul_mma_32f_P)
ARRAY_POINTER(zelmMul_mta_32f_P, MUL_MTA, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mta_32f_P, ownOMP_zelmMul_mta_32f_P)
ARRAY_POINTER(zelmMul_tma_32f_P, MUL_TMA, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tma_32f_P, ownOMP_zelmMul_tma_32f_P)
ARRAY_POINTER(zelmMul_tta_32f_P, MUL_TTA, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tta_32f_P, ownOMP_zelmMul_tta_32f_P)
ARRAY_POINTER(zelmMul_mma_64f_P, MUL_MMA, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mma_64f_P, ownOMP_zelmMul_mma_64f_P)
ARRAY_POINTER(zelmMul_mta_64f_P, MUL_MTA, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mta_64f_P, ownOMP_zelmMul_mta_64f_P)
ARRAY_POINTER(zelmMul_tma_64f_P, MUL_TMA, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tma_64f_P, ownOMP_zelmMul_tma_64f_P)
ARRAY_POINTER(zelmMul_tta_64f_P, MUL_TTA, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tta_64f_P, ownOMP_zelmMul_tta_64f_P)
// clang-format on
