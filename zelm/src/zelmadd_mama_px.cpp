// Portable kernels: Add on two arrays of matrices, any strides and pointer layout.
#include "zelmadd.h"

// clang-format off
//     kernel                   arguments strides type    body            straight-line sizes
KERNEL(ownzelmAdd_mama_32f_S2, MAMA_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tama_32f_S2, TAMA_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tata_32f_S2, TATA_S, ANY, float,  addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_mama_64f_S2, MAMA_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tama_64f_S2, TAMA_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)
KERNEL(ownzelmAdd_tata_64f_S2, TATA_S, ANY, double, addMatrices, Sizes<3, 4, 5, 6>)

//             kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmAdd_mama_32f_LS2, MAMA_L, ANY, float,  MM_S, ownzelmAdd_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tama_32f_LS2, TAMA_L, ANY, float,  TM_S, ownzelmAdd_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tata_32f_LS2, TATA_L, ANY, float,  TT_S, ownzelmAdd_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_mama_64f_LS2, MAMA_L, ANY, double, MM_S, ownzelmAdd_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tama_64f_LS2, TAMA_L, ANY, double, TM_S, ownzelmAdd_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tata_64f_LS2, TATA_L, ANY, double, TT_S, ownzelmAdd_tt_64f_S2)

KERNEL(ownzelmAdd_mama_32f_P, MAMA_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_tama_32f_P, TAMA_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_tata_32f_P, TATA_P, ANY, float,  addPositions, AnySize)
KERNEL(ownzelmAdd_mama_64f_P, MAMA_P, ANY, double, addPositions, AnySize)
KERNEL(ownzelmAdd_tama_64f_P, TAMA_P, ANY, double, addPositions, AnySize)
KERNEL(ownzelmAdd_tata_64f_P, TATA_P, ANY, double, addPositions, AnySize)
// clang-format on
