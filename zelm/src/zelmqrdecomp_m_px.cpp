// Portable kernels: QR decomposition of a matrix, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRDecomp_m_32f_S2, QR_FACTOR_M_S, ANY, float,  qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_m_64f_S2, QR_FACTOR_M_S, ANY, double, qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_m_32f_P,  QR_FACTOR_M_P, ANY, float,  qrFactors, AnyShape)
KERNEL(ownzelmQRDecomp_m_64f_P,  QR_FACTOR_M_P, ANY, double, qrFactors, AnyShape)
// clang-format on
