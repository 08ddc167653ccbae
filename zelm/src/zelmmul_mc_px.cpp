// Portable kernels: Mul on a matrix or a vector and a constant, any strides and pointer layout.
#include "zelmscale.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mc_32f_S2, MC_S, ANY, float,  scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_mc_64f_S2, MC_S, ANY, double, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tc_32f_S2, TC_S, ANY, float,  scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_tc_64f_S2, TC_S, ANY, double, scaleMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vc_32f_S2, VC_S, ANY, float,  scaleVectors,  Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vc_64f_S2, VC_S, ANY, double, scaleVectors,  Sizes<3, 4, 5, 6>)

KERNEL(ownzelmMul_mc_32f_P, MC_P, ANY, float,  scalePositions,       EverySize)
KERNEL(ownzelmMul_mc_64f_P, MC_P, ANY, double, scalePositions,       EverySize)
KERNEL(ownzelmMul_tc_32f_P, TC_P, ANY, float,  scalePositions,       EverySize)
KERNEL(ownzelmMul_tc_64f_P, TC_P, ANY, double, scalePositions,       EverySize)
KERNEL(ownzelmMul_vc_32f_P, VC_P, ANY, float,  scaleVectorPositions, EverySize)
KERNEL(ownzelmMul_vc_64f_P, VC_P, ANY, double, scaleVectorPositions, EverySize)
// clang-format on
