// Portable kernels: QR decomposition of a matrix, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_m_32f_S2, QR_FACTOR_M, S, ANY, float,  qrFactors)
KERNEL(ownzelmQRDecomp_m_64f_S2, QR_FACTOR_M, S, ANY, double, qrFactors)
KERNEL(ownzelmQRDecomp_m_32f_P,  QR_FACTOR_M, P, ANY, float,  qrFactors)
KERNEL(ownzelmQRDecomp_m_64f_P,  QR_FACTOR_M, P, ANY, double, qrFactors)
// clang-format on
