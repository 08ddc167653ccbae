// Portable kernels: LUBackSubst on one matrix and one vector, any strides and pointer layout.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                        arguments         strides type    body   case
KERNEL(ownzelmLUBackSubst_mv_32f_S2, LUBACKSUBST_MV_S, ANY,    float,  solve, OneVector)
KERNEL(ownzelmLUBackSubst_mv_64f_S2, LUBACKSUBST_MV_S, ANY,    double, solve, OneVector)
KERNEL(ownzelmLUBackSubst_mv_32f_P,  LUBACKSUBST_MV_P, ANY,    float,  solve, OneVector)
KERNEL(ownzelmLUBackSubst_mv_64f_P,  LUBACKSUBST_MV_P, ANY,    double, solve, OneVector)
// clang-format on
