// Kernels on four-wide `32f` vectors: LUBackSubst on an array of matrices and one of vectors, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//               kernel                         arguments           strides type   body   case
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_32f,   LUBACKSUBST_MAVA, S, UNIT,   float, solveSystems)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_32f_L, LUBACKSUBST_MAVA, L, UNIT,   float, solveSystems)
// clang-format on
