// Portable kernels: Sub on two arrays of matrices, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mama_32f_S2,  MAMA, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mama_64f_S2,  MAMA, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mata_32f_S2,  MATA, S, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mata_64f_S2,  MATA, S, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tama_32f_S2,  TAMA, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tama_64f_S2,  TAMA, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tata_32f_S2,  TATA, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tata_64f_S2,  TATA, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mata_32f_LS2, MATA, L, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mata_64f_LS2, MATA, L, ANY, double, elementwise<Minus>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmSub_mama_32f_LS2, MAMA, L, ANY, float,  MM, ownzelmSub_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_mama_64f_LS2, MAMA, L, ANY, double, MM, ownzelmSub_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tama_32f_LS2, TAMA, L, ANY, float,  TM, ownzelmSub_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tama_64f_LS2, TAMA, L, ANY, double, TM, ownzelmSub_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tata_32f_LS2, TATA, L, ANY, float,  TT, ownzelmSub_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tata_64f_LS2, TATA, L, ANY, double, TT, ownzelmSub_tt_64f_S2)

KERNEL(ownzelmSub_mama_32f_P, MAMA, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mama_64f_P, MAMA, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_mata_32f_P, MATA, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mata_64f_P, MATA, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tama_32f_P, TAMA, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_tama_64f_P, TAMA, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tata_32f_P, TATA, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_tata_64f_P, TATA, P, ANY, double, elementwise<Minus>)
// clang-format on
