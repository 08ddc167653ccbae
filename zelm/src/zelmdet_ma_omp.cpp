// Parallel fronts: determinants of an array of matrices.
#include "zelmdetsignature.h"
#include "zelmfront.h"

// clang-format off
//    front  arguments layout type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmDet_ma_32f,   DET_MA, S, float,  Discards, ownzelmDet_ma_32f,   ownzelmDet_ma_32f_S2)
FRONT(ownOMP_zelmDet_ma_64f,   DET_MA, S, double, Discards, ownzelmDet_ma_64f,   ownzelmDet_ma_64f_S2)
FRONT(ownOMP_zelmDet_ma_32f_L, DET_MA, L, float,  Discards, ownzelmDet_ma_32f_L, ownzelmDet_ma_32f_LS2)
FRONT(ownOMP_zelmDet_ma_64f_L, DET_MA, L, double, Discards, ownzelmDet_ma_64f_L, ownzelmDet_ma_64f_LS2)

//            front  arguments layout type  statuses  kernel
FRONT_POINTER(ownOMP_zelmDet_ma_32f_P, DET_MA, P, float,  Discards, ownzelmDet_ma_32f_P)
FRONT_POINTER(ownOMP_zelmDet_ma_64f_P, DET_MA, P, double, Discards, ownzelmDet_ma_64f_P)
// clang-format on
