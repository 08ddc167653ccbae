// Parallel fronts: traces of an array of matrices.
#include "zelmfront.h"
#include "zelmtracesignature.h"

// clang-format off
//    front  arguments layout type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmTrace_ma_32f,   TRACE_MA, S, float,  Discards, ownzelmTrace_ma_32f,   ownzelmTrace_ma_32f_S2)
FRONT(ownOMP_zelmTrace_ma_64f,   TRACE_MA, S, double, Discards, ownzelmTrace_ma_64f,   ownzelmTrace_ma_64f_S2)
FRONT(ownOMP_zelmTrace_ma_32f_L, TRACE_MA, L, float,  Discards, ownzelmTrace_ma_32f_L, ownzelmTrace_ma_32f_LS2)
FRONT(ownOMP_zelmTrace_ma_64f_L, TRACE_MA, L, double, Discards, ownzelmTrace_ma_64f_L, ownzelmTrace_ma_64f_LS2)

//            front  arguments layout type  statuses  kernel
FRONT_POINTER(ownOMP_zelmTrace_ma_32f_P, TRACE_MA, P, float,  Discards, ownzelmTrace_ma_32f_P)
FRONT_POINTER(ownOMP_zelmTrace_ma_64f_P, TRACE_MA, P, double, Discards, ownzelmTrace_ma_64f_P)
// clang-format on
