// Portable kernels: solution of a system with a QR-decomposed matrix, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mv_32f_S2, QR_SOLVE_MV, S, ANY, float,  qrSolutions)
KERNEL(ownzelmQRBackSubst_mv_64f_S2, QR_SOLVE_MV, S, ANY, double, qrSolutions)
KERNEL(ownzelmQRBackSubst_mv_32f_P,  QR_SOLVE_MV, P, ANY, float,  qrSolutions)
KERNEL(ownzelmQRBackSubst_mv_64f_P,  QR_SOLVE_MV, P, ANY, double, qrSolutions)
// clang-format on
