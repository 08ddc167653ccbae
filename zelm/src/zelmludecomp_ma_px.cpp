// Portable kernels: LUDecomp on arrays of matrices, any strides and pointer layout.
#include "zelmludecomp.h"

// clang-format off
//               kernel                      arguments      strides type    body       general loop
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_32f_S2,  LUDECOMP_MA, S, ANY, float,  decompose<ownzelmLUDecomp_m_32f_S2_com>)
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_64f_S2,  LUDECOMP_MA, S, ANY, double, decompose<ownzelmLUDecomp_m_64f_S2_com>)
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_32f_LS2, LUDECOMP_MA, L, ANY, float,  decompose<ownzelmLUDecomp_m_32f_S2_com>)
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_64f_LS2, LUDECOMP_MA, L, ANY, double, decompose<ownzelmLUDecomp_m_64f_S2_com>)
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_32f_P,   LUDECOMP_MA, P, ANY, float,  decompose<ownzelmLUDecomp_m_32f_P_com>)
KERNEL_IN_BLOCKS(ownzelmLUDecomp_ma_64f_P,   LUDECOMP_MA, P, ANY, double, decompose<ownzelmLUDecomp_m_64f_P_com>)
// clang-format on
