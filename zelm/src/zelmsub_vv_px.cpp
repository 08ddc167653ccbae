// Portable kernels: Sub on single vectors and constants, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_vv_32f_S2, VV, S, ANY, float,  elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vv_64f_S2, VV, S, ANY, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vc_32f_S2, VC, S, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_vc_64f_S2, VC, S, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_cv_32f_S2, CV, S, ANY, float,  elementwise<Swapped<Minus>>)
KERNEL(ownzelmSub_cv_64f_S2, CV, S, ANY, double, elementwise<Swapped<Minus>>)

KERNEL(ownzelmSub_vv_32f_P, VV, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_vv_64f_P, VV, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_vc_32f_P, VC, P, ANY, float,  elementwise<Minus>)
KERNEL(ownzelmSub_vc_64f_P, VC, P, ANY, double, elementwise<Minus>)
KERNEL(ownzelmSub_cv_32f_P, CV, P, ANY, float,  elementwise<Swapped<Minus>>)
KERNEL(ownzelmSub_cv_64f_P, CV, P, ANY, double, elementwise<Swapped<Minus>>)
// clang-format on
