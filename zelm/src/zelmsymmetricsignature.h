// Symmetric eigenproblems: argument lists and work estimates.
#pragma once

#include "zelmframe.h"

// clang-format off
#define SYM_VALUES(W, Y, E, S)      ZELM_##S##_##Y(W, src, const E), ZELM_BUFFER(W, buffer, E, zelm::squareOf(widthHeight)), ZELM_PLAIN(W, values, E, widthHeight), ZELM_SIZE(W, widthHeight)
#define SYM_VALUES_M(W, Y, E)       SYM_VALUES(W, Y, E, M)
#define SYM_VALUES_MA(W, Y, E)      SYM_VALUES(W, Y, E, MA), ZELM_COUNT(W)

#define SYM_VECTORS(W, Y, E, S, D)  ZELM_##S##_##Y(W, src, const E), ZELM_BUFFER(W, buffer, E, zelm::squareOf(widthHeight)), ZELM_##D##_##Y(W, vectors, E), ZELM_PLAIN(W, values, E, widthHeight), ZELM_SIZE(W, widthHeight)
#define SYM_VECTORS_M(W, Y, E)      SYM_VECTORS(W, Y, E, M, M)
#define SYM_VECTORS_MA(W, Y, E)     SYM_VECTORS(W, Y, E, MA, MA), ZELM_COUNT(W)
// clang-format on

namespace zelm {

// The elements of the scratch for one object; more than a size can tell are the most that it can.
constexpr int32_t squareOf(int32_t side) {
  const int64_t elements = int64_t{side} * side;
  return elements <= INT32_MAX ? static_cast<int32_t>(elements) : INT32_MAX;
}

// Values alone.
constexpr Wrapping symmetricMatrices(Size side, Count count) {
  return Wrapping(side) * (Wrapping(side) + 1) * count;
}
// Values and vectors.
constexpr Wrapping symmetricPairs(Size side, Count count) {
  return ((Wrapping(side) + side) * side + side) * count;
}

// About two iterations a value, each a rotation, which takes a root and two quotients, for half the rows.
ZELM_WORK(SYM_VALUES_MA) = [](Size widthHeight, Count count) {
  const double n = widthHeight;
  return (3 * n + 50) * n * n * count;
};
// The vectors are rotated too.
ZELM_WORK(SYM_VECTORS_MA) = [](Size widthHeight, Count count) {
  const double n = widthHeight;
  return (10 * n + 50) * n * n * count;
};

} // namespace zelm
