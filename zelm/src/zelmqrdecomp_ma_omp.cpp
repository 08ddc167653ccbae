// Parallel fronts: QR decomposition of an array of matrices.
#include "zelmfront.h"
#include "zelmqrsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmQRDecomp_ma_32f,   QR_FACTOR_MA, S, float,  Merges, ownzelmQRDecomp_ma_32f,   ownzelmQRDecomp_ma_32f_S2)
FRONT(ownOMP_zelmQRDecomp_ma_64f,   QR_FACTOR_MA, S, double, Merges, ownzelmQRDecomp_ma_64f,   ownzelmQRDecomp_ma_64f_S2)
FRONT(ownOMP_zelmQRDecomp_ma_32f_L, QR_FACTOR_MA, L, float,  Merges, ownzelmQRDecomp_ma_32f_L, ownzelmQRDecomp_ma_32f_LS2)
FRONT(ownOMP_zelmQRDecomp_ma_64f_L, QR_FACTOR_MA, L, double, Merges, ownzelmQRDecomp_ma_64f_L, ownzelmQRDecomp_ma_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmQRDecomp_ma_32f_P, QR_FACTOR_MA, P, float,  Merges, ownzelmQRDecomp_ma_32f_P)
FRONT_POINTER(ownOMP_zelmQRDecomp_ma_64f_P, QR_FACTOR_MA, P, double, Merges, ownzelmQRDecomp_ma_64f_P)
// clang-format on
