// Parallel fronts: LUBackSubst on an array of matrices and one of vectors.
#include "zelmfront.h"
#include "zelmlubacksubst.h"

// clang-format off
//    front                              arguments           type    statuses  kernels: unit strides          any
FRONT(ownOMP_zelmLUBackSubst_mava_32f,   LUBACKSUBST_MAVA_S, float,  Discards, ownzelmLUBackSubst_mava_32f,   ownzelmLUBackSubst_mava_32f_S2)
FRONT(ownOMP_zelmLUBackSubst_mava_64f,   LUBACKSUBST_MAVA_S, double, Discards, ownzelmLUBackSubst_mava_64f,   ownzelmLUBackSubst_mava_64f_S2)
FRONT(ownOMP_zelmLUBackSubst_mava_32f_L, LUBACKSUBST_MAVA_L, float,  Discards, ownzelmLUBackSubst_mava_32f_L, ownzelmLUBackSubst_mava_32f_LS2)
FRONT(ownOMP_zelmLUBackSubst_mava_64f_L, LUBACKSUBST_MAVA_L, double, Discards, ownzelmLUBackSubst_mava_64f_L, ownzelmLUBackSubst_mava_64f_LS2)

//            front                              arguments           type    statuses  kernel
FRONT_POINTER(ownOMP_zelmLUBackSubst_mava_32f_P, LUBACKSUBST_MAVA_P, float,  Discards, ownzelmLUBackSubst_mava_32f_P)
FRONT_POINTER(ownOMP_zelmLUBackSubst_mava_64f_P, LUBACKSUBST_MAVA_P, double, Discards, ownzelmLUBackSubst_mava_64f_P)
// clang-format on
