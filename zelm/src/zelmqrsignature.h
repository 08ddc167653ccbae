// QR: argument lists, agreement of the sizes and work estimates.
#pragma once

#include "zelmframe.h"

// clang-format off
#define QR_FACTOR(W, Y, E, S, D)    ZELM_##S##_##Y(W, src, const E), ZELM_BUFFER(W, buffer, E, height), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, width), ZELM_SIZE(W, height)
#define QR_FACTOR_M(W, Y, E)        QR_FACTOR(W, Y, E, M, M)
#define QR_FACTOR_MA(W, Y, E)       QR_FACTOR(W, Y, E, MA, MA), ZELM_COUNT(W)

#define QR_SOLVE(W, Y, E, M, B, X)  ZELM_##M##_##Y(W, src1, const E), ZELM_BUFFER(W, buffer, E, height), ZELM_##B##_##Y(W, src2, const E), ZELM_##X##_##Y(W, dst, E), ZELM_SIZE(W, width), ZELM_SIZE(W, height)
#define QR_SOLVE_MV(W, Y, E)        QR_SOLVE(W, Y, E, M, V, V)
#define QR_SOLVE_MVA(W, Y, E)       QR_SOLVE(W, Y, E, M, VA, VA), ZELM_COUNT(W)
#define QR_SOLVE_MAVA(W, Y, E)      QR_SOLVE(W, Y, E, MA, VA, VA), ZELM_COUNT(W)
// clang-format on

namespace zelm {

// The agreement of the sizes, which follow the operands: at least as many rows as columns.
struct NotWider {
  template <class... Rest> static bool agree(const Size& width, const Size& height, const Rest&...) {
    return width <= height;
  }
  template <class Operand, class... Rest> static bool agree(const Operand&, const Rest&... rest) {
    return agree(rest...);
  }
};

using N_Z_S_Shape = N_Z_S_M<NotWider>;
using N_Z_H_Shape = N_Z_H_M<NotWider>;
using N_C_Z_S_Shape = N_C_Z_S_M<NotWider>;
using N_C_Z_S_H_Shape = N_C_Z_S_H_M<NotWider>;

// Decomposition.
constexpr Wrapping twice(Size width, Size height, Count count) {
  return Wrapping(width) * height * 2 * count;
}
// A matrix for each right side.
constexpr Wrapping matrixEach(Size width, Size height, Count count) {
  return (Wrapping(width) * (Wrapping(height) + 1) + height) * count;
}
// One matrix for all right sides.
constexpr Wrapping oneMatrix(Size width, Size height, Count count) {
  return Wrapping(width) * height + (Wrapping(width) + height) * count;
}

// A root and two quotients for each column.
ZELM_WORK(QR_FACTOR_MA) = [](Size width, Size height, Count count) {
  return (3.0 * width * height + 40) * width * count;
};
constexpr double reflectionsAndTriangle(Size width, Size height, Count count) {
  return 13.0 * width * height * count;
}
ZELM_WORK(QR_SOLVE_MVA) = reflectionsAndTriangle;
ZELM_WORK(QR_SOLVE_MAVA) = reflectionsAndTriangle;

} // namespace zelm
