// Parallel fronts: CrossProduct.
#include "zelmfront.h"
#include "zelmvectorsignature.h"

// clang-format off
//    front  arguments  type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmCrossProduct_vav_32f,    CROSS_VAV,  S, float,  Discards, ownzelmCrossProduct_vav_32f,    ownzelmCrossProduct_vav_32f_S2)
FRONT(ownOMP_zelmCrossProduct_vva_32f,    CROSS_VVA,  S, float,  Discards, ownzelmCrossProduct_vva_32f,    ownzelmCrossProduct_vva_32f_S2)
FRONT(ownOMP_zelmCrossProduct_vava_32f,   CROSS_VAVA, S, float,  Discards, ownzelmCrossProduct_vava_32f,   ownzelmCrossProduct_vava_32f_S2)
FRONT(ownOMP_zelmCrossProduct_vav_64f,    CROSS_VAV,  S, double, Discards, ownzelmCrossProduct_vav_64f,    ownzelmCrossProduct_vav_64f_S2)
FRONT(ownOMP_zelmCrossProduct_vva_64f,    CROSS_VVA,  S, double, Discards, ownzelmCrossProduct_vva_64f,    ownzelmCrossProduct_vva_64f_S2)
FRONT(ownOMP_zelmCrossProduct_vava_64f,   CROSS_VAVA, S, double, Discards, ownzelmCrossProduct_vava_64f,   ownzelmCrossProduct_vava_64f_S2)
FRONT(ownOMP_zelmCrossProduct_vav_32f_L,  CROSS_VAV,  L, float,  Discards, ownzelmCrossProduct_vav_32f_L,  ownzelmCrossProduct_vav_32f_LS2)
FRONT(ownOMP_zelmCrossProduct_vva_32f_L,  CROSS_VVA,  L, float,  Discards, ownzelmCrossProduct_vva_32f_L,  ownzelmCrossProduct_vva_32f_LS2)
FRONT(ownOMP_zelmCrossProduct_vava_32f_L, CROSS_VAVA, L, float,  Discards, ownzelmCrossProduct_vava_32f_L, ownzelmCrossProduct_vava_32f_LS2)
FRONT(ownOMP_zelmCrossProduct_vav_64f_L,  CROSS_VAV,  L, double, Discards, ownzelmCrossProduct_vav_64f_L,  ownzelmCrossProduct_vav_64f_LS2)
FRONT(ownOMP_zelmCrossProduct_vva_64f_L,  CROSS_VVA,  L, double, Discards, ownzelmCrossProduct_vva_64f_L,  ownzelmCrossProduct_vva_64f_LS2)
FRONT(ownOMP_zelmCrossProduct_vava_64f_L, CROSS_VAVA, L, double, Discards, ownzelmCrossProduct_vava_64f_L, ownzelmCrossProduct_vava_64f_LS2)

//            front  arguments  type  statuses  kernel
FRONT_POINTER(ownOMP_zelmCrossProduct_vav_32f_P,  CROSS_VAV,  P, float,  Discards, ownzelmCrossProduct_vav_32f_P)
FRONT_POINTER(ownOMP_zelmCrossProduct_vva_32f_P,  CROSS_VVA,  P, float,  Discards, ownzelmCrossProduct_vva_32f_P)
FRONT_POINTER(ownOMP_zelmCrossProduct_vava_32f_P, CROSS_VAVA, P, float,  Discards, ownzelmCrossProduct_vava_32f_P)
FRONT_POINTER(ownOMP_zelmCrossProduct_vav_64f_P,  CROSS_VAV,  P, double, Discards, ownzelmCrossProduct_vav_64f_P)
FRONT_POINTER(ownOMP_zelmCrossProduct_vava_64f_P, CROSS_VAVA, P, double, Discards, ownzelmCrossProduct_vava_64f_P)
// clang-format on
