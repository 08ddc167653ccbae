// Kernels on four-wide `32f` vectors: Sub on two arrays of matrices, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mama_32f,   MAMA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mata_32f,   MATA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tama_32f,   TAMA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tata_32f,   TATA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mama_32f_L, MAMA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mata_32f_L, MATA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tama_32f_L, TAMA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmSub_tata_32f_L, TATA, L, UNIT, float, TT, ownzelmSub_tt_32f)
// clang-format on
