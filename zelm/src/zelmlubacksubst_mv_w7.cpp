// Kernels on two-wide `64f` vectors: LUBackSubst on one matrix and one vector, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                     arguments         strides type    body   case
KERNEL(ownzelmLUBackSubst_mv_64f, LUBACKSUBST_MV, S, UNIT,   double, solveOne)
// clang-format on
