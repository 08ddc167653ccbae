// Vector algebra: argument lists and work estimates.
#pragma once

#include "zelmframe.h"

// clang-format off
#define SAXPY(W, Y, E, A, B, D)  ZELM_##A##_##Y(W, src1, const E), ZELM_C(W, val, E), ZELM_##B##_##Y(W, src2, const E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, len)
#define SAXPY_VV(W, Y, E)    SAXPY(W, Y, E, V, V, V)
#define SAXPY_VAV(W, Y, E)   SAXPY(W, Y, E, VA, V, VA), ZELM_COUNT(W)
#define SAXPY_VVA(W, Y, E)   SAXPY(W, Y, E, V, VA, VA), ZELM_COUNT(W)
#define SAXPY_VAVA(W, Y, E)  SAXPY(W, Y, E, VA, VA, VA), ZELM_COUNT(W)

#define LCOMB(W, Y, E, A, B, D)  ZELM_##A##_##Y(W, src1, const E), ZELM_C(W, val1, E), ZELM_##B##_##Y(W, src2, const E), ZELM_C(W, val2, E), ZELM_##D##_##Y(W, dst, E), ZELM_SIZE(W, len)
#define LCOMB_VV(W, Y, E)    LCOMB(W, Y, E, V, V, V)
#define LCOMB_VAV(W, Y, E)   LCOMB(W, Y, E, VA, V, VA), ZELM_COUNT(W)
#define LCOMB_VAVA(W, Y, E)  LCOMB(W, Y, E, VA, VA, VA), ZELM_COUNT(W)

#define CROSS(W, Y, E, A, B, D)  ZELM_##A##_##Y(W, src1, const E), ZELM_##B##_##Y(W, src2, const E), ZELM_##D##_##Y(W, dst, E)
#define CROSS_VV(W, Y, E)    CROSS(W, Y, E, V, V, V)
#define CROSS_VAV(W, Y, E)   CROSS(W, Y, E, VA, V, VA), ZELM_COUNT(W)
#define CROSS_VVA(W, Y, E)   CROSS(W, Y, E, V, VA, VA), ZELM_COUNT(W)
#define CROSS_VAVA(W, Y, E)  CROSS(W, Y, E, VA, VA, VA), ZELM_COUNT(W)

#define DOT(W, Y, E, A, B)  ZELM_##A##_##Y(W, src1, const E), ZELM_##B##_##Y(W, src2, const E), ZELM_PLAIN(W, dst, E, 1), ZELM_SIZE(W, len)
#define DOT_VV(W, Y, E)      DOT(W, Y, E, V, V)
#define DOT_VAV(W, Y, E)     DOT(W, Y, E, VA, V), ZELM_COUNT(W)
#define DOT_VAVA(W, Y, E)    DOT(W, Y, E, VA, VA), ZELM_COUNT(W)

#define NORM(W, Y, E, A)  ZELM_##A##_##Y(W, src, const E), ZELM_PLAIN(W, dst, E, 1), ZELM_SIZE(W, len)
#define NORM_V(W, Y, E)      NORM(W, Y, E, V)
#define NORM_VA(W, Y, E)     NORM(W, Y, E, VA), ZELM_COUNT(W)
// clang-format on

namespace zelm {

// Saxpy, LComb: vav vva
constexpr Wrapping oneArrayCombined(Size len, Count count) {
  return Wrapping(len) * (Wrapping(2) * count + 1);
}
// Saxpy, LComb: vava
constexpr Wrapping arraysCombined(Size len, Count count) {
  return Wrapping(3) * len * count;
}

// CrossProduct: vectors, not elements. vav vva
constexpr Wrapping oneArrayCrossed(Count count) {
  return Wrapping(2) * count + 1;
}
// vava
constexpr Wrapping arraysCrossed(Count count) {
  return Wrapping(3) * count;
}

// DotProduct: vav
constexpr Wrapping oneArrayMultiplied(Size len, Count count) {
  return Wrapping(len) * (Wrapping(count) + 1);
}
// vava
constexpr Wrapping arraysMultiplied(Size len, Count count) {
  return Wrapping(2) * len * count;
}

// L2Norm: va
constexpr Wrapping arrayElements(Size len, Count count) {
  return Wrapping(len) * count;
}

constexpr double crossed(Count count) {
  return 18.0 * count;
}
ZELM_WORK(CROSS_VAV) = crossed;
ZELM_WORK(CROSS_VVA) = crossed;
ZELM_WORK(CROSS_VAVA) = crossed;

// A root.
ZELM_WORK(NORM_VA) = [](Size len, Count count) { return (2.0 * len + 15) * count; };

} // namespace zelm
