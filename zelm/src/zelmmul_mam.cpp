// Exported functions: Mul on an array of matrices and a single one.
#include "zelmmulsignature.h"

// clang-format off
//           exported function  arguments  type    order of tests   estimate  forks: unit  any          kernels: unit strides  any                     front
STRIDE_FIRST(zelmMul_mam_32f,   MUL_MAM_S, float,  N_C_Z_M_S_Mul,   Touched,  above(2500), above(1440), ownzelmMul_mam_32f,    ownzelmMul_mam_32f_S2,  ownOMP_zelmMul_mam_32f)
STRIDE_FIRST(zelmMul_mat_32f,   MUL_MAT_S, float,  N_C_Z_M_S_Mul,   Touched,  above(2500), above(1440), ownzelmMul_mat_32f,    ownzelmMul_mat_32f_S2,  ownOMP_zelmMul_mat_32f)
STRIDE_FIRST(zelmMul_tam_32f,   MUL_TAM_S, float,  N_C_Z_M_S_Mul,   Touched,  above(2500), above(1440), ownzelmMul_tam_32f,    ownzelmMul_tam_32f_S2,  ownOMP_zelmMul_tam_32f)
STRIDE_FIRST(zelmMul_tat_32f,   MUL_TAT_S, float,  N_C_Z_M_S_Mul,   Touched,  above(2500), above(1440), ownzelmMul_tat_32f,    ownzelmMul_tat_32f_S2,  ownOMP_zelmMul_tat_32f)
STRIDE_FIRST(zelmMul_mam_64f,   MUL_MAM_S, double, N_C_Z_M_S_Mul,   Touched,  above(3600), above(1440), ownzelmMul_mam_64f,    ownzelmMul_mam_64f_S2,  ownOMP_zelmMul_mam_64f)
STRIDE_FIRST(zelmMul_mat_64f,   MUL_MAT_S, double, N_C_Z_M_S_Mul,   Touched,  above(3600), above(1440), ownzelmMul_mat_64f,    ownzelmMul_mat_64f_S2,  ownOMP_zelmMul_mat_64f)
STRIDE_FIRST(zelmMul_tam_64f,   MUL_TAM_S, double, N_C_Z_M_S_Mul,   Touched,  above(3600), above(1440), ownzelmMul_tam_64f,    ownzelmMul_tam_64f_S2,  ownOMP_zelmMul_tam_64f)
STRIDE_FIRST(zelmMul_tat_64f,   MUL_TAT_S, double, N_C_Z_M_S_Mul,   Touched,  above(3600), above(1440), ownzelmMul_tat_64f,    ownzelmMul_tat_64f_S2,  ownOMP_zelmMul_tat_64f)
STRIDE_FIRST(zelmMul_mam_32f_L, MUL_MAM_L, float,  N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_mam_32f_L,  ownzelmMul_mam_32f_LS2, ownOMP_zelmMul_mam_32f_L)
STRIDE_FIRST(zelmMul_mat_32f_L, MUL_MAT_L, float,  N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_mat_32f_L,  ownzelmMul_mat_32f_LS2, ownOMP_zelmMul_mat_32f_L)
STRIDE_FIRST(zelmMul_tam_32f_L, MUL_TAM_L, float,  N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_tam_32f_L,  ownzelmMul_tam_32f_LS2, ownOMP_zelmMul_tam_32f_L)
STRIDE_FIRST(zelmMul_tat_32f_L, MUL_TAT_L, float,  N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_tat_32f_L,  ownzelmMul_tat_32f_LS2, ownOMP_zelmMul_tat_32f_L)
STRIDE_FIRST(zelmMul_mam_64f_L, MUL_MAM_L, double, N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_mam_64f_L,  ownzelmMul_mam_64f_LS2, ownOMP_zelmMul_mam_64f_L)
STRIDE_FIRST(zelmMul_mat_64f_L, MUL_MAT_L, double, N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_mat_64f_L,  ownzelmMul_mat_64f_LS2, ownOMP_zelmMul_mat_64f_L)
STRIDE_FIRST(zelmMul_tam_64f_L, MUL_TAM_L, double, N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_tam_64f_L,  ownzelmMul_tam_64f_LS2, ownOMP_zelmMul_tam_64f_L)
STRIDE_FIRST(zelmMul_tat_64f_L, MUL_TAT_L, double, N_C_Z_M_S_H_Mul, Touched,  above(3600), above(1440), ownzelmMul_tat_64f_L,  ownzelmMul_tat_64f_LS2, ownOMP_zelmMul_tat_64f_L)

//            exported function  arguments  type    order of tests   estimate  forks        kernel                front
ARRAY_POINTER(zelmMul_mam_32f_P, MUL_MAM_P, float,  N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_mam_32f_P, ownOMP_zelmMul_mam_32f_P)
ARRAY_POINTER(zelmMul_mat_32f_P, MUL_MAT_P, float,  N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_mat_32f_P, ownOMP_zelmMul_mat_32f_P)
ARRAY_POINTER(zelmMul_tam_32f_P, MUL_TAM_P, float,  N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_tam_32f_P, ownOMP_zelmMul_tam_32f_P)
ARRAY_POINTER(zelmMul_tat_32f_P, MUL_TAT_P, float,  N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_tat_32f_P, ownOMP_zelmMul_tat_32f_P)
ARRAY_POINTER(zelmMul_mam_64f_P, MUL_MAM_P, double, N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_mam_64f_P, ownOMP_zelmMul_mam_64f_P)
ARRAY_POINTER(zelmMul_mat_64f_P, MUL_MAT_P, double, N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_mat_64f_P, ownOMP_zelmMul_mat_64f_P)
ARRAY_POINTER(zelmMul_tam_64f_P, MUL_TAM_P, double, N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_tam_64f_P, ownOMP_zelmMul_tam_64f_P)
ARRAY_POINTER(zelmMul_tat_64f_P, MUL_TAT_P, double, N_C_Z_M_S_H_Mul, Touched,  above(1440), ownzelmMul_tat_64f_P, ownOMP_zelmMul_tat_64f_P)
// clang-format on
