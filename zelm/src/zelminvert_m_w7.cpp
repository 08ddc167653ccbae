// Kernels on two-wide `64f` vectors: inverse of a matrix, unit strides.
#include "zelminvert.h"

// clang-format off
//     kernel  arguments layout strides type  body: kernels of sides 3, 4, 5, 6, of all others
KERNEL(ownzelmInvert_m_64f, INVERT_M, S, UNIT, double, inverseBySide<ownzelmInvert_m_64f_3x3, ownzelmInvert_m_64f_4x4, ownzelmInvert_m_64f_5x5_PX, ownzelmInvert_m_64f_6x6_PX, ownzelmInvert_m_64f_com>)
// clang-format on
