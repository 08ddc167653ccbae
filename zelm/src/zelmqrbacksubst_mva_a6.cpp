// Kernels on four-wide `32f` vectors: solution of systems with one QR-decomposed matrix, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mva_32f,   QR_SOLVE_MVA, S, UNIT, float, qrSolutions)
KERNEL(ownzelmQRBackSubst_mva_32f_L, QR_SOLVE_MVA, L, UNIT, float, qrSolutions)
// clang-format on
