// Kernels on four-wide `32f` vectors: LUBackSubst on one matrix and one vector, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                     arguments         strides type   body   case
KERNEL(ownzelmLUBackSubst_mv_32f, LUBACKSUBST_MV, S, UNIT,   float, solveOne)
// clang-format on
