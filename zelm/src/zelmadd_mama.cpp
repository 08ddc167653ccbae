// Exported functions: Add on two arrays of matrices.
#include "zelmelementwisesignature.h"

// clang-format off
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmAdd_mama_32f,   MAMA, S, float,  N_C_Z_S,   twoArrays, from(3000), from(2000), ownzelmAdd_mama_32f,   ownzelmAdd_mama_32f_S2,  ownOMP_zelmAdd_mama_32f)
STRIDE_FIRST(zelmAdd_tama_32f,   TAMA, S, float,  N_C_Z_S,   twoArrays, from(3000), from(2000), ownzelmAdd_tama_32f,   ownzelmAdd_tama_32f_S2,  ownOMP_zelmAdd_tama_32f)
STRIDE_FIRST(zelmAdd_tata_32f,   TATA, S, float,  N_C_Z_S,   twoArrays, from(3000), from(2000), ownzelmAdd_tata_32f,   ownzelmAdd_tata_32f_S2,  ownOMP_zelmAdd_tata_32f)
STRIDE_FIRST(zelmAdd_mama_64f,   MAMA, S, double, N_C_Z_S,   twoArrays, from(2000), from(2000), ownzelmAdd_mama_64f,   ownzelmAdd_mama_64f_S2,  ownOMP_zelmAdd_mama_64f)
STRIDE_FIRST(zelmAdd_tama_64f,   TAMA, S, double, N_C_Z_S,   twoArrays, from(2000), from(2000), ownzelmAdd_tama_64f,   ownzelmAdd_tama_64f_S2,  ownOMP_zelmAdd_tama_64f)
STRIDE_FIRST(zelmAdd_tata_64f,   TATA, S, double, N_C_Z_S,   twoArrays, from(2000), from(2000), ownzelmAdd_tata_64f,   ownzelmAdd_tata_64f_S2,  ownOMP_zelmAdd_tata_64f)
STRIDE_FIRST(zelmAdd_mama_32f_L, MAMA, L, float,  N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmAdd_mama_32f_L, ownzelmAdd_mama_32f_LS2, ownOMP_zelmAdd_mama_32f_L)
STRIDE_FIRST(zelmAdd_tama_32f_L, TAMA, L, float,  N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmAdd_tama_32f_L, ownzelmAdd_tama_32f_LS2, ownOMP_zelmAdd_tama_32f_L)
STRIDE_FIRST(zelmAdd_tata_32f_L, TATA, L, float,  N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmAdd_tata_32f_L, ownzelmAdd_tata_32f_LS2, ownOMP_zelmAdd_tata_32f_L)
STRIDE_FIRST(zelmAdd_mama_64f_L, MAMA, L, double, N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmAdd_mama_64f_L, ownzelmAdd_mama_64f_LS2, ownOMP_zelmAdd_mama_64f_L)
STRIDE_FIRST(zelmAdd_tama_64f_L, TAMA, L, double, N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmAdd_tama_64f_L, ownzelmAdd_tama_64f_LS2, ownOMP_zelmAdd_tama_64f_L)
STRIDE_FIRST(zelmAdd_tata_64f_L, TATA, L, double, N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmAdd_tata_64f_L, ownzelmAdd_tata_64f_LS2, ownOMP_zelmAdd_tata_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmAdd_mama_32f_P, MAMA, P, float,  N_C_Z_S_H, twoArrays, from(2000), ownzelmAdd_mama_32f_P, ownOMP_zelmAdd_mama_32f_P)
ARRAY_POINTER(zelmAdd_tama_32f_P, TAMA, P, float,  N_C_Z_S_H, twoArrays, from(2000), ownzelmAdd_tama_32f_P, ownOMP_zelmAdd_tama_32f_P)
ARRAY_POINTER(zelmAdd_tata_32f_P, TATA, P, float,  N_C_Z_S_H, twoArrays, from(2000), ownzelmAdd_tata_32f_P, ownOMP_zelmAdd_tata_32f_P)
ARRAY_POINTER(zelmAdd_mama_64f_P, MAMA, P, double, N_C_Z_S_H, twoArrays, from(2000), ownzelmAdd_mama_64f_P, ownOMP_zelmAdd_mama_64f_P)
ARRAY_POINTER(zelmAdd_tama_64f_P, TAMA, P, double, N_C_Z_S_H, twoArrays, from(2000), ownzelmAdd_tama_64f_P, ownOMP_zelmAdd_tama_64f_P)
ARRAY_POINTER(zelmAdd_tata_64f_P, TATA, P, double, N_C_Z_S_H, twoArrays, from(2000), ownzelmAdd_tata_64f_P, ownOMP_zelmAdd_tata_64f_P)
// clang-format on
