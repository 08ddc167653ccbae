// Kernels on two-wide `64f` vectors: LUBackSubst on an array of matrices and one of vectors, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                         arguments           strides type    body   case
KERNEL(ownzelmLUBackSubst_mava_64f,   LUBACKSUBST_MAVA_S, UNIT,   double, solve, Pairs)
KERNEL(ownzelmLUBackSubst_mava_64f_L, LUBACKSUBST_MAVA_L, UNIT,   double, solve, Pairs)
// clang-format on
