// Portable kernels: Sub of an array of matrices from a single one, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mma_32f_S2, MMA, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mma_64f_S2, MMA, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mta_32f_S2, MTA, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mta_64f_S2, MTA, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tma_32f_S2, TMA, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tma_64f_S2, TMA, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tta_32f_S2, TTA, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tta_64f_S2, TTA, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmSub_mma_32f_LS2, MMA, L, ANY, float,  MM, ownzelmSub_mm_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_mma_64f_LS2, MMA, L, ANY, double, MM, ownzelmSub_mm_64f_S2)
KERNEL_PER_OBJECT(ownzelmSub_mta_32f_LS2, MTA, L, ANY, float,  MT, ownzelmSub_mt_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_mta_64f_LS2, MTA, L, ANY, double, MT, ownzelmSub_mt_64f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tma_32f_LS2, TMA, L, ANY, float,  TM, ownzelmSub_tm_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tma_64f_LS2, TMA, L, ANY, double, TM, ownzelmSub_tm_64f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tta_32f_LS2, TTA, L, ANY, float,  TT, ownzelmSub_tt_32f_S2)
KERNEL_PER_OBJECT(ownzelmSub_tta_64f_LS2, TTA, L, ANY, double, TT, ownzelmSub_tt_64f_S2)

KERNEL(ownzelmSub_mma_32f_P, MMA, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mma_64f_P, MMA, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_mta_32f_P, MTA, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mta_64f_P, MTA, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tma_32f_P, TMA, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_tma_64f_P, TMA, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tta_32f_P, TTA, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_tta_64f_P, TTA, P, ANY, double, elementwise<Minus>)
// clang-format on
