// Portable kernels: solution of a system with a QR-decomposed matrix, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mv_32f_S2, QR_SOLVE_MV_S, ANY, float,  qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mv_64f_S2, QR_SOLVE_MV_S, ANY, double, qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mv_32f_P,  QR_SOLVE_MV_P, ANY, float,  qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mv_64f_P,  QR_SOLVE_MV_P, ANY, double, qrSolutions, AnyShape)
// clang-format on
