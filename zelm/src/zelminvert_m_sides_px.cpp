// Portable kernels: inverse of a matrix of one side, unit strides.
#include "zelminvert.h"

// clang-format off
//     kernel  arguments layout strides type  body: side, method
KERNEL(ownzelmInvert_m_64f_5x5_PX, INVERT_M, S, UNIT, double, inverse<5, Cofactors>)
KERNEL(ownzelmInvert_m_64f_6x6_PX, INVERT_M, S, UNIT, double, inverse<6, Cofactors>)
// clang-format on
