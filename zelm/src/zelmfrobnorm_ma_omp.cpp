// Parallel fronts: Frobenius norms of an array of matrices.
#include "zelmfrobnormsignature.h"
#include "zelmfront.h"

// clang-format off
//    front  arguments layout type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmFrobNorm_ma_32f,   FROBNORM_MA, S, float,  Discards, ownzelmFrobNorm_ma_32f,   ownzelmFrobNorm_ma_32f_S2)
FRONT(ownOMP_zelmFrobNorm_ma_64f,   FROBNORM_MA, S, double, Discards, ownzelmFrobNorm_ma_64f,   ownzelmFrobNorm_ma_64f_S2)
FRONT(ownOMP_zelmFrobNorm_ma_32f_L, FROBNORM_MA, L, float,  Discards, ownzelmFrobNorm_ma_32f_L, ownzelmFrobNorm_ma_32f_LS2)
FRONT(ownOMP_zelmFrobNorm_ma_64f_L, FROBNORM_MA, L, double, Discards, ownzelmFrobNorm_ma_64f_L, ownzelmFrobNorm_ma_64f_LS2)

//            front  arguments layout type  statuses  kernel
FRONT_POINTER(ownOMP_zelmFrobNorm_ma_32f_P, FROBNORM_MA, P, float,  Discards, ownzelmFrobNorm_ma_32f_P)
FRONT_POINTER(ownOMP_zelmFrobNorm_ma_64f_P, FROBNORM_MA, P, double, Discards, ownzelmFrobNorm_ma_64f_P)
// clang-format on
