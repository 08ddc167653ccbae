// Kernels on four-wide `32f` vectors: Saxpy, unit strides.
#include "zelmsaxpy.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmSaxpy_vv_32f,     SAXPY_VV,   S, UNIT, float, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vav_32f,    SAXPY_VAV,  S, UNIT, float, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vva_32f,    SAXPY_VVA,  S, UNIT, float, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vava_32f,   SAXPY_VAVA, S, UNIT, float, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vav_32f_L,  SAXPY_VAV,  L, UNIT, float, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vva_32f_L,  SAXPY_VVA,  L, UNIT, float, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSaxpy_vava_32f_L, SAXPY_VAVA, L, UNIT, float, elementwise<ScaledPlus, Sizes<3, 4, 5, 6>>)
// clang-format on
