// Parallel fronts: LUBackSubst on one matrix and an array of vectors.
#include "zelmfront.h"
#include "zelmlubacksubst.h"

// clang-format off
//    front                             arguments          type    statuses  kernels: unit strides         any
FRONT(ownOMP_zelmLUBackSubst_mva_32f,   LUBACKSUBST_MVA_S, float,  Discards, ownzelmLUBackSubst_mva_32f,   ownzelmLUBackSubst_mva_32f_S2)
FRONT(ownOMP_zelmLUBackSubst_mva_64f,   LUBACKSUBST_MVA_S, double, Discards, ownzelmLUBackSubst_mva_64f,   ownzelmLUBackSubst_mva_64f_S2)
FRONT(ownOMP_zelmLUBackSubst_mva_32f_L, LUBACKSUBST_MVA_L, float,  Discards, ownzelmLUBackSubst_mva_32f_L, ownzelmLUBackSubst_mva_32f_LS2)
FRONT(ownOMP_zelmLUBackSubst_mva_64f_L, LUBACKSUBST_MVA_L, double, Discards, ownzelmLUBackSubst_mva_64f_L, ownzelmLUBackSubst_mva_64f_LS2)

//            front                             arguments          type    statuses  kernel
FRONT_POINTER(ownOMP_zelmLUBackSubst_mva_32f_P, LUBACKSUBST_MVA_P, float,  Discards, ownzelmLUBackSubst_mva_32f_P)
FRONT_POINTER(ownOMP_zelmLUBackSubst_mva_64f_P, LUBACKSUBST_MVA_P, double, Discards, ownzelmLUBackSubst_mva_64f_P)
// clang-format on
