// Portable kernels: LUBackSubst on one matrix and one vector, any strides and pointer layout.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                        arguments         strides type    body   case
KERNEL(ownzelmLUBackSubst_mv_32f_S2, LUBACKSUBST_MV, S, ANY,    float,  solveOne)
KERNEL(ownzelmLUBackSubst_mv_64f_S2, LUBACKSUBST_MV, S, ANY,    double, solveOne)
KERNEL(ownzelmLUBackSubst_mv_32f_P,  LUBACKSUBST_MV, P, ANY,    float,  solveOne)
KERNEL(ownzelmLUBackSubst_mv_64f_P,  LUBACKSUBST_MV, P, ANY,    double, solveOne)
// clang-format on
