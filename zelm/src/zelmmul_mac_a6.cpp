// Kernels on four-wide `32f` vectors: Mul on arrays of matrices or vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mac_32f,    MAC,  S, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tac_32f,    TAC,  S, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vac_32f,    VAC,  S, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vca_32f,    VCA,  S, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vaca_32f,   VACA, S, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mac_32f_L,  MAC,  L, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tac_32f_L,  TAC,  L, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vac_32f_L,  VAC,  L, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vca_32f_L,  VCA,  L, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vaca_32f_L, VACA, L, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
// clang-format on
