// Kernels on two-wide `64f` vectors: inverse of a matrix of one side, unit strides.
#include "zelminvert.h"

// clang-format off
//     kernel  arguments layout strides type  body: side, method
KERNEL(ownzelmInvert_m_64f_3x3, INVERT_M, S, UNIT, double, inverse<3, CofactorsTwice>)
KERNEL(ownzelmInvert_m_64f_4x4, INVERT_M, S, UNIT, double, inverse<4, CofactorsTwice>)
// clang-format on
