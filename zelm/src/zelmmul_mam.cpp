// Exported functions: Mul on an array of matrices and a single one.
#include "zelmmulsignature.h"

// clang-format off
//           exported function  arguments  type    order of tests   estimate  forks: unit  any          kernels: unit strides  any                     front
STRIDE_FIRST(zelmMul_mam_32f,   MUL_MAM, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_mam_32f,    ownzelmMul_mam_32f_S2,  ownOMP_zelmMul_mam_32f)
STRIDE_FIRST(zelmMul_mat_32f,   MUL_MAT, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_mat_32f,    ownzelmMul_mat_32f_S2,  ownOMP_zelmMul_mat_32f)
STRIDE_FIRST(zelmMul_tam_32f,   MUL_TAM, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_tam_32f,    ownzelmMul_tam_32f_S2,  ownOMP_zelmMul_tam_32f)
STRIDE_FIRST(zelmMul_tat_32f,   MUL_TAT, S, float,  N_C_Z_M_S_Mul,   Touched{},  above(2500), above(1440), ownzelmMul_tat_32f,    ownzelmMul_tat_32f_S2,  ownOMP_zelmMul_tat_32f)
STRIDE_FIRST(zelmMul_mam_64f,   MUL_MAM, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_mam_64f,    ownzelmMul_mam_64f_S2,  ownOMP_zelmMul_mam_64f)
STRIDE_FIRST(zelmMul_mat_64f,   MUL_MAT, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_mat_64f,    ownzelmMul_mat_64f_S2,  ownOMP_zelmMul_mat_64f)
STRIDE_FIRST(zelmMul_tam_64f,   MUL_TAM, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_tam_64f,    ownzelmMul_tam_64f_S2,  ownOMP_zelmMul_tam_64f)
STRIDE_FIRST(zelmMul_tat_64f,   MUL_TAT, S, double, N_C_Z_M_S_Mul,   Touched{},  above(3600), above(1440), ownzelmMul_tat_64f,    ownzelmMul_tat_64f_S2,  ownOMP_zelmMul_tat_64f)
STRIDE_FIRST(zelmMul_mam_32f_L, MUL_MAM, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mam_32f_L,  ownzelmMul_mam_32f_LS2, ownOMP_zelmMul_mam_32f_L)
STRIDE_FIRST(zelmMul_mat_32f_L, MUL_MAT, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mat_32f_L,  ownzelmMul_mat_32f_LS2, ownOMP_zelmMul_mat_32f_L)
STRIDE_FIRST(zelmMul_tam_32f_L, MUL_TAM, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tam_32f_L,  ownzelmMul_tam_32f_LS2, ownOMP_zelmMul_tam_32f_L)
STRIDE_FIRST(zelmMul_tat_32f_L, MUL_TAT, L, float,  N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tat_32f_L,  ownzelmMul_tat_32f_LS2, ownOMP_zelmMul_tat_32f_L)
STRIDE_FIRST(zelmMul_mam_64f_L, MUL_MAM, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mam_64f_L,  ownzelmMul_mam_64f_LS2, ownOMP_zelmMul_mam_64f_L)
STRIDE_FIRST(zelmMul_mat_64f_L, MUL_MAT, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_mat_64f_L,  ownzelmMul_mat_64f_LS2, ownOMP_zelmMul_mat_64f_L)
STRIDE_FIRST(zelmMul_tam_64f_L, MUL_TAM, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tam_64f_L,  ownzelmMul_tam_64f_LS2, ownOMP_zelmMul_tam_64f_L)
STRIDE_FIRST(zelmMul_tat_64f_L, MUL_TAT, L, double, N_C_Z_M_S_H_Mul, Touched{},  above(3600), above(1440), ownzelmMul_tat_64f_L,  ownzelmMul_tat_64f_LS2, ownOMP_zelmMul_tat_64f_L)

//            exported function  arguments  type    order of tests   estimate  forks        kernel                front
ARRAY_POINTER(zelmMul_mam_32f_P, MUL_MAM, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mam_32f_P, ownOMP_zelmMul_mam_32f_P)
ARRAY_POINTER(zelmMul_mat_32f_P, MUL_MAT, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mat_32f_P, ownOMP_zelmMul_mat_32f_P)
ARRAY_POINTER(zelmMul_tam_32f_P, MUL_TAM, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tam_32f_P, ownOMP_zelmMul_tam_32f_P)
ARRAY_POINTER(zelmMul_tat_32f_P, MUL_TAT, P, float,  N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tat_32f_P, ownOMP_zelmMul_tat_32f_P)
ARRAY_POINTER(zelmMul_mam_64f_P, MUL_MAM, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mam_64f_P, ownOMP_zelmMul_mam_64f_P)
ARRAY_POINTER(zelmMul_mat_64f_P, MUL_MAT, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_mat_64f_P, ownOMP_zelmMul_mat_64f_P)
ARRAY_POINTER(zelmMul_tam_64f_P, MUL_TAM, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tam_64f_P, ownOMP_zelmMul_tam_64f_P)
ARRAY_POINTER(zelmMul_tat_64f_P, MUL_TAT, P, double, N_C_Z_M_S_H_Mul, Touched{},  above(1440), ownzelmMul_tat_64f_P, ownOMP_zelmMul_tat_64f_P)
// clang-format on
