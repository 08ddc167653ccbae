// Kernels on four-wide `32f` vectors: QR decomposition of an array of matrices, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_ma_32f,   QR_FACTOR_MA_S, UNIT, float, qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_ma_32f_L, QR_FACTOR_MA_L, UNIT, float, qrFactors, AnyShape)
// clang-format on
