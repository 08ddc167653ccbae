// Parallel fronts: Add on an array of matrices and a single one.
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmAdd_mam_32f,   MAM, S, float,  Discards, ownzelmAdd_mam_32f,   ownzelmAdd_mam_32f_S2)
FRONT(ownOMP_zelmAdd_mat_32f,   MAT, S, float,  Discards, ownzelmAdd_mat_32f,   ownzelmAdd_mat_32f_S2)
FRONT(ownOMP_zelmAdd_tam_32f,   TAM, S, float,  Discards, ownzelmAdd_tam_32f,   ownzelmAdd_tam_32f_S2)
FRONT(ownOMP_zelmAdd_tat_32f,   TAT, S, float,  Discards, ownzelmAdd_tat_32f,   ownzelmAdd_tat_32f_S2)
FRONT(ownOMP_zelmAdd_mam_64f,   MAM, S, double, Discards, ownzelmAdd_mam_64f,   ownzelmAdd_mam_64f_S2)
FRONT(ownOMP_zelmAdd_mat_64f,   MAT, S, double, Discards, ownzelmAdd_mat_64f,   ownzelmAdd_mat_64f_S2)
FRONT(ownOMP_zelmAdd_tam_64f,   TAM, S, double, Discards, ownzelmAdd_tam_64f,   ownzelmAdd_tam_64f_S2)
FRONT(ownOMP_zelmAdd_tat_64f,   TAT, S, double, Discards, ownzelmAdd_tat_64f,   ownzelmAdd_tat_64f_S2)
FRONT(ownOMP_zelmAdd_mam_32f_L, MAM, L, float,  Discards, ownzelmAdd_mam_32f_L, ownzelmAdd_mam_32f_LS2)
FRONT(ownOMP_zelmAdd_mat_32f_L, MAT, L, float,  Discards, ownzelmAdd_mat_32f_L, ownzelmAdd_mat_32f_LS2)
FRONT(ownOMP_zelmAdd_tam_32f_L, TAM, L, float,  Discards, ownzelmAdd_tam_32f_L, ownzelmAdd_tam_32f_LS2)
FRONT(ownOMP_zelmAdd_tat_32f_L, TAT, L, float,  Discards, ownzelmAdd_tat_32f_L, ownzelmAdd_tat_32f_LS2)
FRONT(ownOMP_zelmAdd_mam_64f_L, MAM, L, double, Discards, ownzelmAdd_mam_64f_L, ownzelmAdd_mam_64f_LS2)
FRONT(ownOMP_zelmAdd_mat_64f_L, MAT, L, double, Discards, ownzelmAdd_mat_64f_L, ownzelmAdd_mat_64f_LS2)
FRONT(ownOMP_zelmAdd_tam_64f_L, TAM, L, double, Discards, ownzelmAdd_tam_64f_L, ownzelmAdd_tam_64f_LS2)
FRONT(ownOMP_zelmAdd_tat_64f_L, TAT, L, double, Discards, ownzelmAdd_tat_64f_L, ownzelmAdd_tat_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmAdd_mam_32f_P, MAM, P, float,  Discards, ownzelmAdd_mam_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_mat_32f_P, MAT, P, float,  Discards, ownzelmAdd_mat_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_tam_32f_P, TAM, P, float,  Discards, ownzelmAdd_tam_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_tat_32f_P, TAT, P, float,  Discards, ownzelmAdd_tat_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_mam_64f_P, MAM, P, double, Discards, ownzelmAdd_mam_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_mat_64f_P, MAT, P, double, Discards, ownzelmAdd_mat_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_tam_64f_P, TAM, P, double, Discards, ownzelmAdd_tam_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_tat_64f_P, TAT, P, double, Discards, ownzelmAdd_tat_64f_P)
// clang-format on
