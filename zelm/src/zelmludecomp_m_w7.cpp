// Kernels on two-wide `64f` vectors: LUDecomp on single matrices, unit strides.
#include "zelmludecomp.h"

// clang-format off
//     kernel                 arguments     strides type    body       general loop
KERNEL(ownzelmLUDecomp_m_64f, LUDECOMP_M, S, UNIT, double, decompose<ownzelmLUDecomp_m_64f_S_com>)
// clang-format on
