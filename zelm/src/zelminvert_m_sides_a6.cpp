// Kernels on four-wide `32f` vectors: inverse of a matrix of one side, unit strides, and of pairs of side 4.
#include "zelminvert.h"

// clang-format off
//     kernel  arguments layout strides type  body: side, method
KERNEL(ownzelmInvert_m_32f_3x3, INVERT_M, S, UNIT, float, inverse<3, CofactorsEstimated>)
KERNEL(ownzelmInvert_m_32f_4x4, INVERT_M, S, UNIT, float, inverse<4, CofactorsEstimated>)
KERNEL(ownzelmInvert_m_32f_5x5, INVERT_M, S, UNIT, float, inverse<5, Borders>)
KERNEL(ownzelmInvert_m_32f_6x6, INVERT_M, S, UNIT, float, inverse<6, Borders>)

KERNEL(ownzelmInvert_m_32f_4x4_loop2, INVERT_MA, S, UNIT, float, inversesInPairs<CofactorsEstimated>)
// clang-format on
