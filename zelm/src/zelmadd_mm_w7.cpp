// Kernels on two-wide `64f` vectors: Add on single matrices, unit strides.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mm_64f, MM_S, UNIT, double, addMatrices, Sizes<3, 4, 5>)
KERNEL(ownzelmAdd_tm_64f, TM_S, UNIT, double, addMatrices, Sizes<3, 4, 5>)
KERNEL(ownzelmAdd_tt_64f, TT_S, UNIT, double, addMatrices, Sizes<3, 4, 5>)
// clang-format on
