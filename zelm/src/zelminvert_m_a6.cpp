// Kernels on four-wide `32f` vectors: inverse of a matrix, unit strides.
#include "zelminvert.h"

// clang-format off
//     kernel  arguments layout strides type  body: kernels of sides 3, 4, 5, 6, of all others
KERNEL(ownzelmInvert_m_32f, INVERT_M, S, UNIT, float, inverseBySide<ownzelmInvert_m_32f_3x3, ownzelmInvert_m_32f_4x4, ownzelmInvert_m_32f_5x5, ownzelmInvert_m_32f_6x6, ownzelmInvert_m_32f_com>)
// clang-format on
