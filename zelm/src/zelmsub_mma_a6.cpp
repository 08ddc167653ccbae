// Kernels on four-wide `32f` vectors: Sub of an array of matrices from a single one, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mma_32f,   MMA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mta_32f,   MTA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tma_32f,   TMA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tta_32f,   TTA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mma_32f_L, MMA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mta_32f_L, MTA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tma_32f_L, TMA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tta_32f_L, TTA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
// clang-format on
