// Parallel fronts: Mul on arrays of matrices or vectors and constants.
#include "zelmelementwisesignature.h"
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmMul_mac_32f,    MAC,  S, float,  Discards, ownzelmMul_mac_32f,    ownzelmMul_mac_32f_S2)
FRONT(ownOMP_zelmMul_mac_64f,    MAC,  S, double, Discards, ownzelmMul_mac_64f,    ownzelmMul_mac_64f_S2)
FRONT(ownOMP_zelmMul_tac_32f,    TAC,  S, float,  Discards, ownzelmMul_tac_32f,    ownzelmMul_tac_32f_S2)
FRONT(ownOMP_zelmMul_tac_64f,    TAC,  S, double, Discards, ownzelmMul_tac_64f,    ownzelmMul_tac_64f_S2)
FRONT(ownOMP_zelmMul_vac_32f,    VAC,  S, float,  Discards, ownzelmMul_vac_32f,    ownzelmMul_vac_32f_S2)
FRONT(ownOMP_zelmMul_vac_64f,    VAC,  S, double, Discards, ownzelmMul_vac_64f,    ownzelmMul_vac_64f_S2)
FRONT(ownOMP_zelmMul_vca_32f,    VCA,  S, float,  Discards, ownzelmMul_vca_32f,    ownzelmMul_vca_32f_S2)
FRONT(ownOMP_zelmMul_vca_64f,    VCA,  S, double, Discards, ownzelmMul_vca_64f,    ownzelmMul_vca_64f_S2)
FRONT(ownOMP_zelmMul_vaca_32f,   VACA, S, float,  Discards, ownzelmMul_vaca_32f,   ownzelmMul_vaca_32f_S2)
FRONT(ownOMP_zelmMul_vaca_64f,   VACA, S, double, Discards, ownzelmMul_vaca_64f,   ownzelmMul_vaca_64f_S2)
FRONT(ownOMP_zelmMul_mac_32f_L,  MAC,  L, float,  Discards, ownzelmMul_mac_32f_L,  ownzelmMul_mac_32f_LS2)
FRONT(ownOMP_zelmMul_mac_64f_L,  MAC,  L, double, Discards, ownzelmMul_mac_64f_L,  ownzelmMul_mac_64f_LS2)
FRONT(ownOMP_zelmMul_tac_32f_L,  TAC,  L, float,  Discards, ownzelmMul_tac_32f_L,  ownzelmMul_tac_32f_LS2)
FRONT(ownOMP_zelmMul_tac_64f_L,  TAC,  L, double, Discards, ownzelmMul_tac_64f_L,  ownzelmMul_tac_64f_LS2)
FRONT(ownOMP_zelmMul_vac_32f_L,  VAC,  L, float,  Discards, ownzelmMul_vac_32f_L,  ownzelmMul_vac_32f_LS2)
FRONT(ownOMP_zelmMul_vac_64f_L,  VAC,  L, double, Discards, ownzelmMul_vac_64f_L,  ownzelmMul_vac_64f_LS2)
FRONT(ownOMP_zelmMul_vca_32f_L,  VCA,  L, float,  Discards, ownzelmMul_vca_32f_L,  ownzelmMul_vca_32f_LS2)
FRONT(ownOMP_zelmMul_vca_64f_L,  VCA,  L, double, Discards, ownzelmMul_vca_64f_L,  ownzelmMul_vca_64f_LS2)
FRONT(ownOMP_zelmMul_vaca_32f_L, VACA, L, float,  Discards, ownzelmMul_vaca_32f_L, ownzelmMul_vaca_32f_LS2)
FRONT(ownOMP_zelmMul_vaca_64f_L, VACA, L, double, Discards, ownzelmMul_vaca_64f_L, ownzelmMul_vaca_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mac_32f_P,  MAC,  P, float,  Discards, ownzelmMul_mac_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mac_64f_P,  MAC,  P, double, Discards, ownzelmMul_mac_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tac_32f_P,  TAC,  P, float,  Discards, ownzelmMul_tac_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tac_64f_P,  TAC,  P, double, Discards, ownzelmMul_tac_64f_P)
FRONT_POINTER(ownOMP_zelmMul_vac_32f_P,  VAC,  P, float,  Discards, ownzelmMul_vac_32f_P)
FRONT_POINTER(ownOMP_zelmMul_vac_64f_P,  VAC,  P, double, Discards, ownzelmMul_vac_64f_P)
FRONT_POINTER(ownOMP_zelmMul_vca_32f_P,  VCA,  P, float,  Discards, ownzelmMul_vca_32f_P)
FRONT_POINTER(ownOMP_zelmMul_vca_64f_P,  VCA,  P, double, Discards, ownzelmMul_vca_64f_P)
FRONT_POINTER(ownOMP_zelmMul_vaca_32f_P, VACA, P, float,  Discards, ownzelmMul_vaca_32f_P)
FRONT_POINTER(ownOMP_zelmMul_vaca_64f_P, VACA, P, double, Discards, ownzelmMul_vaca_64f_P)
// clang-format on
