// Parallel fronts: Mul on a single matrix and an array of vectors.
#include "zelmfront.h"
#include "zelmmulvsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmMul_mva_32f,   MVA, S, float,  Discards, ownzelmMul_mva_32f,   ownzelmMul_mva_32f_S2)
FRONT(ownOMP_zelmMul_mva_64f,   MVA, S, double, Discards, ownzelmMul_mva_64f,   ownzelmMul_mva_64f_S2)
FRONT(ownOMP_zelmMul_tva_32f,   TVA, S, float,  Discards, ownzelmMul_tva_32f,   ownzelmMul_tva_32f_S2)
FRONT(ownOMP_zelmMul_tva_64f,   TVA, S, double, Discards, ownzelmMul_tva_64f,   ownzelmMul_tva_64f_S2)
FRONT(ownOMP_zelmMul_mva_32f_L, MVA, L, float,  Discards, ownzelmMul_mva_32f_L, ownzelmMul_mva_32f_LS2)
FRONT(ownOMP_zelmMul_mva_64f_L, MVA, L, double, Discards, ownzelmMul_mva_64f_L, ownzelmMul_mva_64f_LS2)
FRONT(ownOMP_zelmMul_tva_32f_L, TVA, L, float,  Discards, ownzelmMul_tva_32f_L, ownzelmMul_tva_32f_LS2)
FRONT(ownOMP_zelmMul_tva_64f_L, TVA, L, double, Discards, ownzelmMul_tva_64f_L, ownzelmMul_tva_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mva_32f_P, MVA, P, float,  Discards, ownzelmMul_mva_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mva_64f_P, MVA, P, double, Discards, ownzelmMul_mva_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tva_32f_P, TVA, P, float,  Discards, ownzelmMul_tva_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tva_64f_P, TVA, P, double, Discards, ownzelmMul_tva_64f_P)
// clang-format on
