// Kernels on four-wide `32f` vectors: Add on two arrays of matrices, unit strides.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mama_32f,   MAMA_S, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tama_32f,   TAMA_S, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tata_32f,   TATA_S, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mama_32f_L, MAMA_L, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tama_32f_L, TAMA_L, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tata_32f_L, TATA_L, UNIT, float, addMatrices, Sizes<3, 4, 5, 6>)
// clang-format on
