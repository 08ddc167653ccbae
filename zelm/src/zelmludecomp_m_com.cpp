// The general loops of LUDecomp on single matrices, which the kernels call: apart from those, so that the tests can see
// these calls.
#include "zelmludecomp.h"

// clang-format off
//     kernel                        arguments     strides type    body
KERNEL(ownzelmLUDecomp_m_32f_S_com,  LUDECOMP_M, S, UNIT, float,  decomposeLoop)
KERNEL(ownzelmLUDecomp_m_64f_S_com,  LUDECOMP_M, S, UNIT, double, decomposeLoop)
KERNEL(ownzelmLUDecomp_m_32f_S2_com, LUDECOMP_M, S, ANY,  float,  decomposeLoop)
KERNEL(ownzelmLUDecomp_m_64f_S2_com, LUDECOMP_M, S, ANY,  double, decomposeLoop)
KERNEL(ownzelmLUDecomp_m_32f_P_com,  LUDECOMP_M, P, ANY,  float,  decomposeLoop)
KERNEL(ownzelmLUDecomp_m_64f_P_com,  LUDECOMP_M, P, ANY,  double, decomposeLoop)
// clang-format on
