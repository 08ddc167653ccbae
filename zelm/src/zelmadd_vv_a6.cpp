// Kernels on four-wide `32f` vectors: Add on single vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_vv_32f, VV, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vc_32f, VC, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
// clang-format on
