// Parallel fronts: Mul on an array of matrices and a single one.
#include "zelmfront.h"
#include "zelmmulsignature.h"

// clang-format off
//    front                     arguments  type    statuses  kernels: unit strides  any
FRONT(ownOMP_zelmMul_mam_32f,   MUL_MAM, S, float,  Discards, ownzelmMul_mam_32f,    ownzelmMul_mam_32f_S2)
FRONT(ownOMP_zelmMul_mat_32f,   MUL_MAT, S, float,  Discards, ownzelmMul_mat_32f,    ownzelmMul_mat_32f_S2)
FRONT(ownOMP_zelmMul_tam_32f,   MUL_TAM, S, float,  Discards, ownzelmMul_tam_32f,    ownzelmMul_tam_32f_S2)
FRONT(ownOMP_zelmMul_tat_32f,   MUL_TAT, S, float,  Discards, ownzelmMul_tat_32f,    ownzelmMul_tat_32f_S2)
FRONT(ownOMP_zelmMul_mam_64f,   MUL_MAM, S, double, Discards, ownzelmMul_mam_64f,    ownzelmMul_mam_64f_S2)
FRONT(ownOMP_zelmMul_mat_64f,   MUL_MAT, S, double, Discards, ownzelmMul_mat_64f,    ownzelmMul_mat_64f_S2)
FRONT(ownOMP_zelmMul_tam_64f,   MUL_TAM, S, double, Discards, ownzelmMul_tam_64f,    ownzelmMul_tam_64f_S2)
FRONT(ownOMP_zelmMul_tat_64f,   MUL_TAT, S, double, Discards, ownzelmMul_tat_64f,    ownzelmMul_tat_64f_S2)
FRONT(ownOMP_zelmMul_mam_32f_L, MUL_MAM, L, float,  Discards, ownzelmMul_mam_32f_L,  ownzelmMul_mam_32f_LS2)
FRONT(ownOMP_zelmMul_mat_32f_L, MUL_MAT, L, float,  Discards, ownzelmMul_mat_32f_L,  ownzelmMul_mat_32f_LS2)
FRONT(ownOMP_zelmMul_tam_32f_L, MUL_TAM, L, float,  Discards, ownzelmMul_tam_32f_L,  ownzelmMul_tam_32f_LS2)
FRONT(ownOMP_zelmMul_tat_32f_L, MUL_TAT, L, float,  Discards, ownzelmMul_tat_32f_L,  ownzelmMul_tat_32f_LS2)
FRONT(ownOMP_zelmMul_mam_64f_L, MUL_MAM, L, double, Discards, ownzelmMul_mam_64f_L,  ownzelmMul_mam_64f_LS2)
FRONT(ownOMP_zelmMul_mat_64f_L, MUL_MAT, L, double, Discards, ownzelmMul_mat_64f_L,  ownzelmMul_mat_64f_LS2)
FRONT(ownOMP_zelmMul_tam_64f_L, MUL_TAM, L, double, Discards, ownzelmMul_tam_64f_L,  ownzelmMul_tam_64f_LS2)
FRONT(ownOMP_zelmMul_tat_64f_L, MUL_TAT, L, double, Discards, ownzelmMul_tat_64f_L,  ownzelmMul_tat_64f_LS2)

//            front                     arguments  type    statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mam_32f_P, MUL_MAM, P, float,  Discards, ownzelmMul_mam_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mat_32f_P, MUL_MAT, P, float,  Discards, ownzelmMul_mat_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tam_32f_P, MUL_TAM, P, float,  Discards, ownzelmMul_tam_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tat_32f_P, MUL_TAT, P, float,  Discards, ownzelmMul_tat_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mam_64f_P, MUL_MAM, P, double, Discards, ownzelmMul_mam_64f_P)
FRONT_POINTER(ownOMP_zelmMul_mat_64f_P, MUL_MAT, P, double, Discards, ownzelmMul_mat_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tam_64f_P, MUL_TAM, P, double, Discards, ownzelmMul_tam_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tat_64f_P, MUL_TAT, P, double, Discards, ownzelmMul_tat_64f_P)
// clang-format on
