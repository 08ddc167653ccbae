// Kernels on two-wide `64f` vectors: Mul on arrays of matrices or vectors and constants, unit strides.
#include "zelmscale.h"

// clang-format off
// The straight-line sizes of tac stop at 5 in 64f; this is meant.
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mac_64f,    MAC_S,  UNIT, double, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tac_64f,    TAC_S,  UNIT, double, scaleMatrices, Sizes<3, 4, 5>)
KERNEL(ownzelmMul_vac_64f,    VAC_S,  UNIT, double, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vca_64f,    VCA_S,  UNIT, double, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vaca_64f,   VACA_S, UNIT, double, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mac_64f_L,  MAC_L,  UNIT, double, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tac_64f_L,  TAC_L,  UNIT, double, scaleMatrices, Sizes<3, 4, 5>)
KERNEL(ownzelmMul_vac_64f_L,  VAC_L,  UNIT, double, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vca_64f_L,  VCA_L,  UNIT, double, scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vaca_64f_L, VACA_L, UNIT, double, scaleVectors,  Sizes<3, 4, 5, 6>)
// clang-format on
