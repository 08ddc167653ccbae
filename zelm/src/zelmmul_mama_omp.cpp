// Parallel fronts: Mul on two arrays of matrices.
#include "zelmfront.h"
#include "zelmmulsignature.h"

// clang-format off
//    front                      arguments   type    statuses  kernels: unit strides  any
FRONT(ownOMP_zelmMul_mama_32f,   MUL_MAMA, S, float,  Discards, ownzelmMul_mama_32f,   ownzelmMul_mama_32f_S2)
FRONT(ownOMP_zelmMul_mata_32f,   MUL_MATA, S, float,  Discards, ownzelmMul_mata_32f,   ownzelmMul_mata_32f_S2)
FRONT(ownOMP_zelmMul_tama_32f,   MUL_TAMA, S, float,  Discards, ownzelmMul_tama_32f,   ownzelmMul_tama_32f_S2)
FRONT(ownOMP_zelmMul_tata_32f,   MUL_TATA, S, float,  Discards, ownzelmMul_tata_32f,   ownzelmMul_tata_32f_S2)
FRONT(ownOMP_zelmMul_mama_64f,   MUL_MAMA, S, double, Discards, ownzelmMul_mama_64f,   ownzelmMul_mama_64f_S2)
FRONT(ownOMP_zelmMul_mata_64f,   MUL_MATA, S, double, Discards, ownzelmMul_mata_64f,   ownzelmMul_mata_64f_S2)
FRONT(ownOMP_zelmMul_tama_64f,   MUL_TAMA, S, double, Discards, ownzelmMul_tama_64f,   ownzelmMul_tama_64f_S2)
FRONT(ownOMP_zelmMul_tata_64f,   MUL_TATA, S, double, Discards, ownzelmMul_tata_64f,   ownzelmMul_tata_64f_S2)
FRONT(ownOMP_zelmMul_mama_32f_L, MUL_MAMA, L, float,  Discards, ownzelmMul_mama_32f_L, ownzelmMul_mama_32f_LS2)
FRONT(ownOMP_zelmMul_mata_32f_L, MUL_MATA, L, float,  Discards, ownzelmMul_mata_32f_L, ownzelmMul_mata_32f_LS2)
FRONT(ownOMP_zelmMul_tama_32f_L, MUL_TAMA, L, float,  Discards, ownzelmMul_tama_32f_L, ownzelmMul_tama_32f_LS2)
FRONT(ownOMP_zelmMul_tata_32f_L, MUL_TATA, L, float,  Discards, ownzelmMul_tata_32f_L, ownzelmMul_tata_32f_LS2)
FRONT(ownOMP_zelmMul_mama_64f_L, MUL_MAMA, L, double, Discards, ownzelmMul_mama_64f_L, ownzelmMul_mama_64f_LS2)
FRONT(ownOMP_zelmMul_mata_64f_L, MUL_MATA, L, double, Discards, ownzelmMul_mata_64f_L, ownzelmMul_mata_64f_LS2)
FRONT(ownOMP_zelmMul_tama_64f_L, MUL_TAMA, L, double, Discards, ownzelmMul_tama_64f_L, ownzelmMul_tama_64f_LS2)
FRONT(ownOMP_zelmMul_tata_64f_L, MUL_TATA, L, double, Discards, ownzelmMul_tata_64f_L, ownzelmMul_tata_64f_LS2)

//            front                      arguments   type    statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mama_32f_P, MUL_MAMA, P, float,  Discards, ownzelmMul_mama_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mata_32f_P, MUL_MATA, P, float,  Discards, ownzelmMul_mata_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tama_32f_P, MUL_TAMA, P, float,  Discards, ownzelmMul_tama_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tata_32f_P, MUL_TATA, P, float,  Discards, ownzelmMul_tata_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mama_64f_P, MUL_MAMA, P, double, Discards, ownzelmMul_mama_64f_P)
FRONT_POINTER(ownOMP_zelmMul_mata_64f_P, MUL_MATA, P, double, Discards, ownzelmMul_mata_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tama_64f_P, MUL_TAMA, P, double, Discards, ownzelmMul_tama_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tata_64f_P, MUL_TATA, P, double, Discards, ownzelmMul_tata_64f_P)
// clang-format on
