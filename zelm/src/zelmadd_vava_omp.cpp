// Parallel fronts: Add on arrays of vectors and constants.
#include "zelmfront.h"

// clang-format off
//    front, arguments, layout, type, statuses, kernels: unit strides, any
FRONT(ownOMP_zelmAdd_vav_32f,    VAV,  S, float,  Discards, ownzelmAdd_vav_32f,    ownzelmAdd_vav_32f_S2)
FRONT(ownOMP_zelmAdd_vav_64f,    VAV,  S, double, Discards, ownzelmAdd_vav_64f,    ownzelmAdd_vav_64f_S2)
FRONT(ownOMP_zelmAdd_vava_32f,   VAVA, S, float,  Discards, ownzelmAdd_vava_32f,   ownzelmAdd_vava_32f_S2)
FRONT(ownOMP_zelmAdd_vava_64f,   VAVA, S, double, Discards, ownzelmAdd_vava_64f,   ownzelmAdd_vava_64f_S2)
FRONT(ownOMP_zelmAdd_vac_32f,    VAC,  S, float,  Discards, ownzelmAdd_vac_32f,    ownzelmAdd_vac_32f_S2)
FRONT(ownOMP_zelmAdd_vac_64f,    VAC,  S, double, Discards, ownzelmAdd_vac_64f,    ownzelmAdd_vac_64f_S2)
FRONT(ownOMP_zelmAdd_vca_32f,    VCA,  S, float,  Discards, ownzelmAdd_vca_32f,    ownzelmAdd_vca_32f_S2)
FRONT(ownOMP_zelmAdd_vca_64f,    VCA,  S, double, Discards, ownzelmAdd_vca_64f,    ownzelmAdd_vca_64f_S2)
FRONT(ownOMP_zelmAdd_vaca_32f,   VACA, S, float,  Discards, ownzelmAdd_vaca_32f,   ownzelmAdd_vaca_32f_S2)
FRONT(ownOMP_zelmAdd_vaca_64f,   VACA, S, double, Discards, ownzelmAdd_vaca_64f,   ownzelmAdd_vaca_64f_S2)
FRONT(ownOMP_zelmAdd_vav_32f_L,  VAV,  L, float,  Discards, ownzelmAdd_vav_32f_L,  ownzelmAdd_vav_32f_LS2)
FRONT(ownOMP_zelmAdd_vav_64f_L,  VAV,  L, double, Discards, ownzelmAdd_vav_64f_L,  ownzelmAdd_vav_64f_LS2)
FRONT(ownOMP_zelmAdd_vava_32f_L, VAVA, L, float,  Discards, ownzelmAdd_vava_32f_L, ownzelmAdd_vava_32f_LS2)
FRONT(ownOMP_zelmAdd_vava_64f_L, VAVA, L, double, Discards, ownzelmAdd_vava_64f_L, ownzelmAdd_vava_64f_LS2)
FRONT(ownOMP_zelmAdd_vac_32f_L,  VAC,  L, float,  Discards, ownzelmAdd_vac_32f_L,  ownzelmAdd_vac_32f_LS2)
FRONT(ownOMP_zelmAdd_vac_64f_L,  VAC,  L, double, Discards, ownzelmAdd_vac_64f_L,  ownzelmAdd_vac_64f_LS2)
FRONT(ownOMP_zelmAdd_vca_32f_L,  VCA,  L, float,  Discards, ownzelmAdd_vca_32f_L,  ownzelmAdd_vca_32f_LS2)
FRONT(ownOMP_zelmAdd_vca_64f_L,  VCA,  L, double, Discards, ownzelmAdd_vca_64f_L,  ownzelmAdd_vca_64f_LS2)
FRONT(ownOMP_zelmAdd_vaca_32f_L, VACA, L, float,  Discards, ownzelmAdd_vaca_32f_L, ownzelmAdd_vaca_32f_LS2)
FRONT(ownOMP_zelmAdd_vaca_64f_L, VACA, L, double, Discards, ownzelmAdd_vaca_64f_L, ownzelmAdd_vaca_64f_LS2)

//            front, arguments, layout, type, statuses, kernel
FRONT_POINTER(ownOMP_zelmAdd_vav_32f_P,  VAV,  P, float,  Discards, ownzelmAdd_vav_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_vav_64f_P,  VAV,  P, double, Discards, ownzelmAdd_vav_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_vava_32f_P, VAVA, P, float,  Discards, ownzelmAdd_vava_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_vava_64f_P, VAVA, P, double, Discards, ownzelmAdd_vava_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_vac_32f_P,  VAC,  P, float,  Discards, ownzelmAdd_vac_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_vac_64f_P,  VAC,  P, double, Discards, ownzelmAdd_vac_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_vca_32f_P,  VCA,  P, float,  Discards, ownzelmAdd_vca_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_vca_64f_P,  VCA,  P, double, Discards, ownzelmAdd_vca_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_vaca_32f_P, VACA, P, float,  Discards, ownzelmAdd_vaca_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_vaca_64f_P, VACA, P, double, Discards, ownzelmAdd_vaca_64f_P)
// clang-format on
