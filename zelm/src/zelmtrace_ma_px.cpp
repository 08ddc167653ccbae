// Portable kernels: traces of an array of matrices, any strides and pointer layout.
#include "zelmtrace.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmTrace_ma_32f_S2,  TRACE_MA, S, ANY, float,  traces)
KERNEL(ownzelmTrace_ma_64f_S2,  TRACE_MA, S, ANY, double, traces)
KERNEL(ownzelmTrace_ma_32f_LS2, TRACE_MA, L, ANY, float,  traces)
KERNEL(ownzelmTrace_ma_64f_LS2, TRACE_MA, L, ANY, double, traces)
KERNEL(ownzelmTrace_ma_32f_P,   TRACE_MA, P, ANY, float,  traces)
KERNEL(ownzelmTrace_ma_64f_P,   TRACE_MA, P, ANY, double, traces)
// clang-format on
