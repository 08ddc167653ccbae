// Portable kernels: Mul on arrays of matrices or vectors and constants, any strides and pointer layout.
#include "zelmscale.h"

// clang-format off
//                kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmMul_mac_32f_S2,  MAC_S, ANY, float,  MC_S, ownzelmMul_mc_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mac_64f_S2,  MAC_S, ANY, double, MC_S, ownzelmMul_mc_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tac_32f_S2,  TAC_S, ANY, float,  TC_S, ownzelmMul_tc_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tac_64f_S2,  TAC_S, ANY, double, TC_S, ownzelmMul_tc_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mac_32f_LS2, MAC_L, ANY, float,  MC_S, ownzelmMul_mc_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mac_64f_LS2, MAC_L, ANY, double, MC_S, ownzelmMul_mc_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tac_32f_LS2, TAC_L, ANY, float,  TC_S, ownzelmMul_tc_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tac_64f_LS2, TAC_L, ANY, double, TC_S, ownzelmMul_tc_64f_S2)

//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_vac_32f_S2,   VAC_S,  ANY, float,  scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vac_64f_S2,   VAC_S,  ANY, double, scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vca_32f_S2,   VCA_S,  ANY, float,  scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vca_64f_S2,   VCA_S,  ANY, double, scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vaca_32f_S2,  VACA_S, ANY, float,  scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vaca_64f_S2,  VACA_S, ANY, double, scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vac_32f_LS2,  VAC_L,  ANY, float,  scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vac_64f_LS2,  VAC_L,  ANY, double, scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vca_32f_LS2,  VCA_L,  ANY, float,  scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vca_64f_LS2,  VCA_L,  ANY, double, scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vaca_32f_LS2, VACA_L, ANY, float,  scaleVectors, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmMul_vaca_64f_LS2, VACA_L, ANY, double, scaleVectors, Sizes<3, 4, 5, 6>)

KERNEL(ownzelmMul_mac_32f_P,  MAC_P,  ANY, float,  scalePositions,       EverySize)
KERNEL(ownzelmMul_mac_64f_P,  MAC_P,  ANY, double, scalePositions,       EverySize)
KERNEL(ownzelmMul_tac_32f_P,  TAC_P,  ANY, float,  scalePositions,       EverySize)
KERNEL(ownzelmMul_tac_64f_P,  TAC_P,  ANY, double, scalePositions,       EverySize)
KERNEL(ownzelmMul_vac_32f_P,  VAC_P,  ANY, float,  scaleVectorPositions, EverySize)
KERNEL(ownzelmMul_vac_64f_P,  VAC_P,  ANY, double, scaleVectorPositions, EverySize)
KERNEL(ownzelmMul_vca_32f_P,  VCA_P,  ANY, float,  scaleVectorPositions, EverySize)
KERNEL(ownzelmMul_vca_64f_P,  VCA_P,  ANY, double, scaleVectorPositions, EverySize)
KERNEL(ownzelmMul_vaca_32f_P, VACA_P, ANY, float,  scaleVectorPositions, EverySize)
KERNEL(ownzelmMul_vaca_64f_P, VACA_P, ANY, double, scaleVectorPositions, EverySize)
// clang-format on
