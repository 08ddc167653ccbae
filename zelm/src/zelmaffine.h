// The homogeneous transform of points: dst = (src1 * (x0, x1, x2, 1)) / w.
#pragma once

#include "zelmaffinesignature.h"
#include "zelmtriples.h"

namespace zelm {

// Below or at this w a point is not divided: the smallest positive normal single-precision number.
constexpr float smallestW = 0x1p-126f;
// What such a point becomes.
constexpr float largeValue = 0x1.fffffep+127f;

template <class L> struct Homogeneous { L y[4]; };

// The translation comes second in each sum.
template <class L, class M> ZELM_INLINE Homogeneous<L> transformPoint(const M& a, const Tile<L, 1, 3>& x) {
  Homogeneous<L> h;
  ZELM_UNROLL
  for (int r = 0; r < 4; ++r)
    h.y[r] = ((a(r, 0) * x(0, 0) + a(r, 3)) + a(r, 1) * x(0, 1)) + a(r, 2) * x(0, 2);
  return h;
}

// The comparison is strict, and a NaN fails it. Widening both sides to double precision would not change its outcome.
ZELM_INLINE bool canDivide(float w) {
  return __builtin_fabsf(w) > smallestW;
}

// One division gives the reciprocal, three products the point. Returns whether w was good.
template <class View> ZELM_INLINE bool dividePoint(const Homogeneous<float>& h, const View& dst) {
  const bool good = canDivide(h.y[3]);
  const float reciprocal = 1.0f / h.y[3];
  ZELM_UNROLL
  for (int i = 0; i < 3; ++i)
    dst.store(i, good ? h.y[i] * reciprocal : largeValue);
  return good;
}

// The same on lanes. Where a point of the block fails, results are selected lane by lane.
template <class L> ZELM_INLINE Tile<L, 1, 3> dividePoints(const Homogeneous<L>& h, bool& failed) {
  const L w = h.y[3];
  const auto good = greater(magnitude(w), splat<L>(smallestW));
  const L reciprocal = splat<L>(1.0f) / w;
  Tile<L, 1, 3> point;
  ZELM_UNROLL
  for (int i = 0; i < 3; ++i)
    point(0, i) = h.y[i] * reciprocal;
  if (__builtin_expect(!all(good), 0)) {
    failed = true;
    ZELM_UNROLL
    for (int i = 0; i < 3; ++i)
      point(0, i) = select(good, point(0, i), splat<L>(largeValue));
  }
  return point;
}

// Points first .. last whole vector of them, packed one behind the other. Returns the first point not done.
template <bool Stream>
inline int64_t transformPacked(const Tile<float, 4, 4>& matrix, const char* src, char* dst, int64_t first, int64_t end,
                               bool& anyFailed) {
  using L = RowLanes<float>;
  constexpr int64_t width = rowLaneCount<float>;
  constexpr int64_t pointBytes = 3 * sizeof(float);
  Tile<L, 4, 4> a;
  ZELM_UNROLL
  for (int e = 0; e < 16; ++e)
    a.element[e] = splat<L>(matrix.element[e]);
  bool failed = false;
  int64_t k = first;
  for (; k + width <= end; k += width) {
    const Tile<L, 1, 3> x = loadTurnedTriples<float>(src + k * pointBytes);
    storeTurnedTriples<float, Stream>(dst + k * pointBytes, dividePoints(transformPoint(a, x), failed));
  }
  anyFailed |= failed;
  return k;
}

// Points of any strides.
template <class B, class D>
inline void transformAny(const Tile<float, 4, 4>& matrix, const B& src2, const D& dst, int64_t first, int64_t end,
                         bool& failed) {
  for (int64_t k = first; k < end; ++k) {
    const Tile<float, 1, 3> x = {{src2.object(k).load(0), src2.object(k).load(1), src2.object(k).load(2)}};
    failed |= !dividePoint(transformPoint(matrix, x), dst.object(k));
  }
}

template <class A, class B, class D>
inline ZelStatus transformPoints(const A& src1, const B& src2, const D& dst, Count count) {
  const auto matrix = loadTile<4, 4>(src1.object(0, 4));
  bool failed = false;
  int64_t k = 0;
  // Whatever the strides of the matrix.
  if (src2.unit() && dst.unit() && src2.packed(3) && dst.packed(3)) {
    const auto* const from = reinterpret_cast<const char*>(src2.pointer);
    auto* const to = reinterpret_cast<char*>(dst.pointer);
    // Vectors of points can be aligned wherever elements are.
    if (isStreamed<float>(to, int64_t{3} * count, int64_t{3} * count.whole, from)) {
      int64_t lead = 0;
      while (elementsToAlignment<float>(to + lead * dst.stride0) != 0)
        ++lead;
      transformAny(matrix, src2, dst, 0, lead, failed);
      k = transformPacked<true>(matrix, from, to, lead, count, failed);
      endStreams();
    } else {
      k = transformPacked<false>(matrix, from, to, 0, count, failed);
    }
  }
  transformAny(matrix, src2, dst, k, count, failed);
  return failed ? zelStatusDivideByZero : zelStatusOk;
}

} // namespace zelm
