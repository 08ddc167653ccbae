// Kernels on two-wide `64f` vectors: Sub on single vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_vv_64f, VV, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vc_64f, VC, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cv_64f, CV, S, UNIT, double, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
// clang-format on
