// Portable kernels: Add on single matrices, any strides and pointer layout.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mm_32f_S2, MM_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mm_64f_S2, MM_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tm_32f_S2, TM_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tm_64f_S2, TM_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tt_32f_S2, TT_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tt_64f_S2, TT_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)

KERNEL(ownzelmAdd_mm_32f_P, MM_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_mm_64f_P, MM_P, ANY, double, addPositions, AnySize)
KERNEL(ownzelmAdd_tm_32f_P, TM_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_tm_64f_P, TM_P, ANY, double, addPositions, AnySize)
KERNEL(ownzelmAdd_tt_32f_P, TT_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_tt_64f_P, TT_P, ANY, double, addPositions, AnySize)
// clang-format on
