// Kernels on two-wide `64f` vectors: QR decomposition of an array of matrices, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_ma_64f,   QR_FACTOR_MA, S, UNIT, double, qrFactors)
KERNEL(ownzelmQRDecomp_ma_64f_L, QR_FACTOR_MA, L, UNIT, double, qrFactors)
// clang-format on
