// Exported functions: LUDecomp on single matrices.
#include "zelmlusignature.h"

// clang-format off
//     exported function   arguments     type    order of tests  kernels: unit strides, any
SINGLE(zelmLUDecomp_m_32f, LUDECOMP_M, S, float,  N_Z_S, ownzelmLUDecomp_m_32f, ownzelmLUDecomp_m_32f_S2)
SINGLE(zelmLUDecomp_m_64f, LUDECOMP_M, S, double, N_Z_S, ownzelmLUDecomp_m_64f, ownzelmLUDecomp_m_64f_S2)

//             exported function     arguments     type    order of tests  kernel
SINGLE_POINTER(zelmLUDecomp_m_32f_P, LUDECOMP_M, P, float,  N_Z_H, ownzelmLUDecomp_m_32f_P)
SINGLE_POINTER(zelmLUDecomp_m_64f_P, LUDECOMP_M, P, double, N_Z_H, ownzelmLUDecomp_m_64f_P)
// clang-format on
