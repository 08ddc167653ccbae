// Exported functions: Sub on two arrays of matrices.
#include "zelmelementwisesignature.h"

// clang-format off
//             exported function, arguments, layout, type, order of tests, estimate, forks: unit strides, any, kernels: unit strides, any, front
STRIDE_FIRST(zelmSub_mama_32f,   MAMA, S, float,  N_C_Z_S,   twoArrays, from(3000), from(2000), ownzelmSub_mama_32f,   ownzelmSub_mama_32f_S2,  ownOMP_zelmSub_mama_32f)
STRIDE_FIRST(zelmSub_mama_64f,   MAMA, S, double, N_C_Z_S,   twoArrays, from(2000), from(2000), ownzelmSub_mama_64f,   ownzelmSub_mama_64f_S2,  ownOMP_zelmSub_mama_64f)
STRIDE_FIRST(zelmSub_mata_32f,   MATA, S, float,  N_C_Z_S,   twoArrays, from(3000), from(2000), ownzelmSub_mata_32f,   ownzelmSub_mata_32f_S2,  ownOMP_zelmSub_mata_32f)
STRIDE_FIRST(zelmSub_mata_64f,   MATA, S, double, N_C_Z_S,   twoArrays, from(2000), from(2000), ownzelmSub_mata_64f,   ownzelmSub_mata_64f_S2,  ownOMP_zelmSub_mata_64f)
STRIDE_FIRST(zelmSub_tama_32f,   TAMA, S, float,  N_C_Z_S,   twoArrays, from(3000), from(2000), ownzelmSub_tama_32f,   ownzelmSub_tama_32f_S2,  ownOMP_zelmSub_tama_32f)
STRIDE_FIRST(zelmSub_tama_64f,   TAMA, S, double, N_C_Z_S,   twoArrays, from(2000), from(2000), ownzelmSub_tama_64f,   ownzelmSub_tama_64f_S2,  ownOMP_zelmSub_tama_64f)
STRIDE_FIRST(zelmSub_tata_32f,   TATA, S, float,  N_C_Z_S,   twoArrays, from(3000), from(2000), ownzelmSub_tata_32f,   ownzelmSub_tata_32f_S2,  ownOMP_zelmSub_tata_32f)
STRIDE_FIRST(zelmSub_tata_64f,   TATA, S, double, N_C_Z_S,   twoArrays, from(2000), from(2000), ownzelmSub_tata_64f,   ownzelmSub_tata_64f_S2,  ownOMP_zelmSub_tata_64f)
STRIDE_FIRST(zelmSub_mama_32f_L, MAMA, L, float,  N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmSub_mama_32f_L, ownzelmSub_mama_32f_LS2, ownOMP_zelmSub_mama_32f_L)
STRIDE_FIRST(zelmSub_mama_64f_L, MAMA, L, double, N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmSub_mama_64f_L, ownzelmSub_mama_64f_LS2, ownOMP_zelmSub_mama_64f_L)
STRIDE_FIRST(zelmSub_mata_32f_L, MATA, L, float,  N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmSub_mata_32f_L, ownzelmSub_mata_32f_LS2, ownOMP_zelmSub_mata_32f_L)
STRIDE_FIRST(zelmSub_mata_64f_L, MATA, L, double, N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmSub_mata_64f_L, ownzelmSub_mata_64f_LS2, ownOMP_zelmSub_mata_64f_L)
STRIDE_FIRST(zelmSub_tama_32f_L, TAMA, L, float,  N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmSub_tama_32f_L, ownzelmSub_tama_32f_LS2, ownOMP_zelmSub_tama_32f_L)
STRIDE_FIRST(zelmSub_tama_64f_L, TAMA, L, double, N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmSub_tama_64f_L, ownzelmSub_tama_64f_LS2, ownOMP_zelmSub_tama_64f_L)
STRIDE_FIRST(zelmSub_tata_32f_L, TATA, L, float,  N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmSub_tata_32f_L, ownzelmSub_tata_32f_LS2, ownOMP_zelmSub_tata_32f_L)
STRIDE_FIRST(zelmSub_tata_64f_L, TATA, L, double, N_C_Z_S_H, twoArrays, from(2000), from(2000), ownzelmSub_tata_64f_L, ownzelmSub_tata_64f_LS2, ownOMP_zelmSub_tata_64f_L)

//            exported function, arguments, layout, type, order of tests, estimate, forks, kernel, front
ARRAY_POINTER(zelmSub_mama_32f_P, MAMA, P, float,  N_C_Z_S_H, twoArrays, from(2000), ownzelmSub_mama_32f_P, ownOMP_zelmSub_mama_32f_P)
ARRAY_POINTER(zelmSub_mama_64f_P, MAMA, P, double, N_C_Z_S_H, twoArrays, from(2000), ownzelmSub_mama_64f_P, ownOMP_zelmSub_mama_64f_P)
ARRAY_POINTER(zelmSub_mata_32f_P, MATA, P, float,  N_C_Z_S_H, twoArrays, from(2000), ownzelmSub_mata_32f_P, ownOMP_zelmSub_mata_32f_P)
ARRAY_POINTER(zelmSub_mata_64f_P, MATA, P, double, N_C_Z_S_H, twoArrays, from(2000), ownzelmSub_mata_64f_P, ownOMP_zelmSub_mata_64f_P)
ARRAY_POINTER(zelmSub_tama_32f_P, TAMA, P, float,  N_C_Z_S_H, twoArrays, from(2000), ownzelmSub_tama_32f_P, ownOMP_zelmSub_tama_32f_P)
ARRAY_POINTER(zelmSub_tama_64f_P, TAMA, P, double, N_C_Z_S_H, twoArrays, from(2000), ownzelmSub_tama_64f_P, ownOMP_zelmSub_tama_64f_P)
ARRAY_POINTER(zelmSub_tata_32f_P, TATA, P, float,  N_C_Z_S_H, twoArrays, from(2000), ownzelmSub_tata_32f_P, ownOMP_zelmSub_tata_32f_P)
ARRAY_POINTER(zelmSub_tata_64f_P, TATA, P, double, N_C_Z_S_H, twoArrays, from(2000), ownzelmSub_tata_64f_P, ownOMP_zelmSub_tata_64f_P)
// clang-format on
