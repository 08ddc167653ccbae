// Exported functions: trace of a matrix.
#include "zelmtracesignature.h"

// clang-format off
//     exported function  arguments layout type  order of tests  kernels: unit strides, any
SINGLE(zelmTrace_m_32f, TRACE_M, S, float,  N_Z_S, ownzelmTrace_m_32f, ownzelmTrace_m_32f_S2)
SINGLE(zelmTrace_m_64f, TRACE_M, S, double, N_Z_S, ownzelmTrace_m_64f, ownzelmTrace_m_64f_S2)

//             exported function  arguments layout type  order of tests  kernel
SINGLE_POINTER(zelmTrace_m_32f_P, TRACE_M, P, float,  N_Z_H, ownzelmTrace_m_32f_P)
SINGLE_POINTER(zelmTrace_m_64f_P, TRACE_M, P, double, N_Z_H, ownzelmTrace_m_64f_P)
// clang-format on
