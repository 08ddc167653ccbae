// Kernels on four-wide `32f` vectors: trace of a matrix, unit strides.
#include "zelmtrace.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmTrace_m_32f, TRACE_M, S, UNIT, float, traces)
// clang-format on
