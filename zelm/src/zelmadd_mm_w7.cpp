// Kernels on two-wide `64f` vectors: Add on single matrices, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mm_64f, MM, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5>>)
KERNEL(ownzelmAdd_tm_64f, TM, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5>>)
KERNEL(ownzelmAdd_tt_64f, TT, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5>>)
// clang-format on
