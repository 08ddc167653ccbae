// Kernels on four-wide `32f` vectors: Sub on arrays of vectors and constants, unit strides.
#include "zelmrun.h"

// clang-format off
//     kernel, arguments, layout, strides, type, operation and straight-line sizes
KERNEL(ownzelmSub_vav_32f,    VAV,  S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vva_32f,    VVA,  S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vava_32f,   VAVA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vac_32f,    VAC,  S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vca_32f,    VCA,  S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vaca_32f,   VACA, S, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cva_32f,    CVA,  S, UNIT, float, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cav_32f,    CAV,  S, UNIT, float, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cava_32f,   CAVA, S, UNIT, float, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vav_32f_L,  VAV,  L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vva_32f_L,  VVA,  L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vava_32f_L, VAVA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vac_32f_L,  VAC,  L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vca_32f_L,  VCA,  L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_vaca_32f_L, VACA, L, UNIT, float, elementwise<Minus, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cva_32f_L,  CVA,  L, UNIT, float, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cav_32f_L,  CAV,  L, UNIT, float, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
KERNEL(ownzelmSub_cava_32f_L, CAVA, L, UNIT, float, elementwise<Swapped<Minus>, Sizes<3, 4, 5, 6>>)
// clang-format on
