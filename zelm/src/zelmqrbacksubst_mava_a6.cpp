// Kernels on four-wide `32f` vectors: solution of systems with a QR-decomposed matrix each, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mava_32f,   QR_SOLVE_MAVA, S, UNIT, float, qrSolutions)
KERNEL(ownzelmQRBackSubst_mava_32f_L, QR_SOLVE_MAVA, L, UNIT, float, qrSolutions)
// clang-format on
