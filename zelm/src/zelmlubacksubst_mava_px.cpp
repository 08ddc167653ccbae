// Portable kernels: LUBackSubst on an array of matrices and one of vectors, any strides and pointer layout.
#include "zelmlubacksubst.h"

// clang-format off
//               kernel                           arguments           strides type    body   case
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_32f_S2,  LUBACKSUBST_MAVA, S, ANY,    float,  solveSystems)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_64f_S2,  LUBACKSUBST_MAVA, S, ANY,    double, solveSystems)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_32f_LS2, LUBACKSUBST_MAVA, L, ANY,    float,  solveSystems)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_64f_LS2, LUBACKSUBST_MAVA, L, ANY,    double, solveSystems)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_32f_P,   LUBACKSUBST_MAVA, P, ANY,    float,  solveSystems)
KERNEL_IN_BLOCKS(ownzelmLUBackSubst_mava_64f_P,   LUBACKSUBST_MAVA, P, ANY,    double, solveSystems)
// clang-format on
