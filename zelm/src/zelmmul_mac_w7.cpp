// Kernels on two-wide `64f` vectors: Mul on arrays of matrices or vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
// The straight-line sizes of tac stop at 5 in 64f; this is meant.
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mac_64f,    MAC,  S, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tac_64f,    TAC,  S, UNIT, double, elementwise<Times, Sizes<3, 4, 5>>)
KERNEL(ownzelmMul_vac_64f,    VAC,  S, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vca_64f,    VCA,  S, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vaca_64f,   VACA, S, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mac_64f_L,  MAC,  L, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tac_64f_L,  TAC,  L, UNIT, double, elementwise<Times, Sizes<3, 4, 5>>)
KERNEL(ownzelmMul_vac_64f_L,  VAC,  L, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vca_64f_L,  VCA,  L, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vaca_64f_L, VACA, L, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
// clang-format on
