// Kernels on two-wide `64f` vectors: solution of systems with a QR-decomposed matrix each, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mava_64f,   QR_SOLVE_MAVA, S, UNIT, double, qrSolutions)
KERNEL(ownzelmQRBackSubst_mava_64f_L, QR_SOLVE_MAVA, L, UNIT, double, qrSolutions)
// clang-format on
