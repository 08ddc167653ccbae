// Portable kernels: LUDecomp on single matrices, any strides and pointer layout.
#include "zelmludecomp.h"

// clang-format off
//     kernel                    arguments     strides type    body       general loop
KERNEL(ownzelmLUDecomp_m_32f_S2, LUDECOMP_M, S, ANY, float,  decompose<ownzelmLUDecomp_m_32f_S2_com>)
KERNEL(ownzelmLUDecomp_m_64f_S2, LUDECOMP_M, S, ANY, double, decompose<ownzelmLUDecomp_m_64f_S2_com>)
KERNEL(ownzelmLUDecomp_m_32f_P,  LUDECOMP_M, P, ANY, float,  decompose<ownzelmLUDecomp_m_32f_P_com>)
KERNEL(ownzelmLUDecomp_m_64f_P,  LUDECOMP_M, P, ANY, double, decompose<ownzelmLUDecomp_m_64f_P_com>)
// clang-format on
