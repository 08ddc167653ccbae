// Portable kernels: Add on two arrays of matrices, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mama_32f_S2, MAMA, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tama_32f_S2, TAMA, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tata_32f_S2, TATA, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mama_64f_S2, MAMA, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tama_64f_S2, TAMA, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tata_64f_S2, TATA, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)

//             kernel  arguments strides type  kernel called for each object
KERNEL_PER_OBJECT(ownzelmAdd_mama_32f_LS2, MAMA, L, ANY, float,  MM, ownzelmAdd_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tama_32f_LS2, TAMA, L, ANY, float,  TM, ownzelmAdd_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tata_32f_LS2, TATA, L, ANY, float,  TT, ownzelmAdd_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_mama_64f_LS2, MAMA, L, ANY, double, MM, ownzelmAdd_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tama_64f_LS2, TAMA, L, ANY, double, TM, ownzelmAdd_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_tata_64f_LS2, TATA, L, ANY, double, TT, ownzelmAdd_tt_64f_S2)

KERNEL(ownzelmAdd_mama_32f_P, MAMA, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_tama_32f_P, TAMA, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_tata_32f_P, TATA, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_mama_64f_P, MAMA, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_tama_64f_P, TAMA, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_tata_64f_P, TATA, P, ANY, double, elementwise<Plus>)
// clang-format on
