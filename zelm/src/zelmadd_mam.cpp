// Exported functions: Add on an array of matrices and a single one.
#include "zelmelementwisesignature.h"

// clang-format off
// The size test of mam in the standard layout stands behind the strides, in this form alone.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmAdd_mam_32f,   MAM, S, float,  N_C_S_Z,   oneArray, from(3000), from(2000), ownzelmAdd_mam_32f,   ownzelmAdd_mam_32f_S2,  ownOMP_zelmAdd_mam_32f)
STRIDE_FIRST(zelmAdd_mat_32f,   MAT, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmAdd_mat_32f,   ownzelmAdd_mat_32f_S2,  ownOMP_zelmAdd_mat_32f)
STRIDE_FIRST(zelmAdd_tam_32f,   TAM, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmAdd_tam_32f,   ownzelmAdd_tam_32f_S2,  ownOMP_zelmAdd_tam_32f)
STRIDE_FIRST(zelmAdd_tat_32f,   TAT, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmAdd_tat_32f,   ownzelmAdd_tat_32f_S2,  ownOMP_zelmAdd_tat_32f)
STRIDE_FIRST(zelmAdd_mam_64f,   MAM, S, double, N_C_S_Z,   oneArray, from(2000), from(2000), ownzelmAdd_mam_64f,   ownzelmAdd_mam_64f_S2,  ownOMP_zelmAdd_mam_64f)
STRIDE_FIRST(zelmAdd_mat_64f,   MAT, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmAdd_mat_64f,   ownzelmAdd_mat_64f_S2,  ownOMP_zelmAdd_mat_64f)
STRIDE_FIRST(zelmAdd_tam_64f,   TAM, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmAdd_tam_64f,   ownzelmAdd_tam_64f_S2,  ownOMP_zelmAdd_tam_64f)
STRIDE_FIRST(zelmAdd_tat_64f,   TAT, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmAdd_tat_64f,   ownzelmAdd_tat_64f_S2,  ownOMP_zelmAdd_tat_64f)
STRIDE_FIRST(zelmAdd_mam_32f_L, MAM, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmAdd_mam_32f_L, ownzelmAdd_mam_32f_LS2, ownOMP_zelmAdd_mam_32f_L)
STRIDE_FIRST(zelmAdd_mat_32f_L, MAT, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmAdd_mat_32f_L, ownzelmAdd_mat_32f_LS2, ownOMP_zelmAdd_mat_32f_L)
STRIDE_FIRST(zelmAdd_tam_32f_L, TAM, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmAdd_tam_32f_L, ownzelmAdd_tam_32f_LS2, ownOMP_zelmAdd_tam_32f_L)
STRIDE_FIRST(zelmAdd_tat_32f_L, TAT, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmAdd_tat_32f_L, ownzelmAdd_tat_32f_LS2, ownOMP_zelmAdd_tat_32f_L)
STRIDE_FIRST(zelmAdd_mam_64f_L, MAM, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmAdd_mam_64f_L, ownzelmAdd_mam_64f_LS2, ownOMP_zelmAdd_mam_64f_L)
STRIDE_FIRST(zelmAdd_mat_64f_L, MAT, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmAdd_mat_64f_L, ownzelmAdd_mat_64f_LS2, ownOMP_zelmAdd_mat_64f_L)
STRIDE_FIRST(zelmAdd_tam_64f_L, TAM, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmAdd_tam_64f_L, ownzelmAdd_tam_64f_LS2, ownOMP_zelmAdd_tam_64f_L)
STRIDE_FIRST(zelmAdd_tat_64f_L, TAT, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmAdd_tat_64f_L, ownzelmAdd_tat_64f_LS2, ownOMP_zelmAdd_tat_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmAdd_mam_32f_P, MAM, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmAdd_mam_32f_P, ownOMP_zelmAdd_mam_32f_P)
ARRAY_POINTER(zelmAdd_mat_32f_P, MAT, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmAdd_mat_32f_P, ownOMP_zelmAdd_mat_32f_P)
ARRAY_POINTER(zelmAdd_tam_32f_P, TAM, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmAdd_tam_32f_P, ownOMP_zelmAdd_tam_32f_P)
ARRAY_POINTER(zelmAdd_tat_32f_P, TAT, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmAdd_tat_32f_P, ownOMP_zelmAdd_tat_32f_P)
ARRAY_POINTER(zelmAdd_mam_64f_P, MAM, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmAdd_mam_64f_P, ownOMP_zelmAdd_mam_64f_P)
ARRAY_POINTER(zelmAdd_mat_64f_P, MAT, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmAdd_mat_64f_P, ownOMP_zelmAdd_mat_64f_P)
ARRAY_POINTER(zelmAdd_tam_64f_P, TAM, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmAdd_tam_64f_P, ownOMP_zelmAdd_tam_64f_P)
ARRAY_POINTER(zelmAdd_tat_64f_P, TAT, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmAdd_tat_64f_P, ownOMP_zelmAdd_tat_64f_P)
// clang-format on
