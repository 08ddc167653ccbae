// Kernels on two-wide `64f` vectors: Sub on arrays of vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_vav_64f,    VAV,  S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vva_64f,    VVA,  S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vava_64f,   VAVA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vac_64f,    VAC,  S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vca_64f,    VCA,  S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vaca_64f,   VACA, S, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cva_64f,    CVA,  S, UNIT, double, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cav_64f,    CAV,  S, UNIT, double, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cava_64f,   CAVA, S, UNIT, double, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vav_64f_L,  VAV,  L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vva_64f_L,  VVA,  L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vava_64f_L, VAVA, L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vac_64f_L,  VAC,  L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vca_64f_L,  VCA,  L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vaca_64f_L, VACA, L, UNIT, double, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cva_64f_L,  CVA,  L, UNIT, double, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cav_64f_L,  CAV,  L, UNIT, double, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cava_64f_L, CAVA, L, UNIT, double, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
// clang-format on
