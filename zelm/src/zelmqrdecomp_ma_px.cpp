// Portable kernels: QR decomposition of an array of matrices, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_ma_32f_S2,  QR_FACTOR_MA_S, ANY, float,  qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_ma_64f_S2,  QR_FACTOR_MA_S, ANY, double, qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_ma_32f_LS2, QR_FACTOR_MA_L, ANY, float,  qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_ma_64f_LS2, QR_FACTOR_MA_L, ANY, double, qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_ma_32f_P,   QR_FACTOR_MA_P, ANY, float,  qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_ma_64f_P,   QR_FACTOR_MA_P, ANY, double, qrFactors, AnyShape)
// clang-format on
