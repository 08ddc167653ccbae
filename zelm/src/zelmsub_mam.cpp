// Exported functions: Sub of a single matrix from an array.
#include "zelmelementwisesignature.h"

// clang-format off
// The size test of mam in the standard layout stands behind the strides, in this form alone.
//             exported function, arguments, layout, type, order of tests, estimate, forks: unit strides, any, kernels: unit strides, any, front
STRIDE_FIRST(zelmSub_mam_32f,   MAM, S, float,  N_C_S_Z,   oneArray, from(3000), from(2000), ownzelmSub_mam_32f,   ownzelmSub_mam_32f_S2,  ownOMP_zelmSub_mam_32f)
STRIDE_FIRST(zelmSub_mam_64f,   MAM, S, double, N_C_S_Z,   oneArray, from(2000), from(2000), ownzelmSub_mam_64f,   ownzelmSub_mam_64f_S2,  ownOMP_zelmSub_mam_64f)
STRIDE_FIRST(zelmSub_mat_32f,   MAT, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmSub_mat_32f,   ownzelmSub_mat_32f_S2,  ownOMP_zelmSub_mat_32f)
STRIDE_FIRST(zelmSub_mat_64f,   MAT, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmSub_mat_64f,   ownzelmSub_mat_64f_S2,  ownOMP_zelmSub_mat_64f)
STRIDE_FIRST(zelmSub_tam_32f,   TAM, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmSub_tam_32f,   ownzelmSub_tam_32f_S2,  ownOMP_zelmSub_tam_32f)
STRIDE_FIRST(zelmSub_tam_64f,   TAM, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmSub_tam_64f,   ownzelmSub_tam_64f_S2,  ownOMP_zelmSub_tam_64f)
STRIDE_FIRST(zelmSub_tat_32f,   TAT, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmSub_tat_32f,   ownzelmSub_tat_32f_S2,  ownOMP_zelmSub_tat_32f)
STRIDE_FIRST(zelmSub_tat_64f,   TAT, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmSub_tat_64f,   ownzelmSub_tat_64f_S2,  ownOMP_zelmSub_tat_64f)
STRIDE_FIRST(zelmSub_mam_32f_L, MAM, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_mam_32f_L, ownzelmSub_mam_32f_LS2, ownOMP_zelmSub_mam_32f_L)
STRIDE_FIRST(zelmSub_mam_64f_L, MAM, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_mam_64f_L, ownzelmSub_mam_64f_LS2, ownOMP_zelmSub_mam_64f_L)
STRIDE_FIRST(zelmSub_mat_32f_L, MAT, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_mat_32f_L, ownzelmSub_mat_32f_LS2, ownOMP_zelmSub_mat_32f_L)
STRIDE_FIRST(zelmSub_mat_64f_L, MAT, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_mat_64f_L, ownzelmSub_mat_64f_LS2, ownOMP_zelmSub_mat_64f_L)
STRIDE_FIRST(zelmSub_tam_32f_L, TAM, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_tam_32f_L, ownzelmSub_tam_32f_LS2, ownOMP_zelmSub_tam_32f_L)
STRIDE_FIRST(zelmSub_tam_64f_L, TAM, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_tam_64f_L, ownzelmSub_tam_64f_LS2, ownOMP_zelmSub_tam_64f_L)
STRIDE_FIRST(zelmSub_tat_32f_L, TAT, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_tat_32f_L, ownzelmSub_tat_32f_LS2, ownOMP_zelmSub_tat_32f_L)
STRIDE_FIRST(zelmSub_tat_64f_L, TAT, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_tat_64f_L, ownzelmSub_tat_64f_LS2, ownOMP_zelmSub_tat_64f_L)

//            exported function, arguments, layout, type, order of tests, estimate, forks, kernel, front
ARRAY_POINTER(zelmSub_mam_32f_P, MAM, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmSub_mam_32f_P, ownOMP_zelmSub_mam_32f_P)
ARRAY_POINTER(zelmSub_mam_64f_P, MAM, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmSub_mam_64f_P, ownOMP_zelmSub_mam_64f_P)
ARRAY_POINTER(zelmSub_mat_32f_P, MAT, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmSub_mat_32f_P, ownOMP_zelmSub_mat_32f_P)
ARRAY_POINTER(zelmSub_mat_64f_P, MAT, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmSub_mat_64f_P, ownOMP_zelmSub_mat_64f_P)
ARRAY_POINTER(zelmSub_tam_32f_P, TAM, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmSub_tam_32f_P, ownOMP_zelmSub_tam_32f_P)
ARRAY_POINTER(zelmSub_tam_64f_P, TAM, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmSub_tam_64f_P, ownOMP_zelmSub_tam_64f_P)
ARRAY_POINTER(zelmSub_tat_32f_P, TAT, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmSub_tat_32f_P, ownOMP_zelmSub_tat_32f_P)
ARRAY_POINTER(zelmSub_tat_64f_P, TAT, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmSub_tat_64f_P, ownOMP_zelmSub_tat_64f_P)
// clang-format on
