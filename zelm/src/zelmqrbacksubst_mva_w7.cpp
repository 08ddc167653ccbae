// Kernels on two-wide `64f` vectors: solution of systems with one QR-decomposed matrix, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mva_64f,   QR_SOLVE_MVA, S, UNIT, double, qrSolutions)
KERNEL(ownzelmQRBackSubst_mva_64f_L, QR_SOLVE_MVA, L, UNIT, double, qrSolutions)
// clang-format on
