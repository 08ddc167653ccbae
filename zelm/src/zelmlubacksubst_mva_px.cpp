// Portable kernels: LUBackSubst on one matrix and an array of vectors, any strides and pointer layout.
#include "zelmlubacksubst.h"

// clang-format off
//     kernel                          arguments          strides type    body   case
KERNEL(ownzelmLUBackSubst_mva_32f_S2,  LUBACKSUBST_MVA_S, ANY,    float,  solve, OneMatrix)
KERNEL(ownzelmLUBackSubst_mva_64f_S2,  LUBACKSUBST_MVA_S, ANY,    double, solve, OneMatrix)
KERNEL(ownzelmLUBackSubst_mva_32f_LS2, LUBACKSUBST_MVA_L, ANY,    float,  solve, OneMatrix)
KERNEL(ownzelmLUBackSubst_mva_64f_LS2, LUBACKSUBST_MVA_L, ANY,    double, solve, OneMatrix)
KERNEL(ownzelmLUBackSubst_mva_32f_P,   LUBACKSUBST_MVA_P, ANY,    float,  solve, OneMatrix)
KERNEL(ownzelmLUBackSubst_mva_64f_P,   LUBACKSUBST_MVA_P, ANY,    double, solve, OneMatrix)
// clang-format on
