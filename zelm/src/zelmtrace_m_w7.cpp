// Kernels on two-wide `64f` vectors: trace of a matrix, unit strides.
#include "zelmtrace.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmTrace_m_64f, TRACE_M, S, UNIT, double, traces)
// clang-format on
