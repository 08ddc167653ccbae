// Portable kernels: Mul on arrays of matrices or vectors and constants, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//                kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmMul_mac_32f_S2,  MAC, S, ANY, float,  MC, ownzelmMul_mc_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mac_64f_S2,  MAC, S, ANY, double, MC, ownzelmMul_mc_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tac_32f_S2,  TAC, S, ANY, float,  TC, ownzelmMul_tc_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tac_64f_S2,  TAC, S, ANY, double, TC, ownzelmMul_tc_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mac_32f_LS2, MAC, L, ANY, float,  MC, ownzelmMul_mc_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_mac_64f_LS2, MAC, L, ANY, double, MC, ownzelmMul_mc_64f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tac_32f_LS2, TAC, L, ANY, float,  TC, ownzelmMul_tc_32f_S2)
KERNEL_PER_OBJECT(ownzelmMul_tac_64f_LS2, TAC, L, ANY, double, TC, ownzelmMul_tc_64f_S2)

//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_vac_32f_S2,   VAC,  S, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vac_64f_S2,   VAC,  S, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vca_32f_S2,   VCA,  S, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vca_64f_S2,   VCA,  S, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vaca_32f_S2,  VACA, S, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vaca_64f_S2,  VACA, S, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vac_32f_LS2,  VAC,  L, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vac_64f_LS2,  VAC,  L, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vca_32f_LS2,  VCA,  L, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vca_64f_LS2,  VCA,  L, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vaca_32f_LS2, VACA, L, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vaca_64f_LS2, VACA, L, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)

KERNEL(ownzelmMul_mac_32f_P,  MAC,  P, ANY, float,  elementwise<Times>)
KERNEL(ownzelmMul_mac_64f_P,  MAC,  P, ANY, double, elementwise<Times>)
KERNEL(ownzelmMul_tac_32f_P,  TAC,  P, ANY, float,  elementwise<Times>)
KERNEL(ownzelmMul_tac_64f_P,  TAC,  P, ANY, double, elementwise<Times>)
KERNEL(ownzelmMul_vac_32f_P,  VAC,  P, ANY, float,  elementwise<Times>)
KERNEL(ownzelmMul_vac_64f_P,  VAC,  P, ANY, double, elementwise<Times>)
KERNEL(ownzelmMul_vca_32f_P,  VCA,  P, ANY, float,  elementwise<Times>)
KERNEL(ownzelmMul_vca_64f_P,  VCA,  P, ANY, double, elementwise<Times>)
KERNEL(ownzelmMul_vaca_32f_P, VACA, P, ANY, float,  elementwise<Times>)
KERNEL(ownzelmMul_vaca_64f_P, VACA, P, ANY, double, elementwise<Times>)
// clang-format on
