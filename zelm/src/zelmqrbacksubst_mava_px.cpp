// Portable kernels: solution of systems with a QR-decomposed matrix each, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mava_32f_S2,  QR_SOLVE_MAVA_S, ANY, float,  qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mava_64f_S2,  QR_SOLVE_MAVA_S, ANY, double, qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mava_32f_LS2, QR_SOLVE_MAVA_L, ANY, float,  qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mava_64f_LS2, QR_SOLVE_MAVA_L, ANY, double, qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mava_32f_P,   QR_SOLVE_MAVA_P, ANY, float,  qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mava_64f_P,   QR_SOLVE_MAVA_P, ANY, double, qrSolutions, AnyShape)
// clang-format on
