// Inverses: argument lists, orders of tests, work estimate.
#pragma once

#include "zelmframe.h"
#include "zelmsingular.h"

// clang-format off
#define INVERT(W, Y, E, S)   ZELM_##S##_##Y(W, src, const E), ZELM_BUFFER(W, buffer, E, zelm::workingElements(widthHeight)), ZELM_##S##_##Y(W, dst, E), ZELM_SIZE(W, widthHeight)
#define INVERT_M(W, Y, E)    INVERT(W, Y, E, M)
#define INVERT_MA(W, Y, E)   INVERT(W, Y, E, MA), ZELM_COUNT(W)
// clang-format on

namespace zelm {

constexpr Wrapping twoSides(Size widthHeight, Count count) {
  return Wrapping(2) * count * widthHeight;
}
// By cofactors, or by an elimination for each element.
ZELM_WORK(INVERT_MA) = [](Size widthHeight, Count count) {
  const double n = widthHeight;
  return (n < 7 ? 4 : n * n) * n * n * n * count;
};

// Single elements have no kernel: their reciprocals are taken as soon as the arguments have passed the tests, whatever
// the count. Here the limit itself is singular, and so is a NaN.
template <class Tests> struct ElementsAtOnce {
  template <class Source, class Scratch, class Result>
  static bool settles(ZelStatus& status, const Source& src, const Scratch& buffer, const Result& dst, Size side,
                      Count count) {
    if (Tests::settles(status, src, buffer, dst, side, count))
      return true;
    return side == 1 && reciprocals(status, src, dst, count);
  }
  template <class Source, class Scratch, class Result>
  static bool settles(ZelStatus& status, const Source& src, const Scratch& buffer, const Result& dst, Size side) {
    if (Tests::settles(status, src, buffer, dst, side))
      return true;
    return side == 1 && reciprocals(status, src, dst, 1);
  }

private:
  template <class Source, class Result>
  static bool reciprocals(ZelStatus& status, const Source& src, const Result& dst, int32_t count) {
    using T = typename Result::Element;
    for (int32_t k = 0; k < count; ++k) {
      const T a = src.object(k, 1).load(0, 0);
      if (!((a < 0 ? -a : a) > singularLimit<T>(1))) {
        status = zelStatusSingular;
        return true;
      }
      dst.object(k, 1).store(0, 0, 1 / a);
    }
    return true;
  }
};

// clang-format off
using N_Z_S_Elements     = ElementsAtOnce<N_Z_S>;
using N_Z_H_Elements     = ElementsAtOnce<N_Z_H>;
using N_C_Z_S_Elements   = ElementsAtOnce<N_C_Z_S>;
using N_C_Z_S_H_Elements = ElementsAtOnce<N_C_Z_S_H>;
// clang-format on

} // namespace zelm
