// Portable kernels: LUBackSubst on one matrix and an array of vectors, any strides and pointer layout.
#include "zelmlubacksubst.h"

// clang-format off
//               kernel                          arguments          strides type    body   case
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_32f_S2,  LUBACKSUBST_MVA, S, ANY,    float,  solveVectors)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_64f_S2,  LUBACKSUBST_MVA, S, ANY,    double, solveVectors)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_32f_LS2, LUBACKSUBST_MVA, L, ANY,    float,  solveVectors)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_64f_LS2, LUBACKSUBST_MVA, L, ANY,    double, solveVectors)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_32f_P,   LUBACKSUBST_MVA, P, ANY,    float,  solveVectors)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mva_64f_P,   LUBACKSUBST_MVA, P, ANY,    double, solveVectors)
// clang-format on
