// Parallel fronts: Mul on arrays of matrices or vectors and constants.
#include "zelmfront.h"
#include "zelmscale.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmMul_mac_32f,    MAC_S,  float,  Discards, ownzelmMul_mac_32f,    ownzelmMul_mac_32f_S2)
FRONT(ownOMP_zelmMul_mac_64f,    MAC_S,  double, Discards, ownzelmMul_mac_64f,    ownzelmMul_mac_64f_S2)
FRONT(ownOMP_zelmMul_tac_32f,    TAC_S,  float,  Discards, ownzelmMul_tac_32f,    ownzelmMul_tac_32f_S2)
FRONT(ownOMP_zelmMul_tac_64f,    TAC_S,  double, Discards, ownzelmMul_tac_64f,    ownzelmMul_tac_64f_S2)
FRONT(ownOMP_zelmMul_vac_32f,    VAC_S,  float,  Discards, ownzelmMul_vac_32f,    ownzelmMul_vac_32f_S2)
FRONT(ownOMP_zelmMul_vac_64f,    VAC_S,  double, Discards, ownzelmMul_vac_64f,    ownzelmMul_vac_64f_S2)
FRONT(ownOMP_zelmMul_vca_32f,    VCA_S,  float,  Discards, ownzelmMul_vca_32f,    ownzelmMul_vca_32f_S2)
FRONT(ownOMP_zelmMul_vca_64f,    VCA_S,  double, Discards, ownzelmMul_vca_64f,    ownzelmMul_vca_64f_S2)
FRONT(ownOMP_zelmMul_vaca_32f,   VACA_S, float,  Discards, ownzelmMul_vaca_32f,   ownzelmMul_vaca_32f_S2)
FRONT(ownOMP_zelmMul_vaca_64f,   VACA_S, double, Discards, ownzelmMul_vaca_64f,   ownzelmMul_vaca_64f_S2)
FRONT(ownOMP_zelmMul_mac_32f_L,  MAC_L,  float,  Discards, ownzelmMul_mac_32f_L,  ownzelmMul_mac_32f_LS2)
FRONT(ownOMP_zelmMul_mac_64f_L,  MAC_L,  double, Discards, ownzelmMul_mac_64f_L,  ownzelmMul_mac_64f_LS2)
FRONT(ownOMP_zelmMul_tac_32f_L,  TAC_L,  float,  Discards, ownzelmMul_tac_32f_L,  ownzelmMul_tac_32f_LS2)
FRONT(ownOMP_zelmMul_tac_64f_L,  TAC_L,  double, Discards, ownzelmMul_tac_64f_L,  ownzelmMul_tac_64f_LS2)
FRONT(ownOMP_zelmMul_vac_32f_L,  VAC_L,  float,  Discards, ownzelmMul_vac_32f_L,  ownzelmMul_vac_32f_LS2)
FRONT(ownOMP_zelmMul_vac_64f_L,  VAC_L,  double, Discards, ownzelmMul_vac_64f_L,  ownzelmMul_vac_64f_LS2)
FRONT(ownOMP_zelmMul_vca_32f_L,  VCA_L,  float,  Discards, ownzelmMul_vca_32f_L,  ownzelmMul_vca_32f_LS2)
FRONT(ownOMP_zelmMul_vca_64f_L,  VCA_L,  double, Discards, ownzelmMul_vca_64f_L,  ownzelmMul_vca_64f_LS2)
FRONT(ownOMP_zelmMul_vaca_32f_L, VACA_L, float,  Discards, ownzelmMul_vaca_32f_L, ownzelmMul_vaca_32f_LS2)
FRONT(ownOMP_zelmMul_vaca_64f_L, VACA_L, double, Discards, ownzelmMul_vaca_64f_L, ownzelmMul_vaca_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmMul_mac_32f_P,  MAC_P,  float,  Discards, ownzelmMul_mac_32f_P)
FRONT_POINTER(ownOMP_zelmMul_mac_64f_P,  MAC_P,  double, Discards, ownzelmMul_mac_64f_P)
FRONT_POINTER(ownOMP_zelmMul_tac_32f_P,  TAC_P,  float,  Discards, ownzelmMul_tac_32f_P)
FRONT_POINTER(ownOMP_zelmMul_tac_64f_P,  TAC_P,  double, Discards, ownzelmMul_tac_64f_P)
FRONT_POINTER(ownOMP_zelmMul_vac_32f_P,  VAC_P,  float,  Discards, ownzelmMul_vac_32f_P)
FRONT_POINTER(ownOMP_zelmMul_vac_64f_P,  VAC_P,  double, Discards, ownzelmMul_vac_64f_P)
FRONT_POINTER(ownOMP_zelmMul_vca_32f_P,  VCA_P,  float,  Discards, ownzelmMul_vca_32f_P)
FRONT_POINTER(ownOMP_zelmMul_vca_64f_P,  VCA_P,  double, Discards, ownzelmMul_vca_64f_P)
FRONT_POINTER(ownOMP_zelmMul_vaca_32f_P, VACA_P, float,  Discards, ownzelmMul_vaca_32f_P)
FRONT_POINTER(ownOMP_zelmMul_vaca_64f_P, VACA_P, double, Discards, ownzelmMul_vaca_64f_P)
// clang-format on
