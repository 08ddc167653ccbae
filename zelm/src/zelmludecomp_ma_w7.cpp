// Kernels on two-wide `64f` vectors: LUDecomp on arrays of matrices, unit strides.
#include "zelmludecomp.h"

// clang-format off
//               kernel                    arguments      strides type   body       general loop
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_64f,   LUDECOMP_MA, S, UNIT, double, decompose<ownzelmLUDecomp_m_64f_S_com>)
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_64f_L, LUDECOMP_MA, L, UNIT, double, decompose<ownzelmLUDecomp_m_64f_S_com>)
// clang-format on
