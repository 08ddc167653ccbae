// Kernels on four-wide `32f` vectors: Add on arrays of vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_vav_32f,    VAV,  S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vava_32f,   VAVA, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vac_32f,    VAC,  S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vca_32f,    VCA,  S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vaca_32f,   VACA, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vav_32f_L,  VAV,  L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vava_32f_L, VAVA, L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vac_32f_L,  VAC,  L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vca_32f_L,  VCA,  L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vaca_32f_L, VACA, L, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
// clang-format on
