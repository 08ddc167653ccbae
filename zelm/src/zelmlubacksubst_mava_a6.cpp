// Kernels on four-wide `32f` vectors: LUBackSubst on an array of matrices and one of vectors, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                         arguments           strides type   body   case
KERNEL(ownzelmLUBackSubst_mava_32f,   LUBACKSUBST_MAVA_S, UNIT,   float, solve, Pairs)
KERNEL(ownzelmLUBackSubst_mava_32f_L, LUBACKSUBST_MAVA_L, UNIT,   float, solve, Pairs)
// clang-format on
