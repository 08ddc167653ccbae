// Copy, Extract and LoadIdentity: argument lists.
#pragma once

#include "zelmframe.h"

// clang-format off
// Copy: Y is the layout of the source, that of the result stands in the name.
#define COPY_MA(W, Y, Z, E)     ZELM_MA_##Y(W, src, const E), ZELM_MA_##Z(W, dst, E), ZELM_SIZE(W, width), ZELM_SIZE(W, height), ZELM_COUNT(W)
#define COPY_VA(W, Y, Z, E)     ZELM_VA_##Y(W, src, const E), ZELM_VA_##Z(W, dst, E), ZELM_SIZE(W, len), ZELM_COUNT(W)
#define COPY_MA_TO_S(W, Y, E)   COPY_MA(W, Y, S, E)
#define COPY_MA_TO_L(W, Y, E)   COPY_MA(W, Y, L, E)
#define COPY_MA_TO_P(W, Y, E)   COPY_MA(W, Y, P, E)
#define COPY_VA_TO_S(W, Y, E)   COPY_VA(W, Y, S, E)
#define COPY_VA_TO_L(W, Y, E)   COPY_VA(W, Y, L, E)
#define COPY_VA_TO_P(W, Y, E)   COPY_VA(W, Y, P, E)

// Extract: the result is one run, whatever the layout.
#define EXTRACT(W, Y, E, S)     ZELM_##S##_##Y(W, src, const E), ZELM_PLAIN(W, dst, E, 0)
#define EXTRACT_M(W, Y, E)      EXTRACT(W, Y, E, M), ZELM_SIZE(W, width), ZELM_SIZE(W, height)
#define EXTRACT_T(W, Y, E)      EXTRACT(W, Y, E, T), ZELM_SIZE(W, width), ZELM_SIZE(W, height)
#define EXTRACT_V(W, Y, E)      EXTRACT(W, Y, E, V), ZELM_SIZE(W, len)
#define EXTRACT_MA(W, Y, E)     EXTRACT(W, Y, E, MA), ZELM_SIZE(W, width), ZELM_SIZE(W, height), ZELM_COUNT(W)
#define EXTRACT_TA(W, Y, E)     EXTRACT(W, Y, E, TA), ZELM_SIZE(W, width), ZELM_SIZE(W, height), ZELM_COUNT(W)
#define EXTRACT_VA(W, Y, E)     EXTRACT(W, Y, E, VA), ZELM_SIZE(W, len), ZELM_COUNT(W)

#define LOAD_IDENTITY(W, Y, E)  ZELM_MA_##Y(W, dst, E), ZELM_SIZE(W, width), ZELM_SIZE(W, height), ZELM_COUNT(W)
// clang-format on
