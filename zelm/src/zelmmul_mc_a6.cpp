// Kernels on four-wide `32f` vectors: Mul on a matrix or a vector and a constant, unit strides.
#include "zelmscale.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mc_32f, MC_S, UNIT, float, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tc_32f, TC_S, UNIT, float, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vc_32f, VC_S, UNIT, float, scaleVectors,  Sizes<3, 4, 5, 6>)
// clang-format on
