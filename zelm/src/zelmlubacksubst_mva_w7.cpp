// Kernels on two-wide `64f` vectors: LUBackSubst on one matrix and an array of vectors, unit strides.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                        arguments          strides type    body   case
KERNEL(ownzelmLUBackSubst_mva_64f,   LUBACKSUBST_MVA_S, UNIT,   double, solve, OneMatrix)
KERNEL(ownzelmLUBackSubst_mva_64f_L, LUBACKSUBST_MVA_L, UNIT,   double, solve, OneMatrix)
// clang-format on
