// Kernels on two-wide `64f` vectors: Sub on two arrays of matrices, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mama_64f,   MAMA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mata_64f,   MATA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tama_64f,   TAMA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tata_64f,   TATA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mata_64f_L, MATA, L, UNIT, double, elementwise<Minus>)
KERNEL(ownzelmSub_tata_64f_L, TATA, L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmSub_mama_64f_L, MAMA, L, UNIT, double, MM, ownzelmSub_mm_64f)
KERNEL_PER_OBJECT(ownzelmSub_tama_64f_L, TAMA, L, UNIT, double, TM, ownzelmSub_tm_64f)
// clang-format on
