// Kernels on two-wide `64f` vectors: LUBackSubst on one matrix and an array of vectors, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//               kernel                        arguments          strides type    body   case
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_64f,   LUBACKSUBST_MVA, S, UNIT,   double, solveVectors)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_64f_L, LUBACKSUBST_MVA, L, UNIT,   double, solveVectors)
// clang-format on
