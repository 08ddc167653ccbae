// The homogeneous transform of points: argument list and work estimate.
#pragma once

#include "zelmframe.h"

// clang-format off
#define AFFINE_MVA(W, Y, E)  ZELM_M_##Y(W, src1, const E), ZELM_VA_##Y(W, src2, const E), ZELM_VA_##Y(W, dst, E), ZELM_COUNT(W)
// clang-format on

namespace zelm {

// A point in and a point out, and the matrix.
constexpr Wrapping pointsAndMatrix(Count count) {
  return Wrapping(6) * count + 16;
}

ZELM_WORK(AFFINE_MVA) = [](Count count) { return 35.0 * count; };

} // namespace zelm
