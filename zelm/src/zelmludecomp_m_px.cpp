// Portable kernels: LUDecomp on single matrices, any strides and pointer layout.
#include "zelmludecomp.h"

// clang-format off
//     kernel                    arguments     strides type    body       general loop
KERNEL(ownzelmLUDecomp_m_32f_S2, LUDECOMP_M_S, ANY, float,  decompose, Otherwise<ownzelmLUDecomp_m_32f_S2_com>)
KERNEL(ownzelmLUDecomp_m_64f_S2, LUDECOMP_M_S, ANY, double, decompose, Otherwise<ownzelmLUDecomp_m_64f_S2_com>)
KERNEL(ownzelmLUDecomp_m_32f_P,  LUDECOMP_M_P, ANY, float,  decompose, Otherwise<ownzelmLUDecomp_m_32f_P_com>)
KERNEL(ownzelmLUDecomp_m_64f_P,  LUDECOMP_M_P, ANY, double, decompose, Otherwise<ownzelmLUDecomp_m_64f_P_com>)
// clang-format on
