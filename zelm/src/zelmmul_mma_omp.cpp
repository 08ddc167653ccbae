// Parallel fronts: Mul on a single matrix and an array of matrices.
#include "zelmfront.h"
#include "zelmmulsignature.h"

// clang-format off
//    front                     arguments  type    statuses  kernels: unit strides  any
FRONT(ownOMP_zelmMul_mma_32f,   MUL_MMA_S, float,  Discards, ownzelmMul_mma_32f,    ownzelmMul_mma_32f_S2)
FRONT(ownOMP_zelmMul_mta_32f,   MUL_MTA_S, float,  Discards, ownzelmMul_mta_32f,    ownzelmMul_mta_32f_S2)
FRONT(ownOMP_zelmMul_tma_32f,   MUL_TMA_S, float,  Discards, ownzelmMul_tma_32f,    ownzelmMul_tma_32f_S2)
FRONT(ownOMP_zelmMul_tta_32f,   MUL_TTA_S, float,  Discards, ownzelmMul_tta_32f,    ownzelmMul_tta_32f_S2)
FRONT(ownOMP_zelmMul_mma_64f,   MUL_MMA_S, double, Discards, ownzelmMul_mma_64f,    ownzelmMul_mma_64f_S2)
FRONT(ownOMP_zelmMul_mta_64f,   MUL_MTA_S, double, Discards, ownzelmMul_mta_64f,    ownzelmMul_mta_64f_S2)
FRONT(ownOMP_zelmMul_tma_64f,   MUL_TMA_S, double, Discards, ownzelmMul_tma_64f,    ownzelmMul_tma_64f_S2)
FRONT(ownOMP_zelmMul_tta_64f,   MUL_TTA_S, double, Discards, ownzelmMul_tta_64f,    ownzelmMul_tta_64f_S2)
FRONT(ownOMP_zelmMul_mma_32f_L, MUL_MMA_L, float,  Discards, ownzelmMul_mma_32f_L,  ownzelmMul_mma_32f_LS2)
FRONT(ownOMP_zelmMul_mta_32f_L, MUL_MTA_L, float,  Discards, ownzelmMul_mta_32f_L,  ownzelmMul_mta_32f_LS2)
FRONT(ownOMP_zelmMul_tma_32f_L, MUL_TMA_L, float,  Discards, ownzelmMul_tma_32f_L,  ownzelmMul_tma_32f_LS2)
FRONT(ownOMP_zelmMul_tta_32f_L, MUL_TTA_L, float,  Discards, ownzelmMul_tta_32f_L,  ownzelmMul_tta_32f_LS2)
FRONT(ownOMP_zelmMul_mma_64f_L, MUL_MMA_L, double, Discards, ownzelmMul_mma_64f_L,  ownzelmMul_mma_64f_LS2)
FRONT(ownOMP_zelmMul_mta_64f_L, MUL_MTA_L, double, Discards, ownzelmMul_mta_64f_L,  ownzelmMul_mta_64f_LS2)
FRONT(ownOMP_zelmMul_tma_64f_L, MUL_TMA_L, double, Discards, ownzelmMul_tma_64f_L,  ownzelmMul_tma_64f_LS2)
FRONT(ownOMP_zelmMul_tta_64f_L, MUL_TTA_L, double, Discards, ownzelmMul_tta_64f_L,  ownzelmMul_tta_64f_LS2)

//            front                     arguments  type    statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mma_32f_P, MUL_MMA_P, float,  Discards, ownzelmMul_mma_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mta_32f_P, MUL_MTA_P, float,  Discards, ownzelmMul_mta_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tma_32f_P, MUL_TMA_P, float,  Discards, ownzelmMul_tma_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tta_32f_P, MUL_TTA_P, float,  Discards, ownzelmMul_tta_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mma_64f_P, MUL_MMA_P, double, Discards, ownzelmMul_mma_64f_P)
FRONT_POINTER(ownOMP_zelmMul_mta_64f_P, MUL_MTA_P, double, Discards, ownzelmMul_mta_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tma_64f_P, MUL_TMA_P, double, Discards, ownzelmMul_tma_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tta_64f_P, MUL_TTA_P, double, Discards, ownzelmMul_tta_64f_P)
// clang-format on
