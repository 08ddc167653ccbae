// Kernels on four-wide `32f` vectors: LUDecomp on arrays of matrices, unit strides.
#include "zelmludecomp.h"

// clang-format off
//               kernel                    arguments      strides type   body       general loop
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_32f,   LUDECOMP_MA, S, UNIT, float, decompose<ownzelmLUDecomp_m_32f_S_com>)
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_32f_L, LUDECOMP_MA, L, UNIT, float, decompose<ownzelmLUDecomp_m_32f_S_com>)
// clang-format on
