// Exported functions: Add on arrays of vectors and constants.
#include "zelmelementwisesignature.h"

// clang-format off
// The count of vav is tested last, in the pointer layout before the shifts.
//             exported function, arguments, layout, type, order of tests, estimate, forks, kernels: unit strides, any, front
ESTIMATE_FIRST(zelmAdd_vav_32f,    VAV,  S, float,  N_Z_S_C,   oneArrayOfVectors,   above(4800), ownzelmAdd_vav_32f,    ownzelmAdd_vav_32f_S2,   ownOMP_zelmAdd_vav_32f)
ESTIMATE_FIRST(zelmAdd_vav_64f,    VAV,  S, double, N_Z_S_C,   oneArrayOfVectors,   above(1400), ownzelmAdd_vav_64f,    ownzelmAdd_vav_64f_S2,   ownOMP_zelmAdd_vav_64f)
ESTIMATE_FIRST(zelmAdd_vava_32f,   VAVA, S, float,  N_C_Z_S,   twoArraysOfVectors,  above(4800), ownzelmAdd_vava_32f,   ownzelmAdd_vava_32f_S2,  ownOMP_zelmAdd_vava_32f)
ESTIMATE_FIRST(zelmAdd_vava_64f,   VAVA, S, double, N_C_Z_S,   twoArraysOfVectors,  above(1400), ownzelmAdd_vava_64f,   ownzelmAdd_vava_64f_S2,  ownOMP_zelmAdd_vava_64f)
ESTIMATE_FIRST(zelmAdd_vac_32f,    VAC,  S, float,  N_C_Z_S,   oneArrayOfVectors,   above(4800), ownzelmAdd_vac_32f,    ownzelmAdd_vac_32f_S2,   ownOMP_zelmAdd_vac_32f)
ESTIMATE_FIRST(zelmAdd_vac_64f,    VAC,  S, double, N_C_Z_S,   oneArrayOfVectors,   above(1400), ownzelmAdd_vac_64f,    ownzelmAdd_vac_64f_S2,   ownOMP_zelmAdd_vac_64f)
ESTIMATE_FIRST(zelmAdd_vca_32f,    VCA,  S, float,  N_C_Z_S,   vectorAndConstants,  above(4800), ownzelmAdd_vca_32f,    ownzelmAdd_vca_32f_S2,   ownOMP_zelmAdd_vca_32f)
ESTIMATE_FIRST(zelmAdd_vca_64f,    VCA,  S, double, N_C_Z_S,   vectorAndConstants,  above(1400), ownzelmAdd_vca_64f,    ownzelmAdd_vca_64f_S2,   ownOMP_zelmAdd_vca_64f)
ESTIMATE_FIRST(zelmAdd_vaca_32f,   VACA, S, float,  N_C_Z_S,   vectorsAndConstants, above(4800), ownzelmAdd_vaca_32f,   ownzelmAdd_vaca_32f_S2,  ownOMP_zelmAdd_vaca_32f)
ESTIMATE_FIRST(zelmAdd_vaca_64f,   VACA, S, double, N_C_Z_S,   vectorsAndConstants, above(1400), ownzelmAdd_vaca_64f,   ownzelmAdd_vaca_64f_S2,  ownOMP_zelmAdd_vaca_64f)
ESTIMATE_FIRST(zelmAdd_vav_32f_L,  VAV,  L, float,  N_Z_S_H_C, oneArrayOfVectors,   above(2500), ownzelmAdd_vav_32f_L,  ownzelmAdd_vav_32f_LS2,  ownOMP_zelmAdd_vav_32f_L)
ESTIMATE_FIRST(zelmAdd_vav_64f_L,  VAV,  L, double, N_Z_S_H_C, oneArrayOfVectors,   above(2500), ownzelmAdd_vav_64f_L,  ownzelmAdd_vav_64f_LS2,  ownOMP_zelmAdd_vav_64f_L)
ESTIMATE_FIRST(zelmAdd_vava_32f_L, VAVA, L, float,  N_C_Z_S_H, twoArraysOfVectors,  above(2500), ownzelmAdd_vava_32f_L, ownzelmAdd_vava_32f_LS2, ownOMP_zelmAdd_vava_32f_L)
ESTIMATE_FIRST(zelmAdd_vava_64f_L, VAVA, L, double, N_C_Z_S_H, twoArraysOfVectors,  above(2500), ownzelmAdd_vava_64f_L, ownzelmAdd_vava_64f_LS2, ownOMP_zelmAdd_vava_64f_L)
ESTIMATE_FIRST(zelmAdd_vac_32f_L,  VAC,  L, float,  N_C_Z_S_H, oneArrayOfVectors,   above(2500), ownzelmAdd_vac_32f_L,  ownzelmAdd_vac_32f_LS2,  ownOMP_zelmAdd_vac_32f_L)
ESTIMATE_FIRST(zelmAdd_vac_64f_L,  VAC,  L, double, N_C_Z_S_H, oneArrayOfVectors,   above(2500), ownzelmAdd_vac_64f_L,  ownzelmAdd_vac_64f_LS2,  ownOMP_zelmAdd_vac_64f_L)
ESTIMATE_FIRST(zelmAdd_vca_32f_L,  VCA,  L, float,  N_C_Z_S_H, vectorAndConstants,  above(2500), ownzelmAdd_vca_32f_L,  ownzelmAdd_vca_32f_LS2,  ownOMP_zelmAdd_vca_32f_L)
ESTIMATE_FIRST(zelmAdd_vca_64f_L,  VCA,  L, double, N_C_Z_S_H, vectorAndConstants,  above(2500), ownzelmAdd_vca_64f_L,  ownzelmAdd_vca_64f_LS2,  ownOMP_zelmAdd_vca_64f_L)
ESTIMATE_FIRST(zelmAdd_vaca_32f_L, VACA, L, float,  N_C_Z_S_H, vectorsAndConstants, above(2500), ownzelmAdd_vaca_32f_L, ownzelmAdd_vaca_32f_LS2, ownOMP_zelmAdd_vaca_32f_L)
ESTIMATE_FIRST(zelmAdd_vaca_64f_L, VACA, L, double, N_C_Z_S_H, vectorsAndConstants, above(2500), ownzelmAdd_vaca_64f_L, ownzelmAdd_vaca_64f_LS2, ownOMP_zelmAdd_vaca_64f_L)

// zelmAdd_vca_64f_P tests no shift and zelmAdd_vaca_32f_P no stride of src, unlike their siblings; this is meant.
//            exported function, arguments, layout, type, order of tests, estimate, forks, kernel, front
ARRAY_POINTER(zelmAdd_vav_32f_P,  VAV,  P, float,  N_Z_S_C_H, oneArrayOfVectors,   above(1500), ownzelmAdd_vav_32f_P,  ownOMP_zelmAdd_vav_32f_P)
ARRAY_POINTER(zelmAdd_vav_64f_P,  VAV,  P, double, N_Z_S_C_H, oneArrayOfVectors,   above(1500), ownzelmAdd_vav_64f_P,  ownOMP_zelmAdd_vav_64f_P)
ARRAY_POINTER(zelmAdd_vava_32f_P, VAVA, P, float,  N_C_Z_S_H, twoArraysOfVectors,  above(1500), ownzelmAdd_vava_32f_P, ownOMP_zelmAdd_vava_32f_P)
ARRAY_POINTER(zelmAdd_vava_64f_P, VAVA, P, double, N_C_Z_S_H, twoArraysOfVectors,  above(1500), ownzelmAdd_vava_64f_P, ownOMP_zelmAdd_vava_64f_P)
ARRAY_POINTER(zelmAdd_vac_32f_P,  VAC,  P, float,  N_C_Z_S_H, oneArrayOfVectors,   above(1500), ownzelmAdd_vac_32f_P,  ownOMP_zelmAdd_vac_32f_P)
ARRAY_POINTER(zelmAdd_vac_64f_P,  VAC,  P, double, N_C_Z_S_H, oneArrayOfVectors,   above(1500), ownzelmAdd_vac_64f_P,  ownOMP_zelmAdd_vac_64f_P)
ARRAY_POINTER(zelmAdd_vca_32f_P,  VCA,  P, float,  N_C_Z_S_H, vectorAndConstants,  above(1500), ownzelmAdd_vca_32f_P,  ownOMP_zelmAdd_vca_32f_P)
ARRAY_POINTER(zelmAdd_vca_64f_P,  VCA,  P, double, N_C_Z_S,   vectorAndConstants,  above(1500), ownzelmAdd_vca_64f_P,  ownOMP_zelmAdd_vca_64f_P)
ARRAY_POINTER(zelmAdd_vaca_32f_P, VACA, P, float,  N_C_Z_R_H, vectorsAndConstants, above(1500), ownzelmAdd_vaca_32f_P, ownOMP_zelmAdd_vaca_32f_P)
ARRAY_POINTER(zelmAdd_vaca_64f_P, VACA, P, double, N_C_Z_S_H, vectorsAndConstants, above(1500), ownzelmAdd_vaca_64f_P, ownOMP_zelmAdd_vaca_64f_P)
// clang-format on
