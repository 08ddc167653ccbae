// Kernels on two-wide `64f` vectors: CrossProduct, unit strides.
#include "zelmcrossproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmCrossProduct_vv_64f,     CROSS_VV,   S, UNIT, double, crossProducts)
KERNEL(ownzelmCrossProduct_vav_64f,    CROSS_VAV,  S, UNIT, double, crossProducts)
KERNEL(ownzelmCrossProduct_vva_64f,    CROSS_VVA,  S, UNIT, double, crossProducts)
KERNEL(ownzelmCrossProduct_vava_64f,   CROSS_VAVA, S, UNIT, double, crossProducts)
KERNEL(ownzelmCrossProduct_vav_64f_L,  CROSS_VAV,  L, UNIT, double, crossProducts)
KERNEL(ownzelmCrossProduct_vva_64f_L,  CROSS_VVA,  L, UNIT, double, crossProducts)
KERNEL(ownzelmCrossProduct_vava_64f_L, CROSS_VAVA, L, UNIT, double, crossProducts)
// clang-format on
