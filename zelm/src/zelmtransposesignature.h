// Transpose: argument lists. The sizes are the source's.
#pragma once

#include "zelmframe.h"

// clang-format off
#define TRANSPOSE(W, Y, E, S, D)  ZELM_##S##_##Y(W, src, const E), ZELM_SIZE(W, width), ZELM_SIZE(W, height), ZELM_##D##_##Y(W, dst, E)
#define TRANSPOSE_M(W, Y, E)      TRANSPOSE(W, Y, E, M, M)
#define TRANSPOSE_MA(W, Y, E)     TRANSPOSE(W, Y, E, MA, MA), ZELM_COUNT(W)
// clang-format on
