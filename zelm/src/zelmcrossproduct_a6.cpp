// Kernels on four-wide `32f` vectors: CrossProduct, unit strides.
#include "zelmcrossproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmCrossProduct_vv_32f,     CROSS_VV,   S, UNIT, float, crossProducts)
KERNEL(ownzelmCrossProduct_vav_32f,    CROSS_VAV,  S, UNIT, float, crossProducts)
KERNEL(ownzelmCrossProduct_vva_32f,    CROSS_VVA,  S, UNIT, float, crossProducts)
KERNEL(ownzelmCrossProduct_vava_32f,   CROSS_VAVA, S, UNIT, float, crossProducts)
KERNEL(ownzelmCrossProduct_vav_32f_L,  CROSS_VAV,  L, UNIT, float, crossProducts)
KERNEL(ownzelmCrossProduct_vva_32f_L,  CROSS_VVA,  L, UNIT, float, crossProducts)
KERNEL(ownzelmCrossProduct_vava_32f_L, CROSS_VAVA, L, UNIT, float, crossProducts)
// clang-format on
