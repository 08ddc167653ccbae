// Kernels on four-wide `32f` vectors: inverses of an array of matrices, unit strides.
#include "zelminvert.h"

// clang-format off
// Side 3 divides in the standard layout alone.
//               kernel  arguments layout strides type  body: kernel of aligned pairs; methods of sides 3, 4, 5, 6; kernel of all others
KERNEL_IN_BLOCKS(ownzelmInvert_ma_32f,   INVERT_MA, S, UNIT, float, inversesOrPairs<ownzelmInvert_m_32f_4x4_loop2, Methods<Cofactors, CofactorsEstimated, Borders, Borders>, ownzelmInvert_m_32f_com>)
KERNEL_IN_BLOCKS(ownzelmInvert_ma_32f_L, INVERT_MA, L, UNIT, float, inverses<Methods<CofactorsEstimated, CofactorsEstimated, Borders, Borders>, ownzelmInvert_m_32f_com>)
// clang-format on
