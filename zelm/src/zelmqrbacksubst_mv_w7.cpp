// Kernels on two-wide `64f` vectors: solution of a system with a QR-decomposed matrix, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mv_64f, QR_SOLVE_MV, S, UNIT, double, qrSolutions)
// clang-format on
