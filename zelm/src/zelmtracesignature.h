// Traces: argument lists.
#pragma once

#include "zelmframe.h"

// clang-format off
#define TRACE(W, Y, E, S)   ZELM_##S##_##Y(W, src, const E), ZELM_SIZE(W, widthHeight), ZELM_PLAIN(W, dst, E, 1)
#define TRACE_M(W, Y, E)    TRACE(W, Y, E, M)
#define TRACE_MA(W, Y, E)   TRACE(W, Y, E, MA), ZELM_COUNT(W)
// clang-format on
