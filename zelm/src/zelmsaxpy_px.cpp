// Portable kernels: Saxpy, any strides and pointer layout.
#include "zelmsaxpy.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmSaxpy_vv_32f_S2,    SAXPY_VV,   S, ANY, float,  elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vv_64f_S2,    SAXPY_VV,   S, ANY, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vv_32f_P,     SAXPY_VV,   P, ANY, float,  elementwise<ScaledPlus>)
KERNEL(ownzelmSaxpy_vv_64f_P,     SAXPY_VV,   P, ANY, double, elementwise<ScaledPlus>)
KERNEL(ownzelmSaxpy_vav_32f_S2,   SAXPY_VAV,  S, ANY, float,  elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vva_32f_S2,   SAXPY_VVA,  S, ANY, float,  elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vava_32f_S2,  SAXPY_VAVA, S, ANY, float,  elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vav_64f_S2,   SAXPY_VAV,  S, ANY, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vva_64f_S2,   SAXPY_VVA,  S, ANY, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vava_64f_S2,  SAXPY_VAVA, S, ANY, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vav_32f_LS2,  SAXPY_VAV,  L, ANY, float,  elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vva_32f_LS2,  SAXPY_VVA,  L, ANY, float,  elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vava_32f_LS2, SAXPY_VAVA, L, ANY, float,  elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vav_64f_LS2,  SAXPY_VAV,  L, ANY, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vva_64f_LS2,  SAXPY_VVA,  L, ANY, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vava_64f_LS2, SAXPY_VAVA, L, ANY, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vav_32f_P,    SAXPY_VAV,  P, ANY, float,  elementwise<ScaledPlus>)
KERNEL(ownzelmSaxpy_vva_32f_P,    SAXPY_VVA,  P, ANY, float,  elementwise<ScaledPlus>)
KERNEL(ownzelmSaxpy_vava_32f_P,   SAXPY_VAVA, P, ANY, float,  elementwise<ScaledPlus>)
KERNEL(ownzelmSaxpy_vav_64f_P,    SAXPY_VAV,  P, ANY, double, elementwise<ScaledPlus>)
KERNEL(ownzelmSaxpy_vva_64f_P,    SAXPY_VVA,  P, ANY, double, elementwise<ScaledPlus>)
KERNEL(ownzelmSaxpy_vava_64f_P,   SAXPY_VAVA, P, ANY, double, elementwise<ScaledPlus>)
// clang-format on
