// Kernels on four-wide `32f` vectors: Mul on arrays of matrices or vectors and constants, unit strides.
#include "zelmscale.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mac_32f,    MAC_S,  UNIT, float, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tac_32f,    TAC_S,  UNIT, float, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vac_32f,    VAC_S,  UNIT, float, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vca_32f,    VCA_S,  UNIT, float, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vaca_32f,   VACA_S, UNIT, float, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mac_32f_L,  MAC_L,  UNIT, float, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tac_32f_L,  TAC_L,  UNIT, float, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vac_32f_L,  VAC_L,  UNIT, float, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vca_32f_L,  VCA_L,  UNIT, float, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vaca_32f_L, VACA_L, UNIT, float, scaleVectors,  Sizes<3, 4, 5, 6>)
// clang-format on
