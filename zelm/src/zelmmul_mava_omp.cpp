// Parallel fronts: Mul on arrays of matrices and vectors.
#include "zelmfront.h"
#include "zelmmulvsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmMul_mava_32f,   MAVA, S, float,  Discards, ownzelmMul_mava_32f,   ownzelmMul_mava_32f_S2)
FRONT(ownOMP_zelmMul_mava_64f,   MAVA, S, double, Discards, ownzelmMul_mava_64f,   ownzelmMul_mava_64f_S2)
FRONT(ownOMP_zelmMul_tava_32f,   TAVA, S, float,  Discards, ownzelmMul_tava_32f,   ownzelmMul_tava_32f_S2)
FRONT(ownOMP_zelmMul_tava_64f,   TAVA, S, double, Discards, ownzelmMul_tava_64f,   ownzelmMul_tava_64f_S2)
FRONT(ownOMP_zelmMul_mava_32f_L, MAVA, L, float,  Discards, ownzelmMul_mava_32f_L, ownzelmMul_mava_32f_LS2)
FRONT(ownOMP_zelmMul_mava_64f_L, MAVA, L, double, Discards, ownzelmMul_mava_64f_L, ownzelmMul_mava_64f_LS2)
FRONT(ownOMP_zelmMul_tava_32f_L, TAVA, L, float,  Discards, ownzelmMul_tava_32f_L, ownzelmMul_tava_32f_LS2)
FRONT(ownOMP_zelmMul_tava_64f_L, TAVA, L, double, Discards, ownzelmMul_tava_64f_L, ownzelmMul_tava_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mava_32f_P, MAVA, P, float,  Discards, ownzelmMul_mava_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mava_64f_P, MAVA, P, double, Discards, ownzelmMul_mava_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tava_32f_P, TAVA, P, float,  Discards, ownzelmMul_tava_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tava_64f_P, TAVA, P, double, Discards, ownzelmMul_tava_64f_P)
// clang-format on
