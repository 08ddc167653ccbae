// Exported functions: Mul on arrays of matrices or vectors and constants.
#include "zelmelementwisesignature.h"

// clang-format off
// The limit of 1500 is that of 32f lists with any stride2 alone.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmMul_mac_32f,   MAC, S, float,  N_C_Z_S,   scaledMatrices, above(3500), above(3500), ownzelmMul_mac_32f,   ownzelmMul_mac_32f_S2,  ownOMP_zelmMul_mac_32f)
STRIDE_FIRST(zelmMul_mac_64f,   MAC, S, double, N_C_Z_S,   scaledMatrices, above(3500), above(3500), ownzelmMul_mac_64f,   ownzelmMul_mac_64f_S2,  ownOMP_zelmMul_mac_64f)
STRIDE_FIRST(zelmMul_tac_32f,   TAC, S, float,  N_C_Z_S,   scaledMatrices, above(3500), above(3500), ownzelmMul_tac_32f,   ownzelmMul_tac_32f_S2,  ownOMP_zelmMul_tac_32f)
STRIDE_FIRST(zelmMul_tac_64f,   TAC, S, double, N_C_Z_S,   scaledMatrices, above(3500), above(3500), ownzelmMul_tac_64f,   ownzelmMul_tac_64f_S2,  ownOMP_zelmMul_tac_64f)
STRIDE_FIRST(zelmMul_vac_32f,   VAC, S, float,  N_C_Z_S,   scaledVectors,  above(2500), above(1440), ownzelmMul_vac_32f,   ownzelmMul_vac_32f_S2,  ownOMP_zelmMul_vac_32f)
STRIDE_FIRST(zelmMul_vac_64f,   VAC, S, double, N_C_Z_S,   scaledVectors,  above(3600), above(1440), ownzelmMul_vac_64f,   ownzelmMul_vac_64f_S2,  ownOMP_zelmMul_vac_64f)
STRIDE_FIRST(zelmMul_mac_32f_L, MAC, L, float,  N_C_Z_S_H, scaledMatrices, above(3500), above(1500), ownzelmMul_mac_32f_L, ownzelmMul_mac_32f_LS2, ownOMP_zelmMul_mac_32f_L)
STRIDE_FIRST(zelmMul_mac_64f_L, MAC, L, double, N_C_Z_S_H, scaledMatrices, above(3500), above(3500), ownzelmMul_mac_64f_L, ownzelmMul_mac_64f_LS2, ownOMP_zelmMul_mac_64f_L)
STRIDE_FIRST(zelmMul_tac_32f_L, TAC, L, float,  N_C_Z_S_H, scaledMatrices, above(3500), above(1500), ownzelmMul_tac_32f_L, ownzelmMul_tac_32f_LS2, ownOMP_zelmMul_tac_32f_L)
STRIDE_FIRST(zelmMul_tac_64f_L, TAC, L, double, N_C_Z_S_H, scaledMatrices, above(3500), above(3500), ownzelmMul_tac_64f_L, ownzelmMul_tac_64f_LS2, ownOMP_zelmMul_tac_64f_L)
STRIDE_FIRST(zelmMul_vac_32f_L, VAC, L, float,  N_C_Z_S_H, scaledVectors,  above(3600), above(1440), ownzelmMul_vac_32f_L, ownzelmMul_vac_32f_LS2, ownOMP_zelmMul_vac_32f_L)
STRIDE_FIRST(zelmMul_vac_64f_L, VAC, L, double, N_C_Z_S_H, scaledVectors,  above(3600), above(1440), ownzelmMul_vac_64f_L, ownzelmMul_vac_64f_LS2, ownOMP_zelmMul_vac_64f_L)

//             exported function  arguments type  order of tests  estimate  forks  kernels: unit strides, any  front
ESTIMATE_FIRST(zelmMul_vca_32f,    VCA,  S, float,  N_C_Z_S,   vectorAndConstants,  above(2100), ownzelmMul_vca_32f,    ownzelmMul_vca_32f_S2,   ownOMP_zelmMul_vca_32f)
ESTIMATE_FIRST(zelmMul_vca_64f,    VCA,  S, double, N_C_Z_S,   vectorAndConstants,  above(2100), ownzelmMul_vca_64f,    ownzelmMul_vca_64f_S2,   ownOMP_zelmMul_vca_64f)
ESTIMATE_FIRST(zelmMul_vaca_32f,   VACA, S, float,  N_C_Z_S,   vectorsAndConstants, above(2100), ownzelmMul_vaca_32f,   ownzelmMul_vaca_32f_S2,  ownOMP_zelmMul_vaca_32f)
ESTIMATE_FIRST(zelmMul_vaca_64f,   VACA, S, double, N_C_Z_S,   vectorsAndConstants, above(2100), ownzelmMul_vaca_64f,   ownzelmMul_vaca_64f_S2,  ownOMP_zelmMul_vaca_64f)
ESTIMATE_FIRST(zelmMul_vca_32f_L,  VCA,  L, float,  N_C_Z_S_H, vectorAndConstants,  above(1200), ownzelmMul_vca_32f_L,  ownzelmMul_vca_32f_LS2,  ownOMP_zelmMul_vca_32f_L)
ESTIMATE_FIRST(zelmMul_vca_64f_L,  VCA,  L, double, N_C_Z_S_H, vectorAndConstants,  above(1200), ownzelmMul_vca_64f_L,  ownzelmMul_vca_64f_LS2,  ownOMP_zelmMul_vca_64f_L)
ESTIMATE_FIRST(zelmMul_vaca_32f_L, VACA, L, float,  N_C_Z_S_H, vectorsAndConstants, above(1200), ownzelmMul_vaca_32f_L, ownzelmMul_vaca_32f_LS2, ownOMP_zelmMul_vaca_32f_L)
ESTIMATE_FIRST(zelmMul_vaca_64f_L, VACA, L, double, N_C_Z_S_H, vectorsAndConstants, above(1200), ownzelmMul_vaca_64f_L, ownzelmMul_vaca_64f_LS2, ownOMP_zelmMul_vaca_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmMul_mac_32f_P,  MAC,  P, float,  N_C_Z_S_H, scaledMatrices,      above(1700), ownzelmMul_mac_32f_P,  ownOMP_zelmMul_mac_32f_P)
ARRAY_POINTER(zelmMul_mac_64f_P,  MAC,  P, double, N_C_Z_S_H, scaledMatrices,      above(1700), ownzelmMul_mac_64f_P,  ownOMP_zelmMul_mac_64f_P)
ARRAY_POINTER(zelmMul_tac_32f_P,  TAC,  P, float,  N_C_Z_S_H, scaledMatrices,      above(1700), ownzelmMul_tac_32f_P,  ownOMP_zelmMul_tac_32f_P)
ARRAY_POINTER(zelmMul_tac_64f_P,  TAC,  P, double, N_C_Z_S_H, scaledMatrices,      above(1700), ownzelmMul_tac_64f_P,  ownOMP_zelmMul_tac_64f_P)
ARRAY_POINTER(zelmMul_vac_32f_P,  VAC,  P, float,  N_C_Z_S_H, scaledVectors,       above(1440), ownzelmMul_vac_32f_P,  ownOMP_zelmMul_vac_32f_P)
ARRAY_POINTER(zelmMul_vac_64f_P,  VAC,  P, double, N_C_Z_S_H, scaledVectors,       above(1440), ownzelmMul_vac_64f_P,  ownOMP_zelmMul_vac_64f_P)
ARRAY_POINTER(zelmMul_vca_32f_P,  VCA,  P, float,  N_C_Z_S_H, vectorAndConstants,  above(650),  ownzelmMul_vca_32f_P,  ownOMP_zelmMul_vca_32f_P)
ARRAY_POINTER(zelmMul_vca_64f_P,  VCA,  P, double, N_C_Z_S_H, vectorAndConstants,  above(650),  ownzelmMul_vca_64f_P,  ownOMP_zelmMul_vca_64f_P)
ARRAY_POINTER(zelmMul_vaca_32f_P, VACA, P, float,  N_C_Z_S_H, vectorsAndConstants, above(650),  ownzelmMul_vaca_32f_P, ownOMP_zelmMul_vaca_32f_P)
ARRAY_POINTER(zelmMul_vaca_64f_P, VACA, P, double, N_C_Z_S_H, vectorsAndConstants, above(650),  ownzelmMul_vaca_64f_P, ownOMP_zelmMul_vaca_64f_P)
// clang-format on
