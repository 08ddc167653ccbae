// Parallel fronts: Sub of a single matrix from an array.
#include "zelmfront.h"

// clang-format off
//    front, arguments, layout, type, statuses, kernels: unit strides, any
FRONT(ownOMP_zelmSub_mam_32f,   MAM, S, float,  Discards, ownzelmSub_mam_32f,   ownzelmSub_mam_32f_S2)
FRONT(ownOMP_zelmSub_mam_64f,   MAM, S, double, Discards, ownzelmSub_mam_64f,   ownzelmSub_mam_64f_S2)
FRONT(ownOMP_zelmSub_mat_32f,   MAT, S, float,  Discards, ownzelmSub_mat_32f,   ownzelmSub_mat_32f_S2)
FRONT(ownOMP_zelmSub_mat_64f,   MAT, S, double, Discards, ownzelmSub_mat_64f,   ownzelmSub_mat_64f_S2)
FRONT(ownOMP_zelmSub_tam_32f,   TAM, S, float,  Discards, ownzelmSub_tam_32f,   ownzelmSub_tam_32f_S2)
FRONT(ownOMP_zelmSub_tam_64f,   TAM, S, double, Discards, ownzelmSub_tam_64f,   ownzelmSub_tam_64f_S2)
FRONT(ownOMP_zelmSub_tat_32f,   TAT, S, float,  Discards, ownzelmSub_tat_32f,   ownzelmSub_tat_32f_S2)
FRONT(ownOMP_zelmSub_tat_64f,   TAT, S, double, Discards, ownzelmSub_tat_64f,   ownzelmSub_tat_64f_S2)
FRONT(ownOMP_zelmSub_mam_32f_L, MAM, L, float,  Discards, ownzelmSub_mam_32f_L, ownzelmSub_mam_32f_LS2)
FRONT(ownOMP_zelmSub_mam_64f_L, MAM, L, double, Discards, ownzelmSub_mam_64f_L, ownzelmSub_mam_64f_LS2)
FRONT(ownOMP_zelmSub_mat_32f_L, MAT, L, float,  Discards, ownzelmSub_mat_32f_L, ownzelmSub_mat_32f_LS2)
FRONT(ownOMP_zelmSub_mat_64f_L, MAT, L, double, Discards, ownzelmSub_mat_64f_L, ownzelmSub_mat_64f_LS2)
FRONT(ownOMP_zelmSub_tam_32f_L, TAM, L, float,  Discards, ownzelmSub_tam_32f_L, ownzelmSub_tam_32f_LS2)
FRONT(ownOMP_zelmSub_tam_64f_L, TAM, L, double, Discards, ownzelmSub_tam_64f_L, ownzelmSub_tam_64f_LS2)
FRONT(ownOMP_zelmSub_tat_32f_L, TAT, L, float,  Discards, ownzelmSub_tat_32f_L, ownzelmSub_tat_32f_LS2)
FRONT(ownOMP_zelmSub_tat_64f_L, TAT, L, double, Discards, ownzelmSub_tat_64f_L, ownzelmSub_tat_64f_LS2)

//            front, arguments, layout, type, statuses, kernel
FRONT_POINTER(ownOMP_zelmSub_mam_32f_P, MAM, P, float,  Discards, ownzelmSub_mam_32f_P)
FRONT_POINTER(ownOMP_zelmSub_mam_64f_P, MAM, P, double, Discards, ownzelmSub_mam_64f_P)
FRONT_POINTER(ownOMP_zelmSub_mat_32f_P, MAT, P, float,  Discards, ownzelmSub_mat_32f_P)
FRONT_POINTER(ownOMP_zelmSub_mat_64f_P, MAT, P, double, Discards, ownzelmSub_mat_64f_P)
FRONT_POINTER(ownOMP_zelmSub_tam_32f_P, TAM, P, float,  Discards, ownzelmSub_tam_32f_P)
FRONT_POINTER(ownOMP_zelmSub_tam_64f_P, TAM, P, double, Discards, ownzelmSub_tam_64f_P)
FRONT_POINTER(ownOMP_zelmSub_tat_32f_P, TAT, P, float,  Discards, ownzelmSub_tat_32f_P)
FRONT_POINTER(ownOMP_zelmSub_tat_64f_P, TAT, P, double, Discards, ownzelmSub_tat_64f_P)
// clang-format on
