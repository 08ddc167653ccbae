// Kernels on four-wide `32f` vectors: Sub on single vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_vv_32f, VV, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vc_32f, VC, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cv_32f, CV, S, UNIT, float, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
// clang-format on
