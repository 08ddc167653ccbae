// Parallel fronts: LComb.
#include "zelmfront.h"
#include "zelmvectorsignature.h"

// clang-format off
//    front  arguments  type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmLComb_vav_32f,    LCOMB_VAV,  S, float,  Discards, ownzelmLComb_vav_32f,    ownzelmLComb_vav_32f_S2)
FRONT(ownOMP_zelmLComb_vava_32f,   LCOMB_VAVA, S, float,  Discards, ownzelmLComb_vava_32f,   ownzelmLComb_vava_32f_S2)
FRONT(ownOMP_zelmLComb_vav_64f,    LCOMB_VAV,  S, double, Discards, ownzelmLComb_vav_64f,    ownzelmLComb_vav_64f_S2)
FRONT(ownOMP_zelmLComb_vava_64f,   LCOMB_VAVA, S, double, Discards, ownzelmLComb_vava_64f,   ownzelmLComb_vava_64f_S2)
FRONT(ownOMP_zelmLComb_vav_32f_L,  LCOMB_VAV,  L, float,  Discards, ownzelmLComb_vav_32f_L,  ownzelmLComb_vav_32f_LS2)
FRONT(ownOMP_zelmLComb_vava_32f_L, LCOMB_VAVA, L, float,  Discards, ownzelmLComb_vava_32f_L, ownzelmLComb_vava_32f_LS2)
FRONT(ownOMP_zelmLComb_vav_64f_L,  LCOMB_VAV,  L, double, Discards, ownzelmLComb_vav_64f_L,  ownzelmLComb_vav_64f_LS2)
FRONT(ownOMP_zelmLComb_vava_64f_L, LCOMB_VAVA, L, double, Discards, ownzelmLComb_vava_64f_L, ownzelmLComb_vava_64f_LS2)

//            front  arguments  type  statuses  kernel
FRONT_POINTER(ownOMP_zelmLComb_vav_32f_P,  LCOMB_VAV,  P, float,  Discards, ownzelmLComb_vav_32f_P)
FRONT_POINTER(ownOMP_zelmLComb_vava_32f_P, LCOMB_VAVA, P, float,  Discards, ownzelmLComb_vava_32f_P)
FRONT_POINTER(ownOMP_zelmLComb_vav_64f_P,  LCOMB_VAV,  P, double, Discards, ownzelmLComb_vav_64f_P)
FRONT_POINTER(ownOMP_zelmLComb_vava_64f_P, LCOMB_VAVA, P, double, Discards, ownzelmLComb_vava_64f_P)
// clang-format on
