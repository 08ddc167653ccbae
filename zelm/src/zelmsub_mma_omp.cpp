// Parallel fronts: Sub of an array of matrices from a single one.
#include "zelmfront.h"

// clang-format off
//    front, arguments, layout, type, statuses, kernels: unit strides, any
FRONT(ownOMP_zelmSub_mma_32f,   MMA, S, float,  Discards, ownzelmSub_mma_32f,   ownzelmSub_mma_32f_S2)
FRONT(ownOMP_zelmSub_mma_64f,   MMA, S, double, Discards, ownzelmSub_mma_64f,   ownzelmSub_mma_64f_S2)
FRONT(ownOMP_zelmSub_mta_32f,   MTA, S, float,  Discards, ownzelmSub_mta_32f,   ownzelmSub_mta_32f_S2)
FRONT(ownOMP_zelmSub_mta_64f,   MTA, S, double, Discards, ownzelmSub_mta_64f,   ownzelmSub_mta_64f_S2)
FRONT(ownOMP_zelmSub_tma_32f,   TMA, S, float,  Discards, ownzelmSub_tma_32f,   ownzelmSub_tma_32f_S2)
FRONT(ownOMP_zelmSub_tma_64f,   TMA, S, double, Discards, ownzelmSub_tma_64f,   ownzelmSub_tma_64f_S2)
FRONT(ownOMP_zelmSub_tta_32f,   TTA, S, float,  Discards, ownzelmSub_tta_32f,   ownzelmSub_tta_32f_S2)
FRONT(ownOMP_zelmSub_tta_64f,   TTA, S, double, Discards, ownzelmSub_tta_64f,   ownzelmSub_tta_64f_S2)
FRONT(ownOMP_zelmSub_mma_32f_L, MMA, L, float,  Discards, ownzelmSub_mma_32f_L, ownzelmSub_mma_32f_LS2)
FRONT(ownOMP_zelmSub_mma_64f_L, MMA, L, double, Discards, ownzelmSub_mma_64f_L, ownzelmSub_mma_64f_LS2)
FRONT(ownOMP_zelmSub_mta_32f_L, MTA, L, float,  Discards, ownzelmSub_mta_32f_L, ownzelmSub_mta_32f_LS2)
FRONT(ownOMP_zelmSub_mta_64f_L, MTA, L, double, Discards, ownzelmSub_mta_64f_L, ownzelmSub_mta_64f_LS2)
FRONT(ownOMP_zelmSub_tma_32f_L, TMA, L, float,  Discards, ownzelmSub_tma_32f_L, ownzelmSub_tma_32f_LS2)
FRONT(ownOMP_zelmSub_tma_64f_L, TMA, L, double, Discards, ownzelmSub_tma_64f_L, ownzelmSub_tma_64f_LS2)
FRONT(ownOMP_zelmSub_tta_32f_L, TTA, L, float,  Discards, ownzelmSub_tta_32f_L, ownzelmSub_tta_32f_LS2)
FRONT(ownOMP_zelmSub_tta_64f_L, TTA, L, double, Discards, ownzelmSub_tta_64f_L, ownzelmSub_tta_64f_LS2)

//            front, arguments, layout, type, statuses, kernel
FRONT_POINTER(ownOMP_zelmSub_mma_32f_P, MMA, P, float,  Discards, ownzelmSub_mma_32f_P)
FRONT_POINTER(ownOMP_zelmSub_mma_64f_P, MMA, P, double, Discards, ownzelmSub_mma_64f_P)
FRONT_POINTER(ownOMP_zelmSub_mta_32f_P, MTA, P, float,  Discards, ownzelmSub_mta_32f_P)
FRONT_POINTER(ownOMP_zelmSub_mta_64f_P, MTA, P, double, Discards, ownzelmSub_mta_64f_P)
FRONT_POINTER(ownOMP_zelmSub_tma_32f_P, TMA, P, float,  Discards, ownzelmSub_tma_32f_P)
FRONT_POINTER(ownOMP_zelmSub_tma_64f_P, TMA, P, double, Discards, ownzelmSub_tma_64f_P)
FRONT_POINTER(ownOMP_zelmSub_tta_32f_P, TTA, P, float,  Discards, ownzelmSub_tta_32f_P)
FRONT_POINTER(ownOMP_zelmSub_tta_64f_P, TTA, P, double, Discards, ownzelmSub_tta_64f_P)
// clang-format on
