// Kernels on two-wide `64f` vectors: Sub of an array of matrices from a single one, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mma_64f,   MMA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mta_64f,   MTA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tma_64f,   TMA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tta_64f,   TTA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mta_64f_L, MTA, L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tta_64f_L, TTA, L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmSub_mma_64f_L, MMA, L, UNIT, double, MM, ownzelmSub_mm_64f)
KERNEL_PER_OBJECT(ownzelmSub_tma_64f_L, TMA, L, UNIT, double, TM, ownzelmSub_tm_64f)
// clang-format on
