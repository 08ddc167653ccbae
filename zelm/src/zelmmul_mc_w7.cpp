// Kernels on two-wide `64f` vectors: Mul on a matrix or a vector and a constant, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mc_64f, MC, S, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tc_64f, TC, S, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vc_64f, VC, S, UNIT, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
// clang-format on
