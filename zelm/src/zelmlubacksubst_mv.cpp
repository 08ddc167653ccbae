// Exported functions: LUBackSubst on one matrix and one vector.
#include "zelmlusignature.h"

// clang-format off
//     exported function       arguments         type    order of tests kernels: unit strides      any
SINGLE(zelmLUBackSubst_mv_32f, LUBACKSUBST_MV, S, float,  N_Z_S,         ownzelmLUBackSubst_mv_32f, ownzelmLUBackSubst_mv_32f_S2)
SINGLE(zelmLUBackSubst_mv_64f, LUBACKSUBST_MV, S, double, N_Z_S,         ownzelmLUBackSubst_mv_64f, ownzelmLUBackSubst_mv_64f_S2)

//             exported function         arguments         type    order of tests kernel
SINGLE_POINTER(zelmLUBackSubst_mv_32f_P, LUBACKSUBST_MV, P, float,  N_Z_H,         ownzelmLUBackSubst_mv_32f_P)
SINGLE_POINTER(zelmLUBackSubst_mv_64f_P, LUBACKSUBST_MV, P, double, N_Z_H,         ownzelmLUBackSubst_mv_64f_P)
// clang-format on
