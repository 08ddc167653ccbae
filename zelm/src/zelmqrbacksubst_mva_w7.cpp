// Kernels on two-wide `64f` vectors: solution of systems with one QR-decomposed matrix, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mva_64f,   QR_SOLVE_MVA_S, UNIT, double, qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mva_64f_L, QR_SOLVE_MVA_L, UNIT, double, qrSolutions, AnyShape)
// clang-format on
