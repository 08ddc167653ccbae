// Portable kernels: QR decomposition of an array of matrices, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_ma_32f_S2,  QR_FACTOR_MA, S, ANY, float,  qrFactors)
KERNEL(ownzelmQRDecomp_ma_64f_S2,  QR_FACTOR_MA, S, ANY, double, qrFactors)
KERNEL(ownzelmQRDecomp_ma_32f_LS2, QR_FACTOR_MA, L, ANY, float,  qrFactors)
KERNEL(ownzelmQRDecomp_ma_64f_LS2, QR_FACTOR_MA, L, ANY, double, qrFactors)
KERNEL(ownzelmQRDecomp_ma_32f_P,   QR_FACTOR_MA, P, ANY, float,  qrFactors)
KERNEL(ownzelmQRDecomp_ma_64f_P,   QR_FACTOR_MA, P, ANY, double, qrFactors)
// clang-format on
