// Parallel fronts: LUBackSubst on one matrix and an array of vectors.
#include "zelmfront.h"
#include "zelmlusignature.h"

// clang-format off
//    front                             arguments          type    statuses  kernels: unit strides         any
FRONT(ownOMP_zelmLUBackSubst_mva_32f,   LUBACKSUBST_MVA, S, float,  Discards, ownzelmLUBackSubst_mva_32f,   ownzelmLUBackSubst_mva_32f_S2)
FRONT(ownOMP_zelmLUBackSubst_mva_64f,   LUBACKSUBST_MVA, S, double, Discards, ownzelmLUBackSubst_mva_64f,   ownzelmLUBackSubst_mva_64f_S2)
FRONT(ownOMP_zelmLUBackSubst_mva_32f_L, LUBACKSUBST_MVA, L, float,  Discards, ownzelmLUBackSubst_mva_32f_L, ownzelmLUBackSubst_mva_32f_LS2)
FRONT(ownOMP_zelmLUBackSubst_mva_64f_L, LUBACKSUBST_MVA, L, double, Discards, ownzelmLUBackSubst_mva_64f_L, ownzelmLUBackSubst_mva_64f_LS2)

//            front                             arguments          type    statuses  kernel
FRONT_POINTER(ownOMP_zelmLUBackSubst_mva_32f_P, LUBACKSUBST_MVA, P, float,  Discards, ownzelmLUBackSubst_mva_32f_P)
FRONT_POINTER(ownOMP_zelmLUBackSubst_mva_64f_P, LUBACKSUBST_MVA, P, double, Discards, ownzelmLUBackSubst_mva_64f_P)
// clang-format on
