// Kernels on two-wide `64f` vectors: Saxpy, unit strides.
#include "zelmsaxpy.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmSaxpy_vv_64f,     SAXPY_VV,   S, UNIT, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vav_64f,    SAXPY_VAV,  S, UNIT, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vva_64f,    SAXPY_VVA,  S, UNIT, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vava_64f,   SAXPY_VAVA, S, UNIT, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vav_64f_L,  SAXPY_VAV,  L, UNIT, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vva_64f_L,  SAXPY_VVA,  L, UNIT, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vava_64f_L, SAXPY_VAVA, L, UNIT, double, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
// clang-format on
