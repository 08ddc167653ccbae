// Lane values: one element, a vector of elements, or a pair of lane values; arithmetic written once serves them all.
//
// A lane value L of a family's arithmetic holds one element of each of LaneTraits<L>::width objects. + - * / and unary
// minus are operators; what a scalar would decide with if is a comparison, a mask and a selection here, lane by lane:
// MaskOf<L> is bool for one element. Comparisons are false where a side is NaN, but unequal.
//
// Nothing is ever read or written beyond the elements that are asked for, and no address needs to be aligned.
#pragma once

#include "zelmlane512.h"

// Before a loop over the elements of a tile: unrolled completely, and early enough for the tile to live in registers.
#ifdef __clang__
#  define ZELM_UNROLL _Pragma("clang loop unroll(full)")
#else
#  define ZELM_UNROLL _Pragma("GCC unroll 64")
#endif

namespace zelm {

// How many elements of a type a vector holds: across a block of objects, along a run, along a row of one object.
template <class T> constexpr int laneCount = blockBytes / static_cast<int>(sizeof(T));
template <class T> constexpr int runLaneCount = runBytes / static_cast<int>(sizeof(T));
template <class T> constexpr int rowLaneCount = rowBytes / static_cast<int>(sizeof(T));

// A vector of W elements of type T; W is a power of two.
template <class T, int W = laneCount<T>> using Lanes = LanesOf<T, W>;
template <class T> using RunLanes = LanesOf<T, runLaneCount<T>>;
template <class T> using RowLanes = LanesOf<T, rowLaneCount<T>>;

// Two lane values side by side: twice the objects, and two chains of dependent operations at a time.
template <class L> struct Pair {
  L low;
  L high;
  friend ZELM_INLINE Pair operator+(const Pair& a, const Pair& b) { return {a.low + b.low, a.high + b.high}; }
  friend ZELM_INLINE Pair operator-(const Pair& a, const Pair& b) { return {a.low - b.low, a.high - b.high}; }
  friend ZELM_INLINE Pair operator*(const Pair& a, const Pair& b) { return {a.low * b.low, a.high * b.high}; }
  friend ZELM_INLINE Pair operator/(const Pair& a, const Pair& b) { return {a.low / b.low, a.high / b.high}; }
  friend ZELM_INLINE Pair operator-(const Pair& a) { return {-a.low, -a.high}; }
};
template <class M> struct PairMask {
  M low;
  M high;
};

template <class L> struct LaneTraits {
  using Element = L;
  static constexpr int width = 1;
  static constexpr bool isVector = false;
  static constexpr bool isPair = false;
};
template <class T, int W> struct VectorLaneTraits {
  using Element = T;
  static constexpr int width = W;
  static constexpr bool isVector = true;
  static constexpr bool isPair = false;
};
template <> struct LaneTraits<LanesOf<float, 2>> : VectorLaneTraits<float, 2> {};
template <> struct LaneTraits<LanesOf<float, 4>> : VectorLaneTraits<float, 4> {};
template <> struct LaneTraits<LanesOf<double, 2>> : VectorLaneTraits<double, 2> {};
template <> struct LaneTraits<LanesOf<float, 8>> : VectorLaneTraits<float, 8> {};
template <> struct LaneTraits<LanesOf<double, 4>> : VectorLaneTraits<double, 4> {};
template <> struct LaneTraits<LanesOf<float, 16>> : VectorLaneTraits<float, 16> {};
template <> struct LaneTraits<LanesOf<double, 8>> : VectorLaneTraits<double, 8> {};
template <class L> struct LaneTraits<Pair<L>> {
  using Element = typename LaneTraits<L>::Element;
  static constexpr int width = 2 * LaneTraits<L>::width;
  static constexpr bool isVector = false;
  static constexpr bool isPair = true;
};
template <class L> struct LaneMask<Pair<L>> { using type = PairMask<typename LaneMask<L>::type>; };

template <class L> using ElementOf = typename LaneTraits<L>::Element;
template <class L> using MaskOf = typename LaneMask<L>::type;
// Integers of the lanes' size, one a lane.
template <class L> using IntegerOf = typename LaneInteger<L>::type;

// The same value in every lane, its bits as they are.
template <class L, int... w> ZELM_INLINE L splatVector(ElementOf<L> value, std::integer_sequence<int, w...>) {
  return L{(static_cast<void>(w), value)...};
}
template <class L> ZELM_INLINE L splat(ElementOf<L> value) {
  if constexpr (LaneTraits<L>::isPair) {
    const auto half = splat<decltype(L::low)>(value);
    return {half, half};
  } else if constexpr (LaneTraits<L>::isVector) {
    return splatVector<L>(value, std::make_integer_sequence<int, LaneTraits<L>::width>{});
  } else {
    return value;
  }
}

// Lane w: element(w).
template <class L, class F, int... w> ZELM_INLINE L vectorOf(const F& element, std::integer_sequence<int, w...>) {
  return L{element(w)...};
}
template <class L, class F> ZELM_INLINE L lanesOf(const F& element) {
  if constexpr (LaneTraits<L>::isPair) {
    constexpr int half = LaneTraits<L>::width / 2;
    return {lanesOf<decltype(L::low)>(element), lanesOf<decltype(L::high)>([&](int w) { return element(half + w); })};
  } else if constexpr (LaneTraits<L>::isVector) {
    return vectorOf<L>(element, std::make_integer_sequence<int, LaneTraits<L>::width>{});
  } else {
    return element(0);
  }
}

// Lane w of a value.
template <class L> ZELM_INLINE ElementOf<L> laneAt(const L& x, int w) {
  if constexpr (LaneTraits<L>::isPair)
    return w < LaneTraits<L>::width / 2 ? laneAt(x.low, w) : laneAt(x.high, w - LaneTraits<L>::width / 2);
  else if constexpr (LaneTraits<L>::isVector)
    return x[w];
  else
    return x;
}

// ---------------------------------------------------------------------------------------------------------------------
// Comparisons

template <class L> ZELM_INLINE MaskOf<L> less(const L& a, const L& b) {
  if constexpr (LaneTraits<L>::isPair)
    return {less(a.low, b.low), less(a.high, b.high)};
  else if constexpr (std::is_arithmetic_v<L>)
    return a < b;
  else
    return lessLanes(a, b);
}
template <class L> ZELM_INLINE MaskOf<L> lessEqual(const L& a, const L& b) {
  if constexpr (LaneTraits<L>::isPair)
    return {lessEqual(a.low, b.low), lessEqual(a.high, b.high)};
  else if constexpr (std::is_arithmetic_v<L>)
    return a <= b;
  else
    return lessEqualLanes(a, b);
}
template <class L> ZELM_INLINE MaskOf<L> equal(const L& a, const L& b) {
  if constexpr (LaneTraits<L>::isPair)
    return {equal(a.low, b.low), equal(a.high, b.high)};
  else if constexpr (std::is_arithmetic_v<L>)
    return a == b;
  else
    return equalLanes(a, b);
}
template <class L> ZELM_INLINE MaskOf<L> unequal(const L& a, const L& b) {
  if constexpr (LaneTraits<L>::isPair)
    return {unequal(a.low, b.low), unequal(a.high, b.high)};
  else if constexpr (std::is_arithmetic_v<L>)
    return a != b;
  else
    return unequalLanes(a, b);
}
template <class L> ZELM_INLINE MaskOf<L> greater(const L& a, const L& b) {
  return less(b, a);
}
template <class L> ZELM_INLINE MaskOf<L> greaterEqual(const L& a, const L& b) {
  return lessEqual(b, a);
}

// ---------------------------------------------------------------------------------------------------------------------
// Masks. A mask made by {} has no lane.

ZELM_INLINE bool both(bool a, bool b) {
  return a && b;
}
template <class M> ZELM_INLINE M both(const M& a, const M& b) {
  return bothLanes(a, b);
}
template <class M> ZELM_INLINE PairMask<M> both(const PairMask<M>& a, const PairMask<M>& b) {
  return {both(a.low, b.low), both(a.high, b.high)};
}
ZELM_INLINE bool either(bool a, bool b) {
  return a || b;
}
template <class M> ZELM_INLINE M either(const M& a, const M& b) {
  return eitherLanes(a, b);
}
template <class M> ZELM_INLINE PairMask<M> either(const PairMask<M>& a, const PairMask<M>& b) {
  return {either(a.low, b.low), either(a.high, b.high)};
}
// The lanes of a that are not lanes of b.
ZELM_INLINE bool without(bool a, bool b) {
  return a && !b;
}
template <class M> ZELM_INLINE M without(const M& a, const M& b) {
  return withoutLanes(a, b);
}
template <class M> ZELM_INLINE PairMask<M> without(const PairMask<M>& a, const PairMask<M>& b) {
  return {without(a.low, b.low), without(a.high, b.high)};
}
ZELM_INLINE bool negated(bool a) {
  return !a;
}
template <class M> ZELM_INLINE M negated(const M& a) {
  return negatedLanes(a);
}
template <class M> ZELM_INLINE PairMask<M> negated(const PairMask<M>& a) {
  return {negated(a.low), negated(a.high)};
}

// The mask as bits, lane 0 the lowest.
template <class L> ZELM_INLINE unsigned bitsOf(const MaskOf<L>& mask) {
  if constexpr (LaneTraits<L>::isPair)
    return bitsOf<decltype(L::low)>(mask.low) | bitsOf<decltype(L::low)>(mask.high) << LaneTraits<L>::width / 2;
  else if constexpr (LaneTraits<L>::isVector)
    return laneBits(mask);
  else
    return mask;
}

ZELM_INLINE bool any(bool mask) {
  return mask;
}
template <class M> ZELM_INLINE bool any(const M& mask) {
  return laneBits(mask) != 0;
}
template <class M> ZELM_INLINE bool any(const PairMask<M>& mask) {
  return any(either(mask.low, mask.high));
}
template <class M> ZELM_INLINE bool all(const M& mask) {
  return !any(negated(mask));
}

// Lane by lane: yes where the mask has the lane, no elsewhere. Bits are moved as they are.
template <class L> ZELM_INLINE L select(const MaskOf<L>& mask, const L& yes, const L& no) {
  if constexpr (LaneTraits<L>::isPair)
    return {select(mask.low, yes.low, no.low), select(mask.high, yes.high, no.high)};
  else if constexpr (LaneTraits<L>::isVector)
    return selectLanes(mask, yes, no);
  else
    return mask ? yes : no;
}

// Exchanges a value with others in turn, each in lanes of its own: no lane is in two of the masks.
template <class L> class LaneExchange {
public:
  ZELM_INLINE explicit LaneExchange(const L& value) : old_(value), now_(value) {}
  ZELM_INLINE void with(const MaskOf<L>& mask, L& other) {
    if constexpr (hasBlends || !LaneTraits<L>::isVector) {
      now_ = select(mask, other, now_);
      other = select(mask, old_, other);
    } else {
      // Without blends it is the bits in which the two differ that change places.
      using I = IntegerOf<L>;
      const I change = mask & (reinterpret_cast<I>(old_) ^ reinterpret_cast<I>(other));
      other = reinterpret_cast<L>(reinterpret_cast<I>(other) ^ change);
      now_ = reinterpret_cast<L>(reinterpret_cast<I>(now_) ^ change);
    }
  }
  ZELM_INLINE const L& value() const { return now_; }

private:
  L old_;
  L now_;
};

// ---------------------------------------------------------------------------------------------------------------------
// Arithmetic

// a > b ? a : b
template <class L> ZELM_INLINE L larger(const L& a, const L& b) {
  if constexpr (LaneTraits<L>::isPair)
    return {larger(a.low, b.low), larger(a.high, b.high)};
  else if constexpr (LaneTraits<L>::isVector)
    return largerLanes(a, b);
  else
    return a > b ? a : b;
}

// The sign bit cleared, NaN included.
ZELM_INLINE float magnitude(float x) {
  return __builtin_fabsf(x);
}
ZELM_INLINE double magnitude(double x) {
  return __builtin_fabs(x);
}
template <class L> ZELM_INLINE L magnitude(const L& x) {
  if constexpr (LaneTraits<L>::isPair) {
    return {magnitude(x.low), magnitude(x.high)};
  } else {
    using I = IntegerOf<L>;
    return reinterpret_cast<L>(reinterpret_cast<I>(x) & ~reinterpret_cast<I>(splat<L>(-ElementOf<L>())));
  }
}

ZELM_INLINE float squareRoot(float x) {
  return __builtin_sqrtf(x);
}
ZELM_INLINE double squareRoot(double x) {
  return __builtin_sqrt(x);
}
template <class L> ZELM_INLINE L squareRoot(const L& x) {
  if constexpr (LaneTraits<L>::isPair)
    return {squareRoot(x.low), squareRoot(x.high)};
  else
    return squareRootLanes(x);
}

// 32f lanes as 64f lanes, and back, rounded.
ZELM_INLINE double widened(float x) {
  return x;
}
template <class L> ZELM_INLINE auto widened(const L& x) {
  if constexpr (LaneTraits<L>::isPair)
    return Pair<decltype(widened(x.low))>{widened(x.low), widened(x.high)};
  else
    return Pair<decltype(widenedLow(x))>{widenedLow(x), widenedHigh(x)};
}
ZELM_INLINE float narrowed(double x) {
  return static_cast<float>(x);
}
template <class L> ZELM_INLINE auto narrowed(const Pair<L>& x) {
  if constexpr (LaneTraits<L>::isPair)
    return Pair<decltype(narrowed(x.low))>{narrowed(x.low), narrowed(x.high)};
  else
    return narrowedPair(x.low, x.high);
}

// The processor's estimate of 1 / x, of single-precision lanes; 64f lanes are rounded to single precision before it.
template <class L> ZELM_INLINE L reciprocalEstimate(const L& x) {
  if constexpr (std::is_same_v<L, double>)
    return estimateOfReciprocal(static_cast<float>(x));
  else if constexpr (LaneTraits<L>::isPair && sizeof(ElementOf<L>) == 4)
    return {reciprocalEstimate(x.low), reciprocalEstimate(x.high)};
  else if constexpr (LaneTraits<L>::isPair)
    return widened(reciprocalEstimate(narrowed(x)));
  else if constexpr (LaneTraits<L>::isVector && sizeof(ElementOf<L>) == 8)
    return widenedLow(estimateOfReciprocal(narrowedPair(x, x)));
  else
    return estimateOfReciprocal(x);
}

// ---------------------------------------------------------------------------------------------------------------------
// Lanes of two vectors within each sixteen bytes: pick<0, 3>(x, y) takes, of each, the first of x and the last of y

template <int... pattern, class V, int... w>
ZELM_INLINE V pickLanes(const V& x, const V& y, std::integer_sequence<int, pattern...>,
                        std::integer_sequence<int, w...>) {
  constexpr int W = sizeof...(w);
  constexpr int Q = sizeof...(pattern);
  constexpr int of[Q] = {pattern...};
  return __builtin_shufflevector(x, y, (w / Q * Q + of[w % Q] % Q + of[w % Q] / Q * W)...);
}
template <int... pattern, class V> ZELM_INLINE V pick(const V& x, const V& y) {
  return pickLanes(x, y, std::integer_sequence<int, pattern...>{},
                   std::make_integer_sequence<int, LaneTraits<V>::width>{});
}

// Two vectors as one of twice the width, and its halves.
template <class V, int... w> ZELM_INLINE auto joinVectors(const V& a, const V& b, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(a, b, w...);
}
template <class V> ZELM_INLINE auto joinHalves(const V& low, const V& high) {
  return joinVectors(low, high, std::make_integer_sequence<int, 2 * LaneTraits<V>::width>{});
}
template <int from, class V, int... w> ZELM_INLINE auto lanesFrom(const V& v, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(v, v, (from + w)...);
}
template <class V> ZELM_INLINE auto lowHalf(const V& v) {
  return lanesFrom<0>(v, std::make_integer_sequence<int, LaneTraits<V>::width / 2>{});
}
template <class V> ZELM_INLINE auto highHalf(const V& v) {
  return lanesFrom<LaneTraits<V>::width / 2>(v, std::make_integer_sequence<int, LaneTraits<V>::width / 2>{});
}

// A vector from its sixteen-byte parts, and part p of it.
template <class V> ZELM_INLINE V joinParts(const V (&part)[1]) {
  return part[0];
}
template <class V> ZELM_INLINE auto joinParts(const V (&part)[2]) {
  return joinHalves(part[0], part[1]);
}
template <class V> ZELM_INLINE auto joinParts(const V (&part)[4]) {
  return joinHalves(joinHalves(part[0], part[1]), joinHalves(part[2], part[3]));
}
template <int p, class V> ZELM_INLINE auto partOf(const V& v) {
  constexpr int Q = 16 / static_cast<int>(sizeof(v[0]));
  return lanesFrom<p * Q>(v, std::make_integer_sequence<int, Q>{});
}

// ---------------------------------------------------------------------------------------------------------------------
// Loads and stores

template <class T, int W = laneCount<T>> ZELM_INLINE Lanes<T, W> loadLanes(const char* address) {
  Lanes<T, W> v;
  std::memcpy(&v, address, sizeof v);
  return v;
}

template <class T> ZELM_INLINE RowLanes<T> loadRowLanes(const char* address) {
  return loadLanes<T, rowLaneCount<T>>(address);
}

template <class V> ZELM_INLINE void storeLanes(char* address, const V& v) {
  std::memcpy(address, &v, sizeof v);
}

template <bool Stream, class V> ZELM_INLINE void putLanes(char* address, const V& v) {
  if constexpr (Stream)
    streamLanes(address, v);
  else
    storeLanes(address, v);
}

// Elements until an address is a multiple of a run's vector; -1 if it never is.
template <class T> ZELM_INLINE int64_t elementsToAlignment(const char* address) {
  const auto beyond = reinterpret_cast<std::uintptr_t>(address) % runBytes;
  if (beyond % sizeof(T) != 0)
    return -1;
  return beyond == 0 ? 0 : static_cast<int64_t>((runBytes - beyond) / sizeof(T));
}

// Results from this size on are worth writing past the caches, unless they take the place of a source.
constexpr int64_t streamingBytes = int64_t{48} << 20;

// Whether n elements at dst, part of a result of `total` and made of `sources`, are written past the caches. A part is
// long enough to begin and end in the middle of vectors.
template <class T, class... Sources>
ZELM_INLINE bool isStreamed(const char* dst, int64_t n, int64_t total, const Sources*... sources) {
  return total * static_cast<int64_t>(sizeof(T)) >= streamingBytes && n >= 16 * laneCount<T> &&
         elementsToAlignment<T>(dst) >= 0 && ((dst != sources) && ...);
}

} // namespace zelm
