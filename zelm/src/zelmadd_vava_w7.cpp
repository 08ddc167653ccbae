// Kernels on two-wide `64f` vectors: Add on arrays of vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmAdd_vav_64f,    VAV,  S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vava_64f,   VAVA, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vac_64f,    VAC,  S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vca_64f,    VCA,  S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vaca_64f,   VACA, S, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vav_64f_L,  VAV,  L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vava_64f_L, VAVA, L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vac_64f_L,  VAC,  L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vca_64f_L,  VCA,  L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmAdd_vaca_64f_L, VACA, L, UNIT, double, elementwise<Plus, Sizes<3, 4, 5, 6>>)
// clang-format on
