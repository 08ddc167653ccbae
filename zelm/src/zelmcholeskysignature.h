// Cholesky: argument lists.
#pragma once

#include "zelmframe.h"

// clang-format off
#define CHOLESKY_FACTOR(W, Y, E, S, D)    ZELM_##S##_##Y(W, src, const E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, widthHeight)
#define CHOLESKY_FACTOR_M(W, Y, E)        CHOLESKY_FACTOR(W, Y, E, M, M)
#define CHOLESKY_FACTOR_MA(W, Y, E)       CHOLESKY_FACTOR(W, Y, E, MA, MA), ZELM_COUNT(W)

#define CHOLESKY_SOLVE(W, Y, E, M, B, X)  ZELM_##M##_##Y(W, src1, const E), ZELM_##B##_##Y(W, src2, const E), ZELM_##X##_##Y(W, dst, E), ZELM_SIZE(W, widthHeight)
#define CHOLESKY_SOLVE_MV(W, Y, E)        CHOLESKY_SOLVE(W, Y, E, M, V, V)
#define CHOLESKY_SOLVE_MVA(W, Y, E)       CHOLESKY_SOLVE(W, Y, E, M, VA, VA), ZELM_COUNT(W)
#define CHOLESKY_SOLVE_MAVA(W, Y, E)      CHOLESKY_SOLVE(W, Y, E, MA, VA, VA), ZELM_COUNT(W)
// clang-format on

namespace zelm {

// A root and a quotient for each row.
ZELM_WORK(CHOLESKY_FACTOR_MA) = [](Size widthHeight, Count count) {
  return (1.0 * widthHeight * widthHeight + 60) * widthHeight * count;
};
constexpr double twoTriangles(Size widthHeight, Count count) {
  return 6.0 * widthHeight * widthHeight * count;
}
ZELM_WORK(CHOLESKY_SOLVE_MVA) = twoTriangles;
ZELM_WORK(CHOLESKY_SOLVE_MAVA) = twoTriangles;

} // namespace zelm
