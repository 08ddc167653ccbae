// Traces: sums of diagonals.
#pragma once

#include "zelmblock.h"
#include "zelmsum.h"
#include "zelmtracesignature.h"

namespace zelm {

template <class View> struct Diagonal {
  View x;
  template <class T> ZELM_INLINE T at(int64_t k) const { return x.load(k, k); }
};
template <class View> Diagonal(View) -> Diagonal<View>;

template <class View, class Side> ZELM_INLINE auto traceOf(const View& x, Side side) {
  return sumOf<Chain, typename View::Element>(side, Diagonal{x});
}

// A block of objects.
template <class Objects, class Side> ZELM_INLINE auto tracesOfBlock(const Objects& x, Side side) {
  using L = Lanes<typename Objects::Element>;
  const auto element = [&](auto k) ZELM_BODY {
    L lanes;
    x.load(k, k, Fixed<1>{}, &lanes);
    return lanes;
  };
  if constexpr (isFixed<Side>) {
    L t[side];
    ascending(Fixed<0>{}, side, [&](auto k) ZELM_BODY { t[k] = element(k); });
    return Chain::of(0, t);
  } else {
    L sum{};
    for (int k = 0; k < side; ++k)
      sum = sum + element(k);
    return sum;
  }
}

// body(side), with sides 3 to 6 known to the compiler.
template <class Body> ZELM_INLINE ZelStatus forTraceSide(Size side, const Body& body) {
  return forSize(
      Chain::Straight{}, side, [&](auto n) ZELM_BODY { return body(Fixed<n>{}); },
      [&]() ZELM_BODY { return body(static_cast<int>(side)); });
}

// One matrix.
template <class Source, class T> ZELM_INLINE ZelStatus traces(const Source& src, Size side, const Plain<T>& dst) {
  const auto x = src.object(0, side);
  return forTraceSide(side, [&](auto n) ZELM_BODY {
    storeResult(dst, 0, traceOf(x, n));
    return ZelStatus{zelStatusOk};
  });
}

// An array of them. Neighbours and what else has lists of positions go side by side; the few elements of an object at
// strides are added as quickly as they would be brought into lanes.
template <class Source, class T>
ZELM_INLINE ZelStatus traces(const Source& src, Size side, const Plain<T>& dst, Count count) {
  return forTraceSide(side, [&](auto n) ZELM_BODY {
    const auto single = [&](int64_t k) ZELM_BODY {
      storeResult(dst, k, traceOf(src.object(k, n), n));
      return ZelStatus{zelStatusOk};
    };
    if constexpr (isPointerLayout<Source>) {
      auto sources = matrixBlocks(src, n);
      return forBlocks<laneCount<T>, true>(
          count, areNeighbours(src),
          [&](auto block) ZELM_BODY {
            storeValues(dst, block, tracesOfBlock(sources.at(block), n));
            return true;
          },
          single);
    } else {
      for (int32_t k = 0; k < count; ++k)
        single(k);
      return ZelStatus{zelStatusOk};
    }
  });
}

} // namespace zelm
