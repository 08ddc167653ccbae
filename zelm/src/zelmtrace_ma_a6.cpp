// Kernels on four-wide `32f` vectors: traces of an array of matrices, unit strides.
#include "zelmtrace.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmTrace_ma_32f,   TRACE_MA, S, UNIT, float, traces)
KERNEL(ownzelmTrace_ma_32f_L, TRACE_MA, L, UNIT, float, traces)
// clang-format on
