// Portable kernels: Add on arrays of vectors and constants, any strides and pointer layout.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_vav_32f_S2,   VAV,  S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vav_64f_S2,   VAV,  S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vava_32f_S2,  VAVA, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vava_64f_S2,  VAVA, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vac_32f_S2,   VAC,  S, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vac_64f_S2,   VAC,  S, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_vca_32f_S2,   VCA,  S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vca_64f_S2,   VCA,  S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vaca_32f_S2,  VACA, S, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vaca_64f_S2,  VACA, S, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vac_32f_LS2,  VAC,  L, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vac_64f_LS2,  VAC,  L, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_vca_32f_LS2,  VCA,  L, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vca_64f_LS2,  VCA,  L, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vaca_32f_LS2, VACA, L, ANY, float,  elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vaca_64f_LS2, VACA, L, ANY, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)

//                kernel, arguments, layout, strides, type, kernel called for each object
KERNEL_PER_OBJECT(ownzelmAdd_vav_32f_LS2,  VAV,  L, ANY, float,  VV, ownzelmAdd_vv_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_vav_64f_LS2,  VAV,  L, ANY, double, VV, ownzelmAdd_vv_64f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_vava_32f_LS2, VAVA, L, ANY, float,  VV, ownzelmAdd_vv_32f_S2)
KERNEL_PER_OBJECT(ownzelmAdd_vava_64f_LS2, VAVA, L, ANY, double, VV, ownzelmAdd_vv_64f_S2)

KERNEL(ownzelmAdd_vav_32f_P,  VAV,  P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vav_64f_P,  VAV,  P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_vava_32f_P, VAVA, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vava_64f_P, VAVA, P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_vac_32f_P,  VAC,  P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vac_64f_P,  VAC,  P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_vca_32f_P,  VCA,  P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vca_64f_P,  VCA,  P, ANY, double, elementwise<Plus>)
KERNEL(ownzelmAdd_vaca_32f_P, VACA, P, ANY, float,  elementwise<Plus>)
KERNEL(ownzelmAdd_vaca_64f_P, VACA, P, ANY, double, elementwise<Plus>)
// clang-format on
