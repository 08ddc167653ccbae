// Kernels on four-wide `32f` vectors: LUBackSubst on one matrix and an array of vectors, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                        arguments          strides type   body   case
KERNEL(ownzelmLUBackSubst_mva_32f,   LUBACKSUBST_MVA_S, UNIT,   float, solve, OneMatrix)
KERNEL(ownzelmLUBackSubst_mva_32f_L, LUBACKSUBST_MVA_L, UNIT,   float, solve, OneMatrix)
// clang-format on
