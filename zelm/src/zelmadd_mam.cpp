// Exported functions: Add on an array of matrices and a single one.
#include "zelmadd.h"

// clang-format off
// The size test of mam in the standard layout stands behind the strides, in this form alone.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmAdd_mam_32f,   MAM_S, float,  N_C_S_Z,   OneArray, from(3000), from(2000), ownzelmAdd_mam_32f,   ownzelmAdd_mam_32f_S2,  ownOMP_zelmAdd_mam_32f)
STRIDE_FIRST(zelmAdd_mat_32f,   MAT_S, float,  N_C_Z_S,   OneArray, from(3000), from(2000), ownzelmAdd_mat_32f,   ownzelmAdd_mat_32f_S2,  ownOMP_zelmAdd_mat_32f)
STRIDE_FIRST(zelmAdd_tam_32f,   TAM_S, float,  N_C_Z_S,   OneArray, from(3000), from(2000), ownzelmAdd_tam_32f,   ownzelmAdd_tam_32f_S2,  ownOMP_zelmAdd_tam_32f)
STRIDE_FIRST(zelmAdd_tat_32f,   TAT_S, float,  N_C_Z_S,   OneArray, from(3000), from(2000), ownzelmAdd_tat_32f,   ownzelmAdd_tat_32f_S2,  ownOMP_zelmAdd_tat_32f)
STRIDE_FIRST(zelmAdd_mam_64f,   MAM_S, double, N_C_S_Z,   OneArray, from(2000), from(2000), ownzelmAdd_mam_64f,   ownzelmAdd_mam_64f_S2,  ownOMP_zelmAdd_mam_64f)
STRIDE_FIRST(zelmAdd_mat_64f,   MAT_S, double, N_C_Z_S,   OneArray, from(2000), from(2000), ownzelmAdd_mat_64f,   ownzelmAdd_mat_64f_S2,  ownOMP_zelmAdd_mat_64f)
STRIDE_FIRST(zelmAdd_tam_64f,   TAM_S, double, N_C_Z_S,   OneArray, from(2000), from(2000), ownzelmAdd_tam_64f,   ownzelmAdd_tam_64f_S2,  ownOMP_zelmAdd_tam_64f)
STRIDE_FIRST(zelmAdd_tat_64f,   TAT_S, double, N_C_Z_S,   OneArray, from(2000), from(2000), ownzelmAdd_tat_64f,   ownzelmAdd_tat_64f_S2,  ownOMP_zelmAdd_tat_64f)
STRIDE_FIRST(zelmAdd_mam_32f_L, MAM_L, float,  N_C_Z_S_H, OneArray, from(2000), from(2000), ownzelmAdd_mam_32f_L, ownzelmAdd_mam_32f_LS2, ownOMP_zelmAdd_mam_32f_L)
STRIDE_FIRST(zelmAdd_mat_32f_L, MAT_L, float,  N_C_Z_S_H, OneArray, from(2000), from(2000), ownzelmAdd_mat_32f_L, ownzelmAdd_mat_32f_LS2, ownOMP_zelmAdd_mat_32f_L)
STRIDE_FIRST(zelmAdd_tam_32f_L, TAM_L, float,  N_C_Z_S_H, OneArray, from(2000), from(2000), ownzelmAdd_tam_32f_L, ownzelmAdd_tam_32f_LS2, ownOMP_zelmAdd_tam_32f_L)
STRIDE_FIRST(zelmAdd_tat_32f_L, TAT_L, float,  N_C_Z_S_H, OneArray, from(2000), from(2000), ownzelmAdd_tat_32f_L, ownzelmAdd_tat_32f_LS2, ownOMP_zelmAdd_tat_32f_L)
STRIDE_FIRST(zelmAdd_mam_64f_L, MAM_L, double, N_C_Z_S_H, OneArray, from(2000), from(2000), ownzelmAdd_mam_64f_L, ownzelmAdd_mam_64f_LS2, ownOMP_zelmAdd_mam_64f_L)
STRIDE_FIRST(zelmAdd_mat_64f_L, MAT_L, double, N_C_Z_S_H, OneArray, from(2000), from(2000), ownzelmAdd_mat_64f_L, ownzelmAdd_mat_64f_LS2, ownOMP_zelmAdd_mat_64f_L)
STRIDE_FIRST(zelmAdd_tam_64f_L, TAM_L, double, N_C_Z_S_H, OneArray, from(2000), from(2000), ownzelmAdd_tam_64f_L, ownzelmAdd_tam_64f_LS2, ownOMP_zelmAdd_tam_64f_L)
STRIDE_FIRST(zelmAdd_tat_64f_L, TAT_L, double, N_C_Z_S_H, OneArray, from(2000), from(2000), ownzelmAdd_tat_64f_L, ownzelmAdd_tat_64f_LS2, ownOMP_zelmAdd_tat_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmAdd_mam_32f_P, MAM_P, float,  N_C_Z_S_H, OneArray, from(2000), ownzelmAdd_mam_32f_P, ownOMP_zelmAdd_mam_32f_P)
ARRAY_POINTER(zelmAdd_mat_32f_P, MAT_P, float,  N_C_Z_S_H, OneArray, from(2000), ownzelmAdd_mat_32f_P, ownOMP_zelmAdd_mat_32f_P)
ARRAY_POINTER(zelmAdd_tam_32f_P, TAM_P, float,  N_C_Z_S_H, OneArray, from(2000), ownzelmAdd_tam_32f_P, ownOMP_zelmAdd_tam_32f_P)
ARRAY_POINTER(zelmAdd_tat_32f_P, TAT_P, float,  N_C_Z_S_H, OneArray, from(2000), ownzelmAdd_tat_32f_P, ownOMP_zelmAdd_tat_32f_P)
ARRAY_POINTER(zelmAdd_mam_64f_P, MAM_P, double, N_C_Z_S_H, OneArray, from(2000), ownzelmAdd_mam_64f_P, ownOMP_zelmAdd_mam_64f_P)
ARRAY_POINTER(zelmAdd_mat_64f_P, MAT_P, double, N_C_Z_S_H, OneArray, from(2000), ownzelmAdd_mat_64f_P, ownOMP_zelmAdd_mat_64f_P)
ARRAY_POINTER(zelmAdd_tam_64f_P, TAM_P, double, N_C_Z_S_H, OneArray, from(2000), ownzelmAdd_tam_64f_P, ownOMP_zelmAdd_tam_64f_P)
ARRAY_POINTER(zelmAdd_tat_64f_P, TAT_P, double, N_C_Z_S_H, OneArray, from(2000), ownzelmAdd_tat_64f_P, ownOMP_zelmAdd_tat_64f_P)
// clang-format on
