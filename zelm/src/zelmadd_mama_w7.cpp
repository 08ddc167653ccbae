// Kernels on two-wide `64f` vectors: Add on two arrays of matrices, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mama_64f,   MAMA, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tama_64f,   TAMA, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tata_64f,   TATA, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tama_64f_L, TAMA, L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tata_64f_L, TATA, L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)

KERNEL_PER_OBJECT(ownzelmAdd_mama_64f_L, MAMA, L, UNIT, double, MM, ownzelmAdd_mm_64f)
// clang-format on
