// Portable kernels: Sub on single matrices, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_mm_32f_S2, MM, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mm_64f_S2, MM, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mt_32f_S2, MT, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_mt_64f_S2, MT, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tm_32f_S2, TM, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tm_64f_S2, TM, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tt_32f_S2, TT, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_tt_64f_S2, TT, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)

KERNEL(ownzelmSub_mm_32f_P, MM, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mm_64f_P, MM, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_mt_32f_P, MT, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_mt_64f_P, MT, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tm_32f_P, TM, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_tm_64f_P, TM, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_tt_32f_P, TT, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_tt_64f_P, TT, P, ANY, double, elementwise<Minus>)
// clang-format on
