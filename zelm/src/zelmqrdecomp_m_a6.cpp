// Kernels on four-wide `32f` vectors: QR decomposition of a matrix, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_m_32f, QR_FACTOR_M, S, UNIT, float, qrFactors)
// clang-format on
