// Parallel fronts: inverses of an array of matrices.
#include "zelmfront.h"
#include "zelminvertsignature.h"

// clang-format off
//    front  arguments layout type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmInvert_ma_32f,   INVERT_MA, S, float,  Merges, ownzelmInvert_ma_32f,   ownzelmInvert_ma_32f_S2)
FRONT(ownOMP_zelmInvert_ma_64f,   INVERT_MA, S, double, Merges, ownzelmInvert_ma_64f,   ownzelmInvert_ma_64f_S2)
FRONT(ownOMP_zelmInvert_ma_32f_L, INVERT_MA, L, float,  Merges, ownzelmInvert_ma_32f_L, ownzelmInvert_ma_32f_LS2)
FRONT(ownOMP_zelmInvert_ma_64f_L, INVERT_MA, L, double, Merges, ownzelmInvert_ma_64f_L, ownzelmInvert_ma_64f_LS2)

//            front  arguments layout type  statuses  kernel
FRONT_POINTER(ownOMP_zelmInvert_ma_32f_P, INVERT_MA, P, float,  Merges, ownzelmInvert_ma_32f_P)
FRONT_POINTER(ownOMP_zelmInvert_ma_64f_P, INVERT_MA, P, double, Merges, ownzelmInvert_ma_64f_P)
// clang-format on
