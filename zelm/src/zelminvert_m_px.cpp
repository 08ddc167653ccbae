// Portable kernels: inverse of a matrix, any strides and pointer layout.
#include "zelminvert.h"

// clang-format off
//     kernel  arguments layout strides type  body: methods of sides 3, 4, 5, 6; kernel of all others
KERNEL(ownzelmInvert_m_32f_S2, INVERT_M, S, ANY, float,  inverse<Methods<Cofactors, Cofactors, Cofactors, Cofactors>, ownzelmInvert_m_32f_S2_com>)
KERNEL(ownzelmInvert_m_64f_S2, INVERT_M, S, ANY, double, inverse<Methods<Cofactors, Cofactors, Cofactors, Cofactors>, ownzelmInvert_m_64f_S2_com>)
KERNEL(ownzelmInvert_m_32f_P,  INVERT_M, P, ANY, float,  inverse<Methods<Cofactors, Cofactors, Cofactors, Cofactors>, ownzelmInvert_m_32f_P_com>)
KERNEL(ownzelmInvert_m_64f_P,  INVERT_M, P, ANY, double, inverse<Methods<Cofactors, Cofactors, Cofactors, Cofactors>, ownzelmInvert_m_64f_P_com>)
// clang-format on
