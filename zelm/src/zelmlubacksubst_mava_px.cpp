// Portable kernels: LUBackSubst on an array of matrices and one of vectors, any strides and pointer layout.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                           arguments           strides type    body   case
KERNEL(ownzelmLUBackSubst_mava_32f_S2,  LUBACKSUBST_MAVA_S, ANY,    float,  solve, Pairs)
KERNEL(ownzelmLUBackSubst_mava_64f_S2,  LUBACKSUBST_MAVA_S, ANY,    double, solve, Pairs)
KERNEL(ownzelmLUBackSubst_mava_32f_LS2, LUBACKSUBST_MAVA_L, ANY,    float,  solve, Pairs)
KERNEL(ownzelmLUBackSubst_mava_64f_LS2, LUBACKSUBST_MAVA_L, ANY,    double, solve, Pairs)
KERNEL(ownzelmLUBackSubst_mava_32f_P,   LUBACKSUBST_MAVA_P, ANY,    float,  solve, Pairs)
KERNEL(ownzelmLUBackSubst_mava_64f_P,   LUBACKSUBST_MAVA_P, ANY,    double, solve, Pairs)
// clang-format on
