// Kernels on four-wide `32f` vectors: QR decomposition of an array of matrices, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_ma_32f,   QR_FACTOR_MA, S, UNIT, float, qrFactors)
KERNEL(ownzelmQRDecomp_ma_32f_L, QR_FACTOR_MA, L, UNIT, float, qrFactors)
// clang-format on
