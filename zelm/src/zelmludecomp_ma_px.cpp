// Portable kernels: LUDecomp on arrays of matrices, any strides and pointer layout.
#include "zelmludecomp.h"

// clang-format off
//     kernel                      arguments      strides type    body       general loop
KERNEL(ownzelmLUDecomp_ma_32f_S2,  LUDECOMP_MA_S, ANY, float,  decompose, Otherwise<ownzelmLUDecomp_m_32f_S2_com>)
KERNEL(ownzelmLUDecomp_ma_64f_S2,  LUDECOMP_MA_S, ANY, double, decompose, Otherwise<ownzelmLUDecomp_m_64f_S2_com>)
KERNEL(ownzelmLUDecomp_ma_32f_LS2, LUDECOMP_MA_L, ANY, float,  decompose, Otherwise<ownzelmLUDecomp_m_32f_S2_com>)
KERNEL(ownzelmLUDecomp_ma_64f_LS2, LUDECOMP_MA_L, ANY, double, decompose, Otherwise<ownzelmLUDecomp_m_64f_S2_com>)
KERNEL(ownzelmLUDecomp_ma_32f_P,   LUDECOMP_MA_P, ANY, float,  decompose, Otherwise<ownzelmLUDecomp_m_32f_P_com>)
KERNEL(ownzelmLUDecomp_ma_64f_P,   LUDECOMP_MA_P, ANY, double, decompose, Otherwise<ownzelmLUDecomp_m_64f_P_com>)
// clang-format on
