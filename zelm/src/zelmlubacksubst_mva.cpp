// Exported functions: LUBackSubst on one matrix and an array of vectors.
#include "zelmlusignature.h"

// clang-format off
//           exported function          arguments          type    order      estimate          forks: unit    any            kernels: unit strides         any                             front
STRIDE_FIRST(zelmLUBackSubst_mva_32f,   LUBACKSUBST_MVA, S, float,  N_C_Z_S,   oneFactor, from(701), from(701), ownzelmLUBackSubst_mva_32f,   ownzelmLUBackSubst_mva_32f_S2,  ownOMP_zelmLUBackSubst_mva_32f)
STRIDE_FIRST(zelmLUBackSubst_mva_64f,   LUBACKSUBST_MVA, S, double, N_C_Z_S,   oneFactor, from(701), from(701), ownzelmLUBackSubst_mva_64f,   ownzelmLUBackSubst_mva_64f_S2,  ownOMP_zelmLUBackSubst_mva_64f)
STRIDE_FIRST(zelmLUBackSubst_mva_32f_L, LUBACKSUBST_MVA, L, float,  N_C_Z_S_H, oneFactor, from(701), from(701), ownzelmLUBackSubst_mva_32f_L, ownzelmLUBackSubst_mva_32f_LS2, ownOMP_zelmLUBackSubst_mva_32f_L)
STRIDE_FIRST(zelmLUBackSubst_mva_64f_L, LUBACKSUBST_MVA, L, double, N_C_Z_S_H, oneFactor, from(701), from(701), ownzelmLUBackSubst_mva_64f_L, ownzelmLUBackSubst_mva_64f_LS2, ownOMP_zelmLUBackSubst_mva_64f_L)

//            exported function          arguments          type    order      estimate          forks          kernel                        front
ARRAY_POINTER(zelmLUBackSubst_mva_32f_P, LUBACKSUBST_MVA, P, float,  N_C_Z_S_H, oneFactor, from(701), ownzelmLUBackSubst_mva_32f_P, ownOMP_zelmLUBackSubst_mva_32f_P)
ARRAY_POINTER(zelmLUBackSubst_mva_64f_P, LUBACKSUBST_MVA, P, double, N_C_Z_S_H, oneFactor, from(701), ownzelmLUBackSubst_mva_64f_P, ownOMP_zelmLUBackSubst_mva_64f_P)
// clang-format on
