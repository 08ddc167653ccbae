// Portable kernels: Add on single vectors and constants, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_vv_32f_S2, VV, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vv_64f_S2, VV, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vc_32f_S2, VC, S, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vc_64f_S2, VC, S, ANY, double, elementwise<Plus>)

KERNEL(ownzelmAdd_vv_32f_P, VV, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vv_64f_P, VV, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_vc_32f_P, VC, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vc_64f_P, VC, P, ANY, double, elementwise<Plus>)
// clang-format on
