// Portable kernels: inverse of a matrix of any side, by the determinants of its minors.
#include "zelminvert.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmInvert_m_32f_com,    INVERT_M, S, UNIT, float,  inverseByMinors)
KERNEL(ownzelmInvert_m_64f_com,    INVERT_M, S, UNIT, double, inverseByMinors)
KERNEL(ownzelmInvert_m_32f_S2_com, INVERT_M, S, ANY,  float,  inverseByMinors)
KERNEL(ownzelmInvert_m_64f_S2_com, INVERT_M, S, ANY,  double, inverseByMinors)
KERNEL(ownzelmInvert_m_32f_P_com,  INVERT_M, P, ANY,  float,  inverseByMinors)
KERNEL(ownzelmInvert_m_64f_P_com,  INVERT_M, P, ANY,  double, inverseByMinors)
// clang-format on
