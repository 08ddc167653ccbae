// Portable kernels: Add on single matrices, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_mm_32f_S2, MM, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_mm_64f_S2, MM, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tm_32f_S2, TM, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tm_64f_S2, TM, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tt_32f_S2, TT, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_tt_64f_S2, TT, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)

KERNEL(ownzelmAdd_mm_32f_P, MM, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_mm_64f_P, MM, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_tm_32f_P, TM, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_tm_64f_P, TM, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_tt_32f_P, TT, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_tt_64f_P, TT, P, ANY, double, elementwise<Plus>)
// clang-format on
