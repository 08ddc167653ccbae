// Parallel fronts: Mul on an array of matrices and a single vector.
#include "zelmfront.h"
#include "zelmmulvsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmMul_mav_32f,   MAV, S, float,  Discards, ownzelmMul_mav_32f,   ownzelmMul_mav_32f_S2)
FRONT(ownOMP_zelmMul_mav_64f,   MAV, S, double, Discards, ownzelmMul_mav_64f,   ownzelmMul_mav_64f_S2)
FRONT(ownOMP_zelmMul_tav_32f,   TAV, S, float,  Discards, ownzelmMul_tav_32f,   ownzelmMul_tav_32f_S2)
FRONT(ownOMP_zelmMul_tav_64f,   TAV, S, double, Discards, ownzelmMul_tav_64f,   ownzelmMul_tav_64f_S2)
FRONT(ownOMP_zelmMul_mav_32f_L, MAV, L, float,  Discards, ownzelmMul_mav_32f_L, ownzelmMul_mav_32f_LS2)
FRONT(ownOMP_zelmMul_mav_64f_L, MAV, L, double, Discards, ownzelmMul_mav_64f_L, ownzelmMul_mav_64f_LS2)
FRONT(ownOMP_zelmMul_tav_32f_L, TAV, L, float,  Discards, ownzelmMul_tav_32f_L, ownzelmMul_tav_32f_LS2)
FRONT(ownOMP_zelmMul_tav_64f_L, TAV, L, double, Discards, ownzelmMul_tav_64f_L, ownzelmMul_tav_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mav_32f_P, MAV, P, float,  Discards, ownzelmMul_mav_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mav_64f_P, MAV, P, double, Discards, ownzelmMul_mav_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tav_32f_P, TAV, P, float,  Discards, ownzelmMul_tav_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tav_64f_P, TAV, P, double, Discards, ownzelmMul_tav_64f_P)
// clang-format on
