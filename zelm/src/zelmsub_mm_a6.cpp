// Kernels on four-wide `32f` vectors: Sub on single matrices, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mm_32f, MM, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mt_32f, MT, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tm_32f, TM, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tt_32f, TT, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
// clang-format on
