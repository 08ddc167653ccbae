// LU: argument lists.
#pragma once

#include "zelmframe.h"

// clang-format off
#define LUDECOMP(W, Y, E, S, D)             ZELM_##S##_##Y(W, src, const E), ZELM_PLAIN(W, index, int32_t, widthHeight), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, widthHeight)
#define LUDECOMP_M(W, Y, E)                 LUDECOMP(W, Y, E, M, M)
#define LUDECOMP_MA(W, Y, E)                LUDECOMP(W, Y, E, MA, MA), ZELM_COUNT(W)

// The index has `each` entries an object: one for all objects where the matrix is one for all.
#define LUBACKSUBST(W, Y, E, A, B, D, each) ZELM_##A##_##Y(W, src1, const E), ZELM_PLAIN(W, index, const int32_t, each), ZELM_##B##_##Y(W, src2, const E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, widthHeight)
#define LUBACKSUBST_MV(W, Y, E)             LUBACKSUBST(W, Y, E, M, V, V, 0)
#define LUBACKSUBST_MVA(W, Y, E)            LUBACKSUBST(W, Y, E, M, VA, VA, 0), ZELM_COUNT(W)
#define LUBACKSUBST_MAVA(W, Y, E)           LUBACKSUBST(W, Y, E, MA, VA, VA, widthHeight), ZELM_COUNT(W)
// clang-format on

namespace zelm {

// The search for pivots and the exchanges of rows weigh as much as the sums.
ZELM_WORK(LUDECOMP_MA) = [](Size widthHeight, Count count) {
  return 5.0 * widthHeight * widthHeight * widthHeight * count;
};
// Rows are looked up.
constexpr double lookedUp(Size widthHeight, Count count) {
  return 9.0 * widthHeight * widthHeight * count;
}
ZELM_WORK(LUBACKSUBST_MVA) = lookedUp;
ZELM_WORK(LUBACKSUBST_MAVA) = lookedUp;

} // namespace zelm
