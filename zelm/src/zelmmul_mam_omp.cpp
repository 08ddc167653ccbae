// Parallel fronts: Mul on an array of matrices and a single one.
#include "zelmfront.h"
#include "zelmmulsignature.h"

// clang-format off
//    front                     arguments  type    statuses  kernels: unit strides  any
FRONT(ownOMP_zelmMul_mam_32f,   MUL_MAM_S, float,  Discards, ownzelmMul_mam_32f,    ownzelmMul_mam_32f_S2)
FRONT(ownOMP_zelmMul_mat_32f,   MUL_MAT_S, float,  Discards, ownzelmMul_mat_32f,    ownzelmMul_mat_32f_S2)
FRONT(ownOMP_zelmMul_tam_32f,   MUL_TAM_S, float,  Discards, ownzelmMul_tam_32f,    ownzelmMul_tam_32f_S2)
FRONT(ownOMP_zelmMul_tat_32f,   MUL_TAT_S, float,  Discards, ownzelmMul_tat_32f,    ownzelmMul_tat_32f_S2)
FRONT(ownOMP_zelmMul_mam_64f,   MUL_MAM_S, double, Discards, ownzelmMul_mam_64f,    ownzelmMul_mam_64f_S2)
FRONT(ownOMP_zelmMul_mat_64f,   MUL_MAT_S, double, Discards, ownzelmMul_mat_64f,    ownzelmMul_mat_64f_S2)
FRONT(ownOMP_zelmMul_tam_64f,   MUL_TAM_S, double, Discards, ownzelmMul_tam_64f,    ownzelmMul_tam_64f_S2)
FRONT(ownOMP_zelmMul_tat_64f,   MUL_TAT_S, double, Discards, ownzelmMul_tat_64f,    ownzelmMul_tat_64f_S2)
FRONT(ownOMP_zelmMul_mam_32f_L, MUL_MAM_L, float,  Discards, ownzelmMul_mam_32f_L,  ownzelmMul_mam_32f_LS2)
FRONT(ownOMP_zelmMul_mat_32f_L, MUL_MAT_L, float,  Discards, ownzelmMul_mat_32f_L,  ownzelmMul_mat_32f_LS2)
FRONT(ownOMP_zelmMul_tam_32f_L, MUL_TAM_L, float,  Discards, ownzelmMul_tam_32f_L,  ownzelmMul_tam_32f_LS2)
FRONT(ownOMP_zelmMul_tat_32f_L, MUL_TAT_L, float,  Discards, ownzelmMul_tat_32f_L,  ownzelmMul_tat_32f_LS2)
FRONT(ownOMP_zelmMul_mam_64f_L, MUL_MAM_L, double, Discards, ownzelmMul_mam_64f_L,  ownzelmMul_mam_64f_LS2)
FRONT(ownOMP_zelmMul_mat_64f_L, MUL_MAT_L, double, Discards, ownzelmMul_mat_64f_L,  ownzelmMul_mat_64f_LS2)
FRONT(ownOMP_zelmMul_tam_64f_L, MUL_TAM_L, double, Discards, ownzelmMul_tam_64f_L,  ownzelmMul_tam_64f_LS2)
FRONT(ownOMP_zelmMul_tat_64f_L, MUL_TAT_L, double, Discards, ownzelmMul_tat_64f_L,  ownzelmMul_tat_64f_LS2)

//            front                     arguments  type    statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mam_32f_P, MUL_MAM_P, float,  Discards, ownzelmMul_mam_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mat_32f_P, MUL_MAT_P, float,  Discards, ownzelmMul_mat_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tam_32f_P, MUL_TAM_P, float,  Discards, ownzelmMul_tam_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tat_32f_P, MUL_TAT_P, float,  Discards, ownzelmMul_tat_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mam_64f_P, MUL_MAM_P, double, Discards, ownzelmMul_mam_64f_P)
FRONT_POINTER(ownOMP_zelmMul_mat_64f_P, MUL_MAT_P, double, Discards, ownzelmMul_mat_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tam_64f_P, MUL_TAM_P, double, Discards, ownzelmMul_tam_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tat_64f_P, MUL_TAT_P, double, Discards, ownzelmMul_tat_64f_P)
// clang-format on
