// Portable kernels: trace of a matrix, any strides and pointer layout.
#include "zelmtrace.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmTrace_m_32f_S2, TRACE_M, S, ANY, float,  traces)
KERNEL(ownzelmTrace_m_64f_S2, TRACE_M, S, ANY, double, traces)
KERNEL(ownzelmTrace_m_32f_P,  TRACE_M, P, ANY, float,  traces)
KERNEL(ownzelmTrace_m_64f_P,  TRACE_M, P, ANY, double, traces)
// clang-format on
