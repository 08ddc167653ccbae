// Kernels on four-wide `32f` vectors: LUBackSubst on one matrix and an array of vectors, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//               kernel                        arguments          strides type   body   case
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_32f,   LUBACKSUBST_MVA, S, UNIT,   float, solveVectors)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_32f_L, LUBACKSUBST_MVA, L, UNIT,   float, solveVectors)
// clang-format on
