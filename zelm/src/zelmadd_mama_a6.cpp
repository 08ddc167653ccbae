// Kernels on four-wide `32f` vectors: Add on two arrays of matrices, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mama_32f,   MAMA, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tama_32f,   TAMA, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tata_32f,   TATA, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mama_32f_L, MAMA, L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tama_32f_L, TAMA, L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tata_32f_L, TATA, L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
// clang-format on
