// Parallel fronts: Add on an array of matrices and a single one.
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmAdd_mam_32f,   MAM_S, float,  Discards, ownzelmAdd_mam_32f,   ownzelmAdd_mam_32f_S2)
FRONT(ownOMP_zelmAdd_mat_32f,   MAT_S, float,  Discards, ownzelmAdd_mat_32f,   ownzelmAdd_mat_32f_S2)
FRONT(ownOMP_zelmAdd_tam_32f,   TAM_S, float,  Discards, ownzelmAdd_tam_32f,   ownzelmAdd_tam_32f_S2)
FRONT(ownOMP_zelmAdd_tat_32f,   TAT_S, float,  Discards, ownzelmAdd_tat_32f,   ownzelmAdd_tat_32f_S2)
FRONT(ownOMP_zelmAdd_mam_64f,   MAM_S, double, Discards, ownzelmAdd_mam_64f,   ownzelmAdd_mam_64f_S2)
FRONT(ownOMP_zelmAdd_mat_64f,   MAT_S, double, Discards, ownzelmAdd_mat_64f,   ownzelmAdd_mat_64f_S2)
FRONT(ownOMP_zelmAdd_tam_64f,   TAM_S, double, Discards, ownzelmAdd_tam_64f,   ownzelmAdd_tam_64f_S2)
FRONT(ownOMP_zelmAdd_tat_64f,   TAT_S, double, Discards, ownzelmAdd_tat_64f,   ownzelmAdd_tat_64f_S2)
FRONT(ownOMP_zelmAdd_mam_32f_L, MAM_L, float,  Discards, ownzelmAdd_mam_32f_L, ownzelmAdd_mam_32f_LS2)
FRONT(ownOMP_zelmAdd_mat_32f_L, MAT_L, float,  Discards, ownzelmAdd_mat_32f_L, ownzelmAdd_mat_32f_LS2)
FRONT(ownOMP_zelmAdd_tam_32f_L, TAM_L, float,  Discards, ownzelmAdd_tam_32f_L, ownzelmAdd_tam_32f_LS2)
FRONT(ownOMP_zelmAdd_tat_32f_L, TAT_L, float,  Discards, ownzelmAdd_tat_32f_L, ownzelmAdd_tat_32f_LS2)
FRONT(ownOMP_zelmAdd_mam_64f_L, MAM_L, double, Discards, ownzelmAdd_mam_64f_L, ownzelmAdd_mam_64f_LS2)
FRONT(ownOMP_zelmAdd_mat_64f_L, MAT_L, double, Discards, ownzelmAdd_mat_64f_L, ownzelmAdd_mat_64f_LS2)
FRONT(ownOMP_zelmAdd_tam_64f_L, TAM_L, double, Discards, ownzelmAdd_tam_64f_L, ownzelmAdd_tam_64f_LS2)
FRONT(ownOMP_zelmAdd_tat_64f_L, TAT_L, double, Discards, ownzelmAdd_tat_64f_L, ownzelmAdd_tat_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmAdd_mam_32f_P, MAM_P, float,  Discards, ownzelmAdd_mam_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_mat_32f_P, MAT_P, float,  Discards, ownzelmAdd_mat_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_tam_32f_P, TAM_P, float,  Discards, ownzelmAdd_tam_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_tat_32f_P, TAT_P, float,  Discards, ownzelmAdd_tat_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_mam_64f_P, MAM_P, double, Discards, ownzelmAdd_mam_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_mat_64f_P, MAT_P, double, Discards, ownzelmAdd_mat_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_tam_64f_P, TAM_P, double, Discards, ownzelmAdd_tam_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_tat_64f_P, TAT_P, double, Discards, ownzelmAdd_tat_64f_P)
// clang-format on
