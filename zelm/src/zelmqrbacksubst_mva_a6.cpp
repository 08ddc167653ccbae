// Kernels on four-wide `32f` vectors: solution of systems with one QR-decomposed matrix, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mva_32f,   QR_SOLVE_MVA_S, UNIT, float, qrSolutions, AnyShape)
KERNEL(ownzelmQRBackSubst_mva_32f_L, QR_SOLVE_MVA_L, UNIT, float, qrSolutions, AnyShape)
// clang-format on
