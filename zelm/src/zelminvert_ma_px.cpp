// Portable kernels: inverses of an array of matrices, any strides and pointer layout.
#include "zelminvert.h"

// clang-format off
//               kernel  arguments layout strides type  body: methods of sides 3, 4, 5, 6; kernel of all others
KERNEL_IN_BLOCKS(ownzelmInvert_ma_32f_S2,  INVERT_MA, S, ANY, float,  inverses<Methods<Cofactors, Cofactors, Cofactors, Cofactors>, ownzelmInvert_m_32f_S2_com>)
KERNEL_IN_BLOCKS(ownzelmInvert_ma_64f_S2,  INVERT_MA, S, ANY, double, inverses<Methods<Cofactors, Cofactors, Cofactors, Cofactors>, ownzelmInvert_m_64f_S2_com>)
KERNEL_IN_BLOCKS(ownzelmInvert_ma_32f_LS2, INVERT_MA, L, ANY, float,  inverses<Methods<Cofactors, Cofactors, Cofactors, Cofactors>, ownzelmInvert_m_32f_S2_com>)
KERNEL_IN_BLOCKS(ownzelmInvert_ma_64f_LS2, INVERT_MA, L, ANY, double, inverses<Methods<Cofactors, Cofactors, Cofactors, Cofactors>, ownzelmInvert_m_64f_S2_com>)

//               kernel  arguments layout strides type  body: methods of sides 3, 4, 5, 6
KERNEL_IN_BLOCKS(ownzelmInvert_ma_32f_P,   INVERT_MA, P, ANY, float,  inversesP<Methods<Cofactors, Cofactors, Cofactors, Cofactors>>)
KERNEL_IN_BLOCKS(ownzelmInvert_ma_64f_P,   INVERT_MA, P, ANY, double, inversesP<Methods<Cofactors, Cofactors, Cofactors, Cofactors>>)
// clang-format on
