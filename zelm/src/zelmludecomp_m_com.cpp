// The general loops of LUDecomp on single matrices, which the kernels call: apart from those, so that the tests can see
// these calls.
#include "zelmludecomp.h"

// clang-format off
//     kernel                        arguments     strides type    body
KERNEL(ownzelmLUDecomp_m_32f_S_com,  LUDECOMP_M_S, UNIT, float,  decomposeLoop, InDst)
KERNEL(ownzelmLUDecomp_m_64f_S_com,  LUDECOMP_M_S, UNIT, double, decomposeLoop, InDst)
KERNEL(ownzelmLUDecomp_m_32f_S2_com, LUDECOMP_M_S, ANY,  float,  decomposeLoop, InDst)
KERNEL(ownzelmLUDecomp_m_64f_S2_com, LUDECOMP_M_S, ANY,  double, decomposeLoop, InDst)
KERNEL(ownzelmLUDecomp_m_32f_P_com,  LUDECOMP_M_P, ANY,  float,  decomposeLoop, InDst)
KERNEL(ownzelmLUDecomp_m_64f_P_com,  LUDECOMP_M_P, ANY,  double, decomposeLoop, InDst)
// clang-format on
