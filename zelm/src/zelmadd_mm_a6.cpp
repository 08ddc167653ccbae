// Kernels on four-wide `32f` vectors: Add on single matrices, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mm_32f, MM, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5>>)
KERNEL(ownzelmAdd_tm_32f, TM, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5>>)
KERNEL(ownzelmAdd_tt_32f, TT, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5>>)
// clang-format on
