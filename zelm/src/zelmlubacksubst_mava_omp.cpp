// Parallel fronts: LUBackSubst on an array of matrices and one of vectors.
#include "zelmfront.h"
#include "zelmlusignature.h"

// clang-format off
//    front                              arguments           type    statuses  kernels: unit strides          any
FRONT(ownOMP_zelmLUBackSubst_mava_32f,   LUBACKSUBST_MAVA, S, float,  Discards, ownzelmLUBackSubst_mava_32f,   ownzelmLUBackSubst_mava_32f_S2)
FRONT(ownOMP_zelmLUBackSubst_mava_64f,   LUBACKSUBST_MAVA, S, double, Discards, ownzelmLUBackSubst_mava_64f,   ownzelmLUBackSubst_mava_64f_S2)
FRONT(ownOMP_zelmLUBackSubst_mava_32f_L, LUBACKSUBST_MAVA, L, float,  Discards, ownzelmLUBackSubst_mava_32f_L, ownzelmLUBackSubst_mava_32f_LS2)
FRONT(ownOMP_zelmLUBackSubst_mava_64f_L, LUBACKSUBST_MAVA, L, double, Discards, ownzelmLUBackSubst_mava_64f_L, ownzelmLUBackSubst_mava_64f_LS2)

//            front                              arguments           type    statuses  kernel
FRONT_POINTER(ownOMP_zelmLUBackSubst_mava_32f_P, LUBACKSUBST_MAVA, P, float,  Discards, ownzelmLUBackSubst_mava_32f_P)
FRONT_POINTER(ownOMP_zelmLUBackSubst_mava_64f_P, LUBACKSUBST_MAVA, P, double, Discards, ownzelmLUBackSubst_mava_64f_P)
// clang-format on
