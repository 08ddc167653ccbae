// Parallel fronts: Mul on two arrays of matrices.
#include "zelmfront.h"
#include "zelmmulsignature.h"

// clang-format off
//    front                      arguments   type    statuses  kernels: unit strides  any
FRONT(ownOMP_zelmMul_mama_32f,   MUL_MAMA_S, float,  Discards, ownzelmMul_mama_32f,   ownzelmMul_mama_32f_S2)
FRONT(ownOMP_zelmMul_mata_32f,   MUL_MATA_S, float,  Discards, ownzelmMul_mata_32f,   ownzelmMul_mata_32f_S2)
FRONT(ownOMP_zelmMul_tama_32f,   MUL_TAMA_S, float,  Discards, ownzelmMul_tama_32f,   ownzelmMul_tama_32f_S2)
FRONT(ownOMP_zelmMul_tata_32f,   MUL_TATA_S, float,  Discards, ownzelmMul_tata_32f,   ownzelmMul_tata_32f_S2)
FRONT(ownOMP_zelmMul_mama_64f,   MUL_MAMA_S, double, Discards, ownzelmMul_mama_64f,   ownzelmMul_mama_64f_S2)
FRONT(ownOMP_zelmMul_mata_64f,   MUL_MATA_S, double, Discards, ownzelmMul_mata_64f,   ownzelmMul_mata_64f_S2)
FRONT(ownOMP_zelmMul_tama_64f,   MUL_TAMA_S, double, Discards, ownzelmMul_tama_64f,   ownzelmMul_tama_64f_S2)
FRONT(ownOMP_zelmMul_tata_64f,   MUL_TATA_S, double, Discards, ownzelmMul_tata_64f,   ownzelmMul_tata_64f_S2)
FRONT(ownOMP_zelmMul_mama_32f_L, MUL_MAMA_L, float,  Discards, ownzelmMul_mama_32f_L, ownzelmMul_mama_32f_LS2)
FRONT(ownOMP_zelmMul_mata_32f_L, MUL_MATA_L, float,  Discards, ownzelmMul_mata_32f_L, ownzelmMul_mata_32f_LS2)
FRONT(ownOMP_zelmMul_tama_32f_L, MUL_TAMA_L, float,  Discards, ownzelmMul_tama_32f_L, ownzelmMul_tama_32f_LS2)
FRONT(ownOMP_zelmMul_tata_32f_L, MUL_TATA_L, float,  Discards, ownzelmMul_tata_32f_L, ownzelmMul_tata_32f_LS2)
FRONT(ownOMP_zelmMul_mama_64f_L, MUL_MAMA_L, double, Discards, ownzelmMul_mama_64f_L, ownzelmMul_mama_64f_LS2)
FRONT(ownOMP_zelmMul_mata_64f_L, MUL_MATA_L, double, Discards, ownzelmMul_mata_64f_L, ownzelmMul_mata_64f_LS2)
FRONT(ownOMP_zelmMul_tama_64f_L, MUL_TAMA_L, double, Discards, ownzelmMul_tama_64f_L, ownzelmMul_tama_64f_LS2)
FRONT(ownOMP_zelmMul_tata_64f_L, MUL_TATA_L, double, Discards, ownzelmMul_tata_64f_L, ownzelmMul_tata_64f_LS2)

//            front                      arguments   type    statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mama_32f_P, MUL_MAMA_P, float,  Discards, ownzelmMul_mama_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mata_32f_P, MUL_MATA_P, float,  Discards, ownzelmMul_mata_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tama_32f_P, MUL_TAMA_P, float,  Discards, ownzelmMul_tama_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tata_32f_P, MUL_TATA_P, float,  Discards, ownzelmMul_tata_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mama_64f_P, MUL_MAMA_P, double, Discards, ownzelmMul_mama_64f_P)
FRONT_POINTER(ownOMP_zelmMul_mata_64f_P, MUL_MATA_P, double, Discards, ownzelmMul_mata_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tama_64f_P, MUL_TAMA_P, double, Discards, ownzelmMul_tama_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tata_64f_P, MUL_TATA_P, double, Discards, ownzelmMul_tata_64f_P)
// clang-format on
