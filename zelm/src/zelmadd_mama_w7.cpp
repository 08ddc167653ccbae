// Kernels on two-wide `64f` vectors: Add on two arrays of matrices, unit strides.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mama_64f,   MAMA_S, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tama_64f,   TAMA_S, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tata_64f,   TATA_S, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tama_64f_L, TAMA_L, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tata_64f_L, TATA_L, UNIT, double, addMatrices, Sizes<3, 4, 5, 6>)

KERNEL_PER_OBJECT(ownzelmAdd_mama_64f_L, MAMA_L, UNIT, double, MM_S, ownzelmAdd_mm_64f)
// clang-format on
