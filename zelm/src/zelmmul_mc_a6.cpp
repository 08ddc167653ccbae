// Kernels on four-wide `32f` vectors: Mul on a matrix or a vector and a constant, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mc_32f, MC, S, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tc_32f, TC, S, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vc_32f, VC, S, UNIT, float, elementwise<Times, Sizes<3, 4, 5, 6>>)
// clang-format on
