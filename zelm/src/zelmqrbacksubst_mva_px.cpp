// Portable kernels: solution of systems with one QR-decomposed matrix, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mva_32f_S2,  QR_SOLVE_MVA, S, ANY, float,  qrSolutions)
KERNEL(ownzelmQRBackSubst_mva_64f_S2,  QR_SOLVE_MVA, S, ANY, double, qrSolutions)
KERNEL(ownzelmQRBackSubst_mva_32f_LS2, QR_SOLVE_MVA, L, ANY, float,  qrSolutions)
KERNEL(ownzelmQRBackSubst_mva_64f_LS2, QR_SOLVE_MVA, L, ANY, double, qrSolutions)
KERNEL(ownzelmQRBackSubst_mva_32f_P,   QR_SOLVE_MVA, P, ANY, float,  qrSolutions)
KERNEL(ownzelmQRBackSubst_mva_64f_P,   QR_SOLVE_MVA, P, ANY, double, qrSolutions)
// clang-format on
