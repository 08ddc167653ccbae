// Parallel fronts: DotProduct.
#include "zelmfront.h"
#include "zelmvectorsignature.h"

// clang-format off
//    front  arguments  type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmDotProduct_vav_32f,    DOT_VAV,  S, float,  Discards, ownzelmDotProduct_vav_32f,    ownzelmDotProduct_vav_32f_S2)
FRONT(ownOMP_zelmDotProduct_vava_32f,   DOT_VAVA, S, float,  Discards, ownzelmDotProduct_vava_32f,   ownzelmDotProduct_vava_32f_S2)
FRONT(ownOMP_zelmDotProduct_vav_64f,    DOT_VAV,  S, double, Discards, ownzelmDotProduct_vav_64f,    ownzelmDotProduct_vav_64f_S2)
FRONT(ownOMP_zelmDotProduct_vava_64f,   DOT_VAVA, S, double, Discards, ownzelmDotProduct_vava_64f,   ownzelmDotProduct_vava_64f_S2)
FRONT(ownOMP_zelmDotProduct_vav_32f_L,  DOT_VAV,  L, float,  Discards, ownzelmDotProduct_vav_32f_L,  ownzelmDotProduct_vav_32f_LS2)
FRONT(ownOMP_zelmDotProduct_vava_32f_L, DOT_VAVA, L, float,  Discards, ownzelmDotProduct_vava_32f_L, ownzelmDotProduct_vava_32f_LS2)
FRONT(ownOMP_zelmDotProduct_vav_64f_L,  DOT_VAV,  L, double, Discards, ownzelmDotProduct_vav_64f_L,  ownzelmDotProduct_vav_64f_LS2)
FRONT(ownOMP_zelmDotProduct_vava_64f_L, DOT_VAVA, L, double, Discards, ownzelmDotProduct_vava_64f_L, ownzelmDotProduct_vava_64f_LS2)

//            front  arguments  type  statuses  kernel
FRONT_POINTER(ownOMP_zelmDotProduct_vav_32f_P,  DOT_VAV,  P, float,  Discards, ownzelmDotProduct_vav_32f_P)
FRONT_POINTER(ownOMP_zelmDotProduct_vava_32f_P, DOT_VAVA, P, float,  Discards, ownzelmDotProduct_vava_32f_P)
FRONT_POINTER(ownOMP_zelmDotProduct_vav_64f_P,  DOT_VAV,  P, double, Discards, ownzelmDotProduct_vav_64f_P)
FRONT_POINTER(ownOMP_zelmDotProduct_vava_64f_P, DOT_VAVA, P, double, Discards, ownzelmDotProduct_vava_64f_P)
// clang-format on
