// Kernels on two-wide `64f` vectors: LUDecomp on arrays of matrices, unit strides.
#include "zelmludecomp.h"

// clang-format off
//     kernel                    arguments      strides type   body       general loop
KERNEL(ownzelmLUDecomp_ma_64f,   LUDECOMP_MA_S, UNIT, double, decompose, Otherwise<ownzelmLUDecomp_m_64f_S_com>)
KERNEL(ownzelmLUDecomp_ma_64f_L, LUDECOMP_MA_L, UNIT, double, decompose, Otherwise<ownzelmLUDecomp_m_64f_S_com>)
// clang-format on
