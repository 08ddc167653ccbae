// Kernels on four-wide `32f` vectors: solution of a system with a QR-decomposed matrix, unit strides.
#include "zelmqr.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line shapes
KERNEL(ownzelmQRBackSubst_mv_32f, QR_SOLVE_MV, S, UNIT, float, qrSolutions)
// clang-format on
