// Kernels on two-wide `64f` vectors: Add on single vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_vv_64f, VV, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vc_64f, VC, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
// clang-format on
