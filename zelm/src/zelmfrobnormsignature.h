// Frobenius norms: argument lists, work estimate.
#pragma once

#include "zelmframe.h"

// clang-format off
#define FROBNORM(W, Y, E, S)   ZELM_##S##_##Y(W, src, const E), ZELM_SIZE(W, width), ZELM_SIZE(W, height), ZELM_PLAIN(W, dst, E, 1)
#define FROBNORM_M(W, Y, E)    FROBNORM(W, Y, E, M)
#define FROBNORM_MA(W, Y, E)   FROBNORM(W, Y, E, MA), ZELM_COUNT(W)
// clang-format on

namespace zelm {

constexpr Wrapping elements(Size width, Size height, Count count) {
  return Wrapping(width) * height * count;
}

// A root.
ZELM_WORK(FROBNORM_MA) = [](Size width, Size height, Count count) { return (2.0 * width * height + 15) * count; };

} // namespace zelm
