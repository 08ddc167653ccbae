// Kernels on two-wide `64f` vectors: QR decomposition of an array of matrices, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_ma_64f,   QR_FACTOR_MA_S, UNIT, double, qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_ma_64f_L, QR_FACTOR_MA_L, UNIT, double, qrFactors, AnyShape)
// clang-format on
