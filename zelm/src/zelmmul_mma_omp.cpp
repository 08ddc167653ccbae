// Parallel fronts: Mul on a single matrix and an array of matrices.
#include "zelmfront.h"
#include "zelmmulsignature.h"

// clang-format off
//    front                     arguments  type    statuses  kernels: unit strides  any
FRONT(ownOMP_zelmMul_mma_32f,   MUL_MMA, S, float,  Discards, ownzelmMul_mma_32f,    ownzelmMul_mma_32f_S2)
FRONT(ownOMP_zelmMul_mta_32f,   MUL_MTA, S, float,  Discards, ownzelmMul_mta_32f,    ownzelmMul_mta_32f_S2)
FRONT(ownOMP_zelmMul_tma_32f,   MUL_TMA, S, float,  Discards, ownzelmMul_tma_32f,    ownzelmMul_tma_32f_S2)
FRONT(ownOMP_zelmMul_tta_32f,   MUL_TTA, S, float,  Discards, ownzelmMul_tta_32f,    ownzelmMul_tta_32f_S2)
FRONT(ownOMP_zelmMul_mma_64f,   MUL_MMA, S, double, Discards, ownzelmMul_mma_64f,    ownzelmMul_mma_64f_S2)
FRONT(ownOMP_zelmMul_mta_64f,   MUL_MTA, S, double, Discards, ownzelmMul_mta_64f,    ownzelmMul_mta_64f_S2)
FRONT(ownOMP_zelmMul_tma_64f,   MUL_TMA, S, double, Discards, ownzelmMul_tma_64f,    ownzelmMul_tma_64f_S2)
FRONT(ownOMP_zelmMul_tta_64f,   MUL_TTA, S, double, Discards, ownzelmMul_tta_64f,    ownzelmMul_tta_64f_S2)
FRONT(ownOMP_zelmMul_mma_32f_L, MUL_MMA, L, float,  Discards, ownzelmMul_mma_32f_L,  ownzelmMul_mma_32f_LS2)
FRONT(ownOMP_zelmMul_mta_32f_L, MUL_MTA, L, float,  Discards, ownzelmMul_mta_32f_L,  ownzelmMul_mta_32f_LS2)
FRONT(ownOMP_zelmMul_tma_32f_L, MUL_TMA, L, float,  Discards, ownzelmMul_tma_32f_L,  ownzelmMul_tma_32f_LS2)
FRONT(ownOMP_zelmMul_tta_32f_L, MUL_TTA, L, float,  Discards, ownzelmMul_tta_32f_L,  ownzelmMul_tta_32f_LS2)
FRONT(ownOMP_zelmMul_mma_64f_L, MUL_MMA, L, double, Discards, ownzelmMul_mma_64f_L,  ownzelmMul_mma_64f_LS2)
FRONT(ownOMP_zelmMul_mta_64f_L, MUL_MTA, L, double, Discards, ownzelmMul_mta_64f_L,  ownzelmMul_mta_64f_LS2)
FRONT(ownOMP_zelmMul_tma_64f_L, MUL_TMA, L, double, Discards, ownzelmMul_tma_64f_L,  ownzelmMul_tma_64f_LS2)
FRONT(ownOMP_zelmMul_tta_64f_L, MUL_TTA, L, double, Discards, ownzelmMul_tta_64f_L,  ownzelmMul_tta_64f_LS2)

//            front                     arguments  type    statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mma_32f_P, MUL_MMA, P, float,  Discards, ownzelmMul_mma_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mta_32f_P, MUL_MTA, P, float,  Discards, ownzelmMul_mta_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tma_32f_P, MUL_TMA, P, float,  Discards, ownzelmMul_tma_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tta_32f_P, MUL_TTA, P, float,  Discards, ownzelmMul_tta_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mma_64f_P, MUL_MMA, P, double, Discards, ownzelmMul_mma_64f_P)
FRONT_POINTER(ownOMP_zelmMul_mta_64f_P, MUL_MTA, P, double, Discards, ownzelmMul_mta_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tma_64f_P, MUL_TMA, P, double, Discards, ownzelmMul_tma_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tta_64f_P, MUL_TTA, P, double, Discards, ownzelmMul_tta_64f_P)
// clang-format on
