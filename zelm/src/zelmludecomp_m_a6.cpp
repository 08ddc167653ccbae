// Kernels on four-wide `32f` vectors: LUDecomp on single matrices, unit strides.
#include "zelmludecomp.h"

// clang-format off
//     kernel                 arguments     strides type   body       general loop
KERNEL(ownzelmLUDecomp_m_32f, LUDECOMP_M, S, UNIT, float, decompose<ownzelmLUDecomp_m_32f_S_com>)
// clang-format on
