// Exported functions: LUBackSubst on an array of matrices and one of vectors.
#include "zelmlusignature.h"

// clang-format off
//           exported function           arguments           type    order      estimate forks: unit     any             kernels: unit strides          any                              front
STRIDE_FIRST(zelmLUBackSubst_mava_32f,   LUBACKSUBST_MAVA, S, float,  N_C_Z_S,   factorEach, from(1201), from(1201), ownzelmLUBackSubst_mava_32f,   ownzelmLUBackSubst_mava_32f_S2,  ownOMP_zelmLUBackSubst_mava_32f)
STRIDE_FIRST(zelmLUBackSubst_mava_64f,   LUBACKSUBST_MAVA, S, double, N_C_Z_S,   factorEach, from(1201), from(1201), ownzelmLUBackSubst_mava_64f,   ownzelmLUBackSubst_mava_64f_S2,  ownOMP_zelmLUBackSubst_mava_64f)
STRIDE_FIRST(zelmLUBackSubst_mava_32f_L, LUBACKSUBST_MAVA, L, float,  N_C_Z_S_H, factorEach, from(1201), from(1201), ownzelmLUBackSubst_mava_32f_L, ownzelmLUBackSubst_mava_32f_LS2, ownOMP_zelmLUBackSubst_mava_32f_L)
STRIDE_FIRST(zelmLUBackSubst_mava_64f_L, LUBACKSUBST_MAVA, L, double, N_C_Z_S_H, factorEach, from(1201), from(1201), ownzelmLUBackSubst_mava_64f_L, ownzelmLUBackSubst_mava_64f_LS2, ownOMP_zelmLUBackSubst_mava_64f_L)

//            exported function           arguments           type    order      estimate forks           kernel                         front
ARRAY_POINTER(zelmLUBackSubst_mava_32f_P, LUBACKSUBST_MAVA, P, float,  N_C_Z_S_H, factorEach, from(1201), ownzelmLUBackSubst_mava_32f_P, ownOMP_zelmLUBackSubst_mava_32f_P)
ARRAY_POINTER(zelmLUBackSubst_mava_64f_P, LUBACKSUBST_MAVA, P, double, N_C_Z_S_H, factorEach, from(1201), ownzelmLUBackSubst_mava_64f_P, ownOMP_zelmLUBackSubst_mava_64f_P)
// clang-format on
