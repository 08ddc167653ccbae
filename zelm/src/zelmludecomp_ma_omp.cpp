// Parallel fronts: LUDecomp on arrays of matrices.
#include "zelmfront.h"
#include "zelmlusignature.h"

// clang-format off
//    front                           arguments      type    statuses  kernels: unit strides, any
FRONT(ownOMP_zelmLUDecomp_ma_32f,    LUDECOMP_MA, S, float,  Merges, ownzelmLUDecomp_ma_32f,     ownzelmLUDecomp_ma_32f_S2)
FRONT(ownOMP_zelmLUDecomp_ma_64f,    LUDECOMP_MA, S, double, Merges, ownzelmLUDecomp_ma_64f,     ownzelmLUDecomp_ma_64f_S2)
FRONT(ownOMP_zelmLUDecomp_ma_32f_L,  LUDECOMP_MA, L, float,  Merges, ownzelmLUDecomp_ma_32f_L,   ownzelmLUDecomp_ma_32f_LS2)
FRONT(ownOMP_zelmLUDecomp_ma_64f_L,  LUDECOMP_MA, L, double, Merges, ownzelmLUDecomp_ma_64f_L,   ownzelmLUDecomp_ma_64f_LS2)

//            front                          arguments      type    statuses  kernel
FRONT_POINTER(ownOMP_zelmLUDecomp_ma_32f_P, LUDECOMP_MA, P, float,  Merges, ownzelmLUDecomp_ma_32f_P)
FRONT_POINTER(ownOMP_zelmLUDecomp_ma_64f_P, LUDECOMP_MA, P, double, Merges, ownzelmLUDecomp_ma_64f_P)
// clang-format on
