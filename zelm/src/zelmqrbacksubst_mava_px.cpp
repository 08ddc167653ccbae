// Portable kernels: solution of systems with a QR-decomposed matrix each, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mava_32f_S2,  QR_SOLVE_MAVA, S, ANY, float,  qrSolutions)
KERNEL(ownzelmQRBackSubst_mava_64f_S2,  QR_SOLVE_MAVA, S, ANY, double, qrSolutions)
KERNEL(ownzelmQRBackSubst_mava_32f_LS2, QR_SOLVE_MAVA, L, ANY, float,  qrSolutions)
KERNEL(ownzelmQRBackSubst_mava_64f_LS2, QR_SOLVE_MAVA, L, ANY, double, qrSolutions)
KERNEL(ownzelmQRBackSubst_mava_32f_P,   QR_SOLVE_MAVA, P, ANY, float,  qrSolutions)
KERNEL(ownzelmQRBackSubst_mava_64f_P,   QR_SOLVE_MAVA, P, ANY, double, qrSolutions)
// clang-format on
