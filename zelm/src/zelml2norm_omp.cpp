// Parallel fronts: L2Norm.
#include "zelmfront.h"
#include "zelmvectorsignature.h"

// clang-format off
//    front  arguments  type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmL2Norm_va_32f,   NORM_VA, S, float,  Discards, ownzelmL2Norm_va_32f,   ownzelmL2Norm_va_32f_S2)
FRONT(ownOMP_zelmL2Norm_va_64f,   NORM_VA, S, double, Discards, ownzelmL2Norm_va_64f,   ownzelmL2Norm_va_64f_S2)
FRONT(ownOMP_zelmL2Norm_va_32f_L, NORM_VA, L, float,  Discards, ownzelmL2Norm_va_32f_L, ownzelmL2Norm_va_32f_LS2)
FRONT(ownOMP_zelmL2Norm_va_64f_L, NORM_VA, L, double, Discards, ownzelmL2Norm_va_64f_L, ownzelmL2Norm_va_64f_LS2)

//            front  arguments  type  statuses  kernel
FRONT_POINTER(ownOMP_zelmL2Norm_va_32f_P, NORM_VA, P, float,  Discards, ownzelmL2Norm_va_32f_P)
FRONT_POINTER(ownOMP_zelmL2Norm_va_64f_P, NORM_VA, P, double, Discards, ownzelmL2Norm_va_64f_P)
// clang-format on
