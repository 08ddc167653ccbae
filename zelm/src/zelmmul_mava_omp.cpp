// Parallel fronts: Mul on arrays of matrices and vectors.
#include "zelmfront.h"
#include "zelmmulv.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmMul_mava_32f,   MAVA_S, float,  Discards, ownzelmMul_mava_32f,   ownzelmMul_mava_32f_S2)
FRONT(ownOMP_zelmMul_mava_64f,   MAVA_S, double, Discards, ownzelmMul_mava_64f,   ownzelmMul_mava_64f_S2)
FRONT(ownOMP_zelmMul_tava_32f,   TAVA_S, float,  Discards, ownzelmMul_tava_32f,   ownzelmMul_tava_32f_S2)
FRONT(ownOMP_zelmMul_tava_64f,   TAVA_S, double, Discards, ownzelmMul_tava_64f,   ownzelmMul_tava_64f_S2)
FRONT(ownOMP_zelmMul_mava_32f_L, MAVA_L, float,  Discards, ownzelmMul_mava_32f_L, ownzelmMul_mava_32f_LS2)
FRONT(ownOMP_zelmMul_mava_64f_L, MAVA_L, double, Discards, ownzelmMul_mava_64f_L, ownzelmMul_mava_64f_LS2)
FRONT(ownOMP_zelmMul_tava_32f_L, TAVA_L, float,  Discards, ownzelmMul_tava_32f_L, ownzelmMul_tava_32f_LS2)
FRONT(ownOMP_zelmMul_tava_64f_L, TAVA_L, double, Discards, ownzelmMul_tava_64f_L, ownzelmMul_tava_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mava_32f_P, MAVA_P, float,  Discards, ownzelmMul_mava_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mava_64f_P, MAVA_P, double, Discards, ownzelmMul_mava_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tava_32f_P, TAVA_P, float,  Discards, ownzelmMul_tava_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tava_64f_P, TAVA_P, double, Discards, ownzelmMul_tava_64f_P)
// clang-format on
