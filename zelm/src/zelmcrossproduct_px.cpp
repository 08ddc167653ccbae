// Portable kernels: CrossProduct, any strides and pointer layout.
#include "zelmcrossproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmCrossProduct_vv_32f_S2,    CROSS_VV,   S, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vv_64f_S2,    CROSS_VV,   S, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vv_32f_P,     CROSS_VV,   P, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vv_64f_P,     CROSS_VV,   P, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vav_32f_S2,   CROSS_VAV,  S, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vva_32f_S2,   CROSS_VVA,  S, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vava_32f_S2,  CROSS_VAVA, S, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vav_64f_S2,   CROSS_VAV,  S, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vva_64f_S2,   CROSS_VVA,  S, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vava_64f_S2,  CROSS_VAVA, S, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vav_32f_LS2,  CROSS_VAV,  L, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vva_32f_LS2,  CROSS_VVA,  L, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vava_32f_LS2, CROSS_VAVA, L, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vav_64f_LS2,  CROSS_VAV,  L, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vva_64f_LS2,  CROSS_VVA,  L, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vava_64f_LS2, CROSS_VAVA, L, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vav_32f_P,    CROSS_VAV,  P, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vva_32f_P,    CROSS_VVA,  P, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vava_32f_P,   CROSS_VAVA, P, ANY, float,  crossProducts)
KERNEL(ownzelmCrossProduct_vav_64f_P,    CROSS_VAV,  P, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vva_64f_P,    CROSS_VVA,  P, ANY, double, crossProducts)
KERNEL(ownzelmCrossProduct_vava_64f_P,   CROSS_VAVA, P, ANY, double, crossProducts)
// clang-format on
