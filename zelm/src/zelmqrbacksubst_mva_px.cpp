// Portable kernels: solution of systems with one QR-decomposed matrix, any strides and pointer layout.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mva_32f_S2,  QR_SOLVE_MVA_S, ANY, float,  qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mva_64f_S2,  QR_SOLVE_MVA_S, ANY, double, qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mva_32f_LS2, QR_SOLVE_MVA_L, ANY, float,  qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mva_64f_LS2, QR_SOLVE_MVA_L, ANY, double, qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mva_32f_P,   QR_SOLVE_MVA_P, ANY, float,  qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mva_64f_P,   QR_SOLVE_MVA_P, ANY, double, qrSolutions, AnyShape)
// clang-format on
