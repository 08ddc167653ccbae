// Portable kernels: Mul on a matrix or a vector and a constant, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel  arguments strides type  body  straight-line sizes
KERNEL(ownzelmMul_mc_32f_S2, MC, S, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_mc_64f_S2, MC, S, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tc_32f_S2, TC, S, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_tc_64f_S2, TC, S, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vc_32f_S2, VC, S, ANY, float,  elementwise<Times, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmMul_vc_64f_S2, VC, S, ANY, double, elementwise<Times, Sizes<3, 4, 5, 6>>)

KERNEL(ownzelmMul_mc_32f_P, MC, P, ANY, float,  elementwise<Times>)
KERNEL(ownzelmMul_mc_64f_P, MC, P, ANY, double, elementwise<Times>)
KERNEL(ownzelmMul_tc_32f_P, TC, P, ANY, float,  elementwise<Times>)
KERNEL(ownzelmMul_tc_64f_P, TC, P, ANY, double, elementwise<Times>)
KERNEL(ownzelmMul_vc_32f_P, VC, P, ANY, float,  elementwise<Times>)
KERNEL(ownzelmMul_vc_64f_P, VC, P, ANY, double, elementwise<Times>)
// clang-format on
