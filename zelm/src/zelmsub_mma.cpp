// Exported functions: Sub of an array of matrices from a single one.
#include "zelmelementwisesignature.h"

// clang-format off
// The size test of mma in the standard layout stands behind the strides, in this form alone.
//             exported function, arguments, layout, type, order of tests, estimate, forks: unit strides, any, kernels: unit strides, any, front
STRIDE_FIRST(zelmSub_mma_32f,   MMA, S, float,  N_C_S_Z,   oneArray, from(3000), from(2000), ownzelmSub_mma_32f,   ownzelmSub_mma_32f_S2,  ownOMP_zelmSub_mma_32f)
STRIDE_FIRST(zelmSub_mma_64f,   MMA, S, double, N_C_S_Z,   oneArray, from(2000), from(2000), ownzelmSub_mma_64f,   ownzelmSub_mma_64f_S2,  ownOMP_zelmSub_mma_64f)
STRIDE_FIRST(zelmSub_mta_32f,   MTA, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmSub_mta_32f,   ownzelmSub_mta_32f_S2,  ownOMP_zelmSub_mta_32f)
STRIDE_FIRST(zelmSub_mta_64f,   MTA, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmSub_mta_64f,   ownzelmSub_mta_64f_S2,  ownOMP_zelmSub_mta_64f)
STRIDE_FIRST(zelmSub_tma_32f,   TMA, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmSub_tma_32f,   ownzelmSub_tma_32f_S2,  ownOMP_zelmSub_tma_32f)
STRIDE_FIRST(zelmSub_tma_64f,   TMA, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmSub_tma_64f,   ownzelmSub_tma_64f_S2,  ownOMP_zelmSub_tma_64f)
STRIDE_FIRST(zelmSub_tta_32f,   TTA, S, float,  N_C_Z_S,   oneArray, from(3000), from(2000), ownzelmSub_tta_32f,   ownzelmSub_tta_32f_S2,  ownOMP_zelmSub_tta_32f)
STRIDE_FIRST(zelmSub_tta_64f,   TTA, S, double, N_C_Z_S,   oneArray, from(2000), from(2000), ownzelmSub_tta_64f,   ownzelmSub_tta_64f_S2,  ownOMP_zelmSub_tta_64f)
STRIDE_FIRST(zelmSub_mma_32f_L, MMA, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_mma_32f_L, ownzelmSub_mma_32f_LS2, ownOMP_zelmSub_mma_32f_L)
STRIDE_FIRST(zelmSub_mma_64f_L, MMA, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_mma_64f_L, ownzelmSub_mma_64f_LS2, ownOMP_zelmSub_mma_64f_L)
STRIDE_FIRST(zelmSub_mta_32f_L, MTA, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_mta_32f_L, ownzelmSub_mta_32f_LS2, ownOMP_zelmSub_mta_32f_L)
STRIDE_FIRST(zelmSub_mta_64f_L, MTA, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_mta_64f_L, ownzelmSub_mta_64f_LS2, ownOMP_zelmSub_mta_64f_L)
STRIDE_FIRST(zelmSub_tma_32f_L, TMA, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_tma_32f_L, ownzelmSub_tma_32f_LS2, ownOMP_zelmSub_tma_32f_L)
STRIDE_FIRST(zelmSub_tma_64f_L, TMA, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_tma_64f_L, ownzelmSub_tma_64f_LS2, ownOMP_zelmSub_tma_64f_L)
STRIDE_FIRST(zelmSub_tta_32f_L, TTA, L, float,  N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_tta_32f_L, ownzelmSub_tta_32f_LS2, ownOMP_zelmSub_tta_32f_L)
STRIDE_FIRST(zelmSub_tta_64f_L, TTA, L, double, N_C_Z_S_H, oneArray, from(2000), from(2000), ownzelmSub_tta_64f_L, ownzelmSub_tta_64f_LS2, ownOMP_zelmSub_tta_64f_L)

//            exported function, arguments, layout, type, order of tests, estimate, forks, kernel, front
ARRAY_POINTER(zelmSub_mma_32f_P, MMA, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmSub_mma_32f_P, ownOMP_zelmSub_mma_32f_P)
ARRAY_POINTER(zelmSub_mma_64f_P, MMA, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmSub_mma_64f_P, ownOMP_zelmSub_mma_64f_P)
ARRAY_POINTER(zelmSub_mta_32f_P, MTA, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmSub_mta_32f_P, ownOMP_zelmSub_mta_32f_P)
ARRAY_POINTER(zelmSub_mta_64f_P, MTA, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmSub_mta_64f_P, ownOMP_zelmSub_mta_64f_P)
ARRAY_POINTER(zelmSub_tma_32f_P, TMA, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmSub_tma_32f_P, ownOMP_zelmSub_tma_32f_P)
ARRAY_POINTER(zelmSub_tma_64f_P, TMA, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmSub_tma_64f_P, ownOMP_zelmSub_tma_64f_P)
ARRAY_POINTER(zelmSub_tta_32f_P, TTA, P, float,  N_C_Z_S_H, oneArray, from(2000), ownzelmSub_tta_32f_P, ownOMP_zelmSub_tta_32f_P)
ARRAY_POINTER(zelmSub_tta_64f_P, TTA, P, double, N_C_Z_S_H, oneArray, from(2000), ownzelmSub_tta_64f_P, ownOMP_zelmSub_tta_64f_P)
// clang-format on
