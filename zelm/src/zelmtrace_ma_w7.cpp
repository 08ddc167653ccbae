// Kernels on two-wide `64f` vectors: traces of an array of matrices, unit strides.
#include "zelmtrace.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmTrace_ma_64f,   TRACE_MA, S, UNIT, double, traces)
KERNEL(ownzelmTrace_ma_64f_L, TRACE_MA, L, UNIT, double, traces)
// clang-format on
