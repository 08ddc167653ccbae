// Kernels on four-wide `32f` vectors: Add on single matrices, unit strides.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mm_32f, MM_S, UNIT, float, addMatrices, Sizes<3, 4, 5>)
KERNEL(ownzelmAdd_tm_32f, TM_S, UNIT, float, addMatrices, Sizes<3, 4, 5>)
KERNEL(ownzelmAdd_tt_32f, TT_S, UNIT, float, addMatrices, Sizes<3, 4, 5>)
// clang-format on
