// Kernels on two-wide `64f` vectors: QR decomposition of a matrix, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_m_64f, QR_FACTOR_M, S, UNIT, double, qrFactors)
// clang-format on
