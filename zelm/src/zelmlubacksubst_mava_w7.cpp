// Kernels on two-wide `64f` vectors: LUBackSubst on an array of matrices and one of vectors, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//               kernel                         arguments           strides type    body   case
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_64f,   LUBACKSUBST_MAVA, S, UNIT,   double, solveSystems)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_64f_L, LUBACKSUBST_MAVA, L, UNIT,   double, solveSystems)
// clang-format on
