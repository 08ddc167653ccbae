// Kernels on two-wide `64f` vectors: inverses of an array of matrices, unit strides.
#include "zelminvert.h"

// clang-format off
//               kernel  arguments layout strides type  body: methods of sides 3, 4, 5, 6; kernel of all others
KERNEL_IN_BLOCKS(ownzelmInvert_ma_64f,   INVERT_MA, S, UNIT, double, inverses<Methods<CofactorsTwice, CofactorsTwice, Cofactors, Cofactors>, ownzelmInvert_m_64f_com>)
KERNEL_IN_BLOCKS(ownzelmInvert_ma_64f_L, INVERT_MA, L, UNIT, double, inverses<Methods<CofactorsTwice, CofactorsTwice, Cofactors, Cofactors>, ownzelmInvert_m_64f_com>)
// clang-format on
