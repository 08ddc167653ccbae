// Eigenvalues of general matrices: reduction to Hessenberg form, QR iteration with double shifts, standard form of the
// blocks that remain.
//
// M, the matrix that all of it works on, is the transpose of the source, with its columns one behind the other: the
// eigenvalues are the same, but every rounding follows that reading, and so do the vectors of zelmeigenvectors.h. The
// arithmetic serves one object of any side, on scratch at any byte address, and as many objects as a vector has lanes,
// each at its own place of the iteration: a lane that has nothing to do in a step keeps its numbers as they are.
//
// Places count from 0 here. All limits are absolute; comparisons are written as they are meant, since NaN falls on one
// side of them.
#pragma once

#include "zelmblock.h"
#include "zelmeigenvaluessignature.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Numbers

template <class T> struct EigenLimits;
template <> struct EigenLimits<float> {
  static constexpr float epsilon = 0x1p-23F;
  static constexpr float tiny = 0x1p-125F; // the smallest magnitude that is not taken for zero
};
template <> struct EigenLimits<double> {
  static constexpr double epsilon = 0x1p-52;
  static constexpr double tiny = 0x1p-1021;
};
template <class L> constexpr ElementOf<L> epsilonOf = EigenLimits<ElementOf<L>>::epsilon;
template <class L> constexpr ElementOf<L> tinyOf = EigenLimits<ElementOf<L>>::tiny;

// value in the lanes of the mask, zero in the others: x - only(mask, y) leaves those as they are, to the bit.
template <class L> ZELM_INLINE L only(const MaskOf<L>& mask, const L& value) {
  return select(mask, value, L{});
}

template <class L> ZELM_INLINE MaskOf<L> notAbove(const L& x, ElementOf<L> limit) {
  return lessEqual(magnitude(x), splat<L>(limit));
}

// Numbers below 0 have another sign than all others; NaN has that of the others.
template <class L> ZELM_INLINE MaskOf<L> isNegative(const L& x) {
  return less(x, L{});
}
template <class L> ZELM_INLINE MaskOf<L> haveOneSign(const L& x, const L& y) {
  const auto a = isNegative(x), b = isNegative(y);
  return either(both(a, b), negated(either(a, b)));
}

// The length of (x, y), at least twice tiny where it would be below tiny.
template <class L> ZELM_INLINE L lengthOf(const L& x, const L& y) {
  const L a = magnitude(x), b = magnitude(y);
  const L w = select(greater(a, b), a, b), z = select(less(a, b), a, b);
  const L tiny = splat<L>(tinyOf<L>);
  const L r = select(greaterEqual(z, tiny), w * squareRoot(z * z / (w * w) + splat<L>(1)), w);
  return select(less(r, tiny), tiny + tiny, r);
}

// A reflector turns (alpha, x) into (beta, 0): the identity minus tau * v * transpose(v), v = (1, factor * x).
template <class L> struct Reflector { L tau, beta, factor; };

// `length` is that of x.
template <class L> ZELM_INLINE Reflector<L> makeReflector(const L& alpha, const L& length) {
  const auto none = less(length, splat<L>(tinyOf<L>));
  const L r = lengthOf(alpha, length), one = splat<L>(1);
  const L beta = select(greaterEqual(alpha, L{}), -r, r);
  return {select(none, L{}, (beta - alpha) / beta), select(none, alpha, beta), select(none, one, one / (alpha - beta))};
}

// ---------------------------------------------------------------------------------------------------------------------
// Scratch

// Lane values one behind the other, at any byte address.
template <class L> struct Cells {
  char* address;
  ZELM_INLINE L operator()(int64_t i) const { return load<L>(address + i * static_cast<int64_t>(sizeof(L))); }
  ZELM_INLINE void put(int64_t i, const L& value) const { store(address + i * static_cast<int64_t>(sizeof(L)), value); }
  ZELM_INLINE Cells behind(int64_t n) const { return {address + n * static_cast<int64_t>(sizeof(L))}; }

private:
  // A pair as its vectors: as one object it would be copied in pieces of another size than it is used in.
  template <class V> static ZELM_INLINE V load(const char* from) {
    if constexpr (LaneTraits<V>::isPair) {
      using Half = decltype(V::low);
      return {load<Half>(from), load<Half>(from + sizeof(Half))};
    } else {
      V value;
      std::memcpy(&value, from, sizeof value);
      return value;
    }
  }
  template <class V> static ZELM_INLINE void store(char* to, const V& value) {
    if constexpr (LaneTraits<V>::isPair) {
      store(to, value.low);
      store(to + sizeof value.low, value.high);
    } else {
      std::memcpy(to, &value, sizeof value);
    }
  }
};

// A square matrix in scratch, its columns one behind the other.
template <class L, class N> struct Columns {
  Cells<L> cells;
  N side;
  ZELM_INLINE L operator()(int i, int j) const { return cells(static_cast<int64_t>(j) * side + i); }
  ZELM_INLINE void put(int i, int j, const L& value) const { cells.put(static_cast<int64_t>(j) * side + i, value); }
  ZELM_INLINE void subtract(int i, int j, const L& value) const { put(i, j, (*this)(i, j) - value); }
};

// ---------------------------------------------------------------------------------------------------------------------
// Places: a whole number for each lane, up to a few thousand; an element's own if there is one lane

template <class L> constexpr bool isSingle = LaneTraits<L>::width == 1;
template <class L> using Place = std::conditional_t<isSingle<L>, int, L>;

template <class L> ZELM_INLINE Place<L> placeAt(int k) {
  if constexpr (isSingle<L>)
    return k;
  else
    return splat<L>(static_cast<ElementOf<L>>(k));
}
template <class L> ZELM_INLINE MaskOf<L> isAt(const Place<L>& place, int k) {
  if constexpr (isSingle<L>)
    return place == k;
  else
    return equal(place, placeAt<L>(k));
}
template <class L> ZELM_INLINE MaskOf<L> isFrom(const Place<L>& place, const Place<L>& k) {
  if constexpr (isSingle<L>)
    return place >= k;
  else
    return greaterEqual(place, k);
}
template <class L> ZELM_INLINE MaskOf<L> isUpTo(const Place<L>& place, const Place<L>& k) {
  return isFrom<L>(k, place);
}
template <class L> ZELM_INLINE Place<L> choose(const MaskOf<L>& mask, const Place<L>& yes, const Place<L>& no) {
  if constexpr (isSingle<L>)
    return mask ? yes : no;
  else
    return select<L>(mask, yes, no);
}
// Bounds of a loop over what the lanes' places may be: one lane's place itself, else what any may be.
template <class L, class N> ZELM_INLINE auto bound([[maybe_unused]] const Place<L>& place, [[maybe_unused]] N any) {
  if constexpr (isSingle<L>)
    return place;
  else
    return any;
}
// The element (place + i, place + j) of each lane, for places from `from` on.
template <class L, class N>
ZELM_INLINE L elementAt(const Columns<L, N>& m, const Place<L>& place, int i, int j, [[maybe_unused]] int from) {
  if constexpr (isSingle<L>) {
    return m(place + i, place + j);
  } else {
    L element = m(from + i, from + j);
    for (int k = from + 1; k < m.side; ++k)
      element = select(isAt<L>(place, k), m(k + i, k + j), element);
    return element;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Reduction

// To Hessenberg form. The reflectors stay where they were made: their tails below the subdiagonal, tau in a run of
// side elements, as is `sums`.
template <class L, class N>
ZELM_INLINE void reduceToHessenberg(const Columns<L, N>& m, const Cells<L>& tau, const Cells<L>& sums) {
  const int n = m.side;
  for (int k = 0; k < n - 2; ++k) {
    const int first = k + 1;
    L squares{};
    for (int i = first + 1; i < n; ++i)
      squares = squares + m(i, k) * m(i, k);
    const Reflector<L> h = makeReflector(m(first, k), squareRoot(squares));
    tau.put(k, h.tau);
    m.put(first, k, splat<L>(1));
    for (int i = first + 1; i < n; ++i)
      m.put(i, k, m(i, k) * h.factor);
    const auto turns = greater(magnitude(h.tau), splat<L>(tinyOf<L>));
    if (any(turns)) {
      // From the right, on all rows.
      for (int i = 0; i < n; ++i)
        sums.put(i, L{});
      for (int j = first; j < n; ++j)
        for (int i = 0; i < n; ++i)
          sums.put(i, sums(i) + m(i, j) * m(j, k));
      for (int i = 0; i < n; ++i)
        sums.put(i, h.tau * sums(i));
      for (int j = first; j < n; ++j)
        for (int i = 0; i < n; ++i)
          m.subtract(i, j, only(turns, sums(i) * m(j, k)));
      // From the left, on the columns behind k.
      for (int j = first; j < n; ++j) {
        L sum{};
        for (int i = first; i < n; ++i)
          sum = sum + m(i, j) * m(i, k);
        for (int i = first; i < n; ++i)
          m.subtract(i, j, only(turns, (h.tau * m(i, k)) * sum));
      }
    }
    m.put(first, k, h.beta);
  }
  if (n > 1)
    tau.put(n - 2, L{});
}

template <class L, class N> ZELM_INLINE void clearBelowSubdiagonal(const Columns<L, N>& m) {
  for (int j = 0; j < m.side; ++j)
    for (int i = j + 2; i < m.side; ++i)
      m.put(i, j, L{});
}

// ---------------------------------------------------------------------------------------------------------------------
// QR iteration

// What a sweep starts from: the two shifts and their product's part that they don't give themselves.
template <class L> struct Shifts { L first, second, product; };

template <class L> ZELM_INLINE Shifts<L> exceptionalShifts(const L& h44, const L& below, const L& beside) {
  const L s = magnitude(below) + magnitude(beside);
  const L shift = splat<L>(ElementOf<L>(0.75)) * s + h44;
  return {shift, shift, s * splat<L>(ElementOf<L>(-0.4375)) * s};
}

// A lane value in the lanes in which the shifts are computed, and back.
template <class S, class L> ZELM_INLINE S shiftLane(const L& x) {
  if constexpr (std::is_same_v<S, L>)
    return x;
  else
    return narrowed(x);
}
template <class L, class S> ZELM_INLINE L fullLane(const S& x) {
  if constexpr (std::is_same_v<S, L>)
    return x;
  else
    return widened(x);
}

template <class L>
ZELM_INLINE Shifts<L> chooseShifts(const MaskOf<L>& mask, const Shifts<L>& yes, const Shifts<L>& no) {
  return {select(mask, yes.first, no.first), select(mask, yes.second, no.second),
          select(mask, yes.product, no.product)};
}

// Without vectors: only the active block is worked on, and what is negligible is measured by epsilon alone.
struct ValuesOnly {
  static constexpr bool wholeMatrix = false;

  template <class L, class N>
  static ZELM_INLINE MaskOf<L> negligible(const Columns<L, N>& m, int k, const Place<L>&, const Place<L>&) {
    return notAbove(m(k, k - 1), epsilonOf<L>);
  }

  template <class L> using ShiftLane = L;
  template <class L> static ZELM_INLINE Shifts<L> shifts(const L& h33, const L& h44, const L& lower, const L& upper) {
    const L q = lower * upper, half = splat<L>(ElementOf<L>(0.5));
    const L t = (h33 - h44) * half, e = t * t + q;
    const L root = squareRoot(e), mean = (h44 + h33) * half;
    L sum = select(greaterEqual(mean, L{}), mean + root, mean - root);
    sum = select(greater(magnitude(h33) - magnitude(h44), L{}), (h33 * h44 - q) / sum, sum);
    return chooseShifts<L>(greater(e, L{}), {sum, sum, L{}}, {h44, h33, q});
  }
};

// Where the iteration of each lane stands: its active block [first, last], its sweeps since the last block was
// finished, and how many it may have had by then.
template <class L> struct Progress { Place<L> first, last, sweeps, budget; };

// The start of the lowest block that is not negligibly joined to what is above it; what joins it is cleared.
template <class Rules, class L, class N>
ZELM_INLINE void findBlock(const Columns<L, N>& m, const MaskOf<L>& lanes, Progress<L>& at) {
  MaskOf<L> searching = lanes;
  const Place<L> first = at.first;
  const int lowest = bound<L>(first, 0);
  for (int k = bound<L>(at.last, m.side - 1); k > lowest && any(searching); --k) {
    const auto looks = both(searching, both(isFrom<L>(at.last, placeAt<L>(k)), isUpTo<L>(first, placeAt<L>(k - 1))));
    const auto stops = both(looks, Rules::template negligible<L>(m, k, first, at.last));
    if (any(stops)) {
      at.first = choose<L>(stops, placeAt<L>(k), at.first);
      m.put(k, k - 1, select(stops, L{}, m(k, k - 1)));
      searching = without(searching, stops);
    }
  }
}

// The shifts of the next sweep. They are computed in the lanes that Rules name: narrower ones give narrower shifts.
template <class Rules, class L, class N>
ZELM_INLINE Shifts<L> sweepShifts(const Columns<L, N>& m, const MaskOf<L>& lanes, const Progress<L>& at) {
  using S = typename Rules::template ShiftLane<L>;
  const auto element = [&](int i, int j) ZELM_BODY { return shiftLane<S>(elementAt(m, at.last, i, j, 2)); };
  const S h44 = element(0, 0), lower = element(0, -1);
  const Shifts<S> usual = Rules::shifts(element(-1, -1), h44, lower, element(-1, 0));
  Shifts<L> shifts{fullLane<L>(usual.first), fullLane<L>(usual.second), fullLane<L>(usual.product)};
  const auto stuck = both(lanes, either(isAt<L>(at.sweeps, 10), isAt<L>(at.sweeps, 20)));
  if (any(stuck)) {
    const Shifts<S> other = exceptionalShifts<S>(h44, lower, element(-1, -2));
    shifts = chooseShifts<L>(stuck, {fullLane<L>(other.first), fullLane<L>(other.second), fullLane<L>(other.product)},
                             shifts);
  }
  return shifts;
}

// Where a sweep starts, and the vector that its first reflector is made of.
template <class L> struct Bulge {
  Place<L> start;
  L v0, v1, v2;
};

template <class L, class N>
ZELM_INLINE Bulge<L> findBulge(const Columns<L, N>& m, const MaskOf<L>& lanes, const Progress<L>& at,
                               const Shifts<L>& shifts) {
  Bulge<L> bulge{at.first, L{}, L{}, L{}};
  MaskOf<L> searching = lanes;
  const int lowest = bound<L>(at.first, 0);
  for (int k = bound<L>(at.last, m.side - 1) - 2; k >= lowest; --k) {
    const auto looks = both(searching, both(isFrom<L>(at.last, placeAt<L>(k + 2)), isUpTo<L>(at.first, placeAt<L>(k))));
    if (!any(looks))
      continue;
    const L h11 = m(k, k), h22 = m(k + 1, k + 1);
    const L s1 = shifts.first - h11, s2 = shifts.second - h11;
    L a1 = (s2 * s1 - shifts.product) / m(k + 1, k) + m(k, k + 1);
    L a2 = ((h22 - h11) - s1) - s2;
    L a3 = m(k + 2, k + 1);
    const L scale = magnitude(a1) + magnitude(a2) + magnitude(a3);
    a1 = a1 / scale;
    a2 = a2 / scale;
    a3 = a3 / scale;
    bulge.start = choose<L>(looks, placeAt<L>(k), bulge.start);
    bulge.v0 = select(looks, a1, bulge.v0);
    bulge.v1 = select(looks, a2, bulge.v1);
    bulge.v2 = select(looks, a3, bulge.v2);
    auto stops = isAt<L>(at.first, k);
    if (k > 0) {
      const L joined = magnitude(m(k, k - 1)) * (magnitude(a2) + magnitude(a3));
      const L around = magnitude(m(k - 1, k - 1)) + magnitude(h11) + magnitude(h22);
      stops = either(stops, lessEqual(joined, magnitude(a1) * around * splat<L>(epsilonOf<L>)));
    }
    searching = without(searching, both(looks, stops));
    if (!any(searching))
      break;
  }
  return bulge;
}

// A reflector of a sweep on three elements, in some lanes on the first two alone.
template <class L> struct Turn {
  L tau, v1, v2, tau1;
  MaskOf<L> lanes, three;

  template <class N> ZELM_INLINE void onRows(const Columns<L, N>& m, int k, int j, bool third) const {
    const L x0 = m(k, j), x1 = m(k + 1, j);
    L sum = v1 * x1 + x0;
    if (third) {
      const L x2 = m(k + 2, j);
      sum = select(three, sum + v2 * x2, sum);
      m.put(k + 2, j, x2 - only(three, (sum * tau) * v2));
    }
    m.put(k, j, x0 - only(lanes, tau * sum));
    m.put(k + 1, j, x1 - only(lanes, tau1 * sum));
  }
  template <class N>
  ZELM_INLINE void onColumns(const Columns<L, N>& m, int i, int k, bool third, const MaskOf<L>& here) const {
    const L x0 = m(i, k), x1 = m(i, k + 1);
    L sum = v1 * x1 + x0;
    if (third) {
      const L x2 = m(i, k + 2);
      sum = select(three, sum + v2 * x2, sum);
      m.put(i, k + 2, x2 - only(both(three, here), (sum * tau) * v2));
    }
    m.put(i, k, x0 - only(here, tau * sum));
    m.put(i, k + 1, x1 - only(here, tau1 * sum));
  }
};

// One double-shift sweep from the bulge down the active block. With vectors it goes over whole rows and columns, and q
// gets the columns' part too.
template <class Rules, class L, class N>
ZELM_INLINE void sweep(const Columns<L, N>& m, const Columns<L, N>& q, const MaskOf<L>& lanes, const Progress<L>& at,
                       const Bulge<L>& bulge) {
  const int n = m.side;
  const int last = bound<L>(at.last, n - 1);
  for (int k = bound<L>(bulge.start, 0); k < last; ++k) {
    const auto here = both(lanes, both(isUpTo<L>(bulge.start, placeAt<L>(k)), isFrom<L>(at.last, placeAt<L>(k + 1))));
    if (!any(here))
      continue;
    const auto three = both(here, isFrom<L>(at.last, placeAt<L>(k + 2)));
    const bool third = any(three);
    const auto starts = isAt<L>(bulge.start, k);
    L v0 = bulge.v0, v1 = bulge.v1, v2 = bulge.v2;
    if (k > bound<L>(bulge.start, 0)) {
      v0 = select(starts, v0, m(k, k - 1));
      v1 = select(starts, v1, m(k + 1, k - 1));
      if (third)
        v2 = select(starts, v2, m(k + 2, k - 1));
    }
    L squares = v1 * v1;
    if (third)
      squares = select(three, squares + v2 * v2, squares);
    const Reflector<L> h = makeReflector(v0, squareRoot(squares));
    if (k > 0) {
      const auto goesOn = without(here, starts);
      const L before = m(k, k - 1);
      const auto flips = without(both(here, starts), isFrom<L>(at.first, bulge.start));
      m.put(k, k - 1, select(goesOn, h.beta, select(flips, -before, before)));
      m.put(k + 1, k - 1, select(goesOn, L{}, m(k + 1, k - 1)));
      if (third)
        m.put(k + 2, k - 1, select(both(goesOn, three), L{}, m(k + 2, k - 1)));
    }
    const L g1 = v1 * h.factor;
    const Turn<L> turn{h.tau, g1, v2 * h.factor, h.tau * g1, here, three};
    const int columns = Rules::wholeMatrix ? n : last + 1;
    for (int j = k; j < columns; ++j)
      turn.onRows(m, k, j, third);
    const int top = Rules::wholeMatrix ? 0 : bound<L>(at.first, 0);
    const int bottom = k + 3 < last ? k + 3 : last;
    for (int i = top; i <= bottom; ++i)
      turn.onColumns(m, i, k, third, i <= k + 1 ? here : both(here, isFrom<L>(at.last, placeAt<L>(i))));
    if constexpr (Rules::wholeMatrix)
      for (int i = 0; i < n; ++i)
        turn.onColumns(q, i, k, third, here);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Standard form

// A block [a b; c d] of two, and the rotation (cs, sn) that makes it what it has become.
template <class L> struct Block2 { L a, b, c, d, cs, sn, minusSn; };

// The eigenvalues of a block, whose diagonal elements become equal if they are complex and c zero if they are real.
// Equal diagonal elements are reported as a complex pair, whatever the signs of b and c.
template <class L> ZELM_INLINE Block2<L> standardForm(const L& a, const L& b, const L& c, const L& d) {
  const L zero{}, one = splat<L>(1), half = splat<L>(ElementOf<L>(0.5));
  constexpr ElementOf<L> tiny = tinyOf<L>;
  const auto finished = notAbove(c, tiny);
  const auto exchanged = without(notAbove(b, tiny), finished);
  const auto settled = either(finished, exchanged);
  const L t = a - d;
  const auto alike = without(notAbove(t, tiny), settled);

  Block2<L> block{a, b, c, d, one, zero, zero};
  if (any(exchanged)) {
    block.a = select(exchanged, d, a);
    block.b = select(exchanged, -c, b);
    block.c = select(exchanged, zero, c);
    block.d = select(exchanged, a, d);
    block.cs = select(exchanged, zero, block.cs);
    block.sn = select(exchanged, one, block.sn);
  }

  const L p = t * half;
  const L absB = magnitude(b), absC = magnitude(c);
  const auto isB = greater(absB, absC); // of two comparisons neither would choose a NaN
  const L most = select(isB, absB, absC), least = select(isB, absC, absB);
  const L signedLeast = select(haveOneSign(b, c), least, -least);
  const L scale = select(greater(magnitude(p), most), magnitude(p), most);
  const L z = (p / scale) * p + (most / scale) * signedLeast;
  const auto open = negated(either(settled, alike));
  const auto real = both(open, greaterEqual(z, splat<L>(4 * epsilonOf<L>)));
  if (any(real)) {
    const L root = squareRoot(scale) * squareRoot(z);
    const L zz = select(greater(p, zero), p + root, p - root);
    const L tau = lengthOf(c, zz);
    block.a = select(real, d + zz, block.a);
    block.b = select(real, b - c, block.b);
    block.c = select(real, zero, block.c);
    block.d = select(real, d - (most / zz) * signedLeast, block.d);
    block.cs = select(real, zz / tau, block.cs);
    block.sn = select(real, c / tau, block.sn);
  }

  // Complex or nearly equal ones: equal diagonal elements first.
  const auto turned = without(open, real);
  if (any(turned)) {
    const L sigma = b + c, tau = lengthOf(sigma, t);
    const L cs = squareRoot((magnitude(sigma) / tau + one) * half);
    const L ratio = -p / (tau * cs);
    const L sn = select(isNegative(sigma), -ratio, ratio);
    const L aa = a * cs + b * sn, bb = b * cs - a * sn, cc = c * cs + d * sn, dd = d * cs - c * sn;
    const L a2 = aa * cs + cc * sn, b2 = bb * cs + dd * sn, c2 = cc * cs - aa * sn, d2 = dd * cs - bb * sn;
    const L mean = (a2 + d2) * half;
    const auto smallB = notAbove(b2, tiny), smallC = notAbove(c2, tiny);
    const auto split = both(turned, either(smallB, smallC));
    const auto apart = both(without(turned, split), haveOneSign(b2, c2));
    // The rotation goes on: by a right angle where b has vanished, or to make the block triangular.
    const L rootB = squareRoot(magnitude(b2)), rootC = squareRoot(magnitude(c2));
    const L p2 = select(isNegative(c2), -(rootB * rootC), rootB * rootC);
    const L unit = one / squareRoot(magnitude(b2 + c2));
    const auto upright = without(split, smallC);
    const L cs1 = select(upright, zero, select(apart, rootB * unit, one));
    const L sn1 = select(upright, one, select(apart, rootC * unit, zero));
    block.a = select(turned, select(apart, mean + p2, mean), block.a);
    block.d = select(turned, select(apart, mean - p2, mean), block.d);
    block.b = select(turned, select(split, -c2, select(apart, b2 - c2, b2)), block.b);
    block.c = select(turned, select(either(split, apart), zero, c2), block.c);
    block.cs = select(turned, cs * cs1 - sn * sn1, block.cs);
    block.sn = select(turned, cs * sn1 + sn * cs1, block.sn);
  }
  block.minusSn = -block.sn;
  return block;
}

// x and y of each lane of the mask become cs * x + sn * y and cs * y - sn * x. Both are sums: where a difference stands
// beside a sum, g++ 12 fuses their products, whatever it is told.
template <class L, class N>
ZELM_INLINE void rotate(const Columns<L, N>& m, int i, int j, int k, int l, const MaskOf<L>& lanes,
                        const Block2<L>& by) {
  const L x = m(i, j), y = m(k, l);
  m.put(i, j, select(lanes, by.cs * x + by.sn * y, x));
  m.put(k, l, select(lanes, by.cs * y + by.minusSn * x, y));
}

// The blocks of two that end at `last` become their standard forms in the lanes of the mask; the whole matrix and q
// take part in the rotation.
template <class Rules, class L, class N>
ZELM_INLINE void standardise(const Columns<L, N>& m, const Columns<L, N>& q, const MaskOf<L>& pairs,
                             const Place<L>& last) {
  const int n = m.side;
  if (!any(pairs))
    return;
  L a{}, b{}, c{}, d{};
  for (int i = 1; i < n; ++i) {
    const auto here = both(pairs, isAt<L>(last, i));
    a = select(here, m(i - 1, i - 1), a);
    b = select(here, m(i - 1, i), b);
    c = select(here, m(i, i - 1), c);
    d = select(here, m(i, i), d);
  }
  const Block2<L> block = standardForm(a, b, c, d);
  for (int i = 1; i < n; ++i) {
    const auto here = both(pairs, isAt<L>(last, i));
    if (!any(here))
      continue;
    m.put(i - 1, i - 1, select(here, block.a, m(i - 1, i - 1)));
    m.put(i - 1, i, select(here, block.b, m(i - 1, i)));
    m.put(i, i - 1, select(here, block.c, m(i, i - 1)));
    m.put(i, i, select(here, block.d, m(i, i)));
    if constexpr (Rules::wholeMatrix) {
      for (int j = i + 1; j < n; ++j)
        rotate(m, i - 1, j, i, j, here, block);
      for (int j = 0; j < i - 1; ++j)
        rotate(m, j, i - 1, j, i, here, block);
      for (int j = 0; j < n; ++j)
        rotate(q, j, i - 1, j, i, here, block);
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// The iteration

// The QR iteration: m becomes upper triangular but for blocks of two on the diagonal, from below up to and without the
// place that is returned for each lane; -1 if all of it has. The exact zeros below the diagonal are what tells blocks.
template <class Rules, class L, class N> ZELM_INLINE Place<L> iterate(const Columns<L, N>& m, const Columns<L, N>& q) {
  const int n = m.side;
  const Place<L> none = placeAt<L>(-1), one = placeAt<L>(1);
  Progress<L> at{placeAt<L>(0), placeAt<L>(n - 1), placeAt<L>(0), placeAt<L>(30 * n)};
  auto running = isFrom<L>(at.last, placeAt<L>(0));
  while (any(running)) {
    const auto inBudget = both(running, negated(isFrom<L>(at.sweeps, at.budget)));
    findBlock<Rules, L>(m, inBudget, at);
    const auto finished = both(running, isFrom<L>(at.first, at.last - one));
    if (any(finished)) {
      if constexpr (Rules::wholeMatrix)
        standardise<Rules>(m, q, without(finished, isFrom<L>(at.first, at.last)), at.last);
      at.budget = choose<L>(finished, at.budget - at.sweeps, at.budget);
      at.last = choose<L>(finished, at.first - one, at.last);
      at.first = choose<L>(finished, placeAt<L>(0), at.first);
      at.sweeps = choose<L>(finished, placeAt<L>(0), at.sweeps);
      running = without(running, both(finished, isUpTo<L>(at.last, none)));
      continue;
    }
    running = both(running, inBudget);
    if (!any(running))
      break;
    const Shifts<L> shifts = sweepShifts<Rules>(m, running, at);
    const Bulge<L> bulge = findBulge(m, running, at, shifts);
    sweep<Rules>(m, q, running, at, bulge);
    at.sweeps = choose<L>(running, at.sweeps + one, at.sweeps);
  }
  return at.last;
}

// The eigenvalues of the part of m behind `reached`. Without vectors, what comes later never touches a block that is
// done: then all blocks become their standard forms here.
template <class Rules, class L, class N>
ZELM_INLINE void takeValues(const Columns<L, N>& m, const Place<L>& reached, const Cells<L>& re, const Cells<L>& im) {
  const int n = m.side;
  if constexpr (!Rules::wholeMatrix)
    for (int i = n - 1; i > 0; --i)
      standardise<Rules>(m, m, both(unequal(m(i, i - 1), L{}), isUpTo<L>(reached, placeAt<L>(i - 2))), placeAt<L>(i));
  for (int i = 0; i < n; ++i) {
    re.put(i, m(i, i));
    im.put(i, L{});
  }
  for (int i = 1; i < n; ++i) {
    // What is left below the diagonal is that of a complex pair, or negligible.
    const auto pair = without(isUpTo<L>(reached, placeAt<L>(i - 2)), notAbove(m(i, i - 1), tinyOf<L>));
    const L imaginary = squareRoot(magnitude(m(i - 1, i))) * squareRoot(magnitude(m(i, i - 1)));
    im.put(i - 1, select(pair, imaginary, im(i - 1)));
    im.put(i, select(pair, -imaginary, im(i)));
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// One object, on scratch that its source has been copied to

template <class T> ZELM_INLINE Cells<T> cellsOf(const Plain<T>& run) {
  return {reinterpret_cast<char*>(run.pointer)};
}
template <class T> ZELM_INLINE Cells<T> cellsIn(const Buffer<void>& buffer) {
  return {static_cast<char*>(buffer.pointer)};
}

// The source's rows become the columns of M.
template <class T, class View> ZELM_INLINE void loadColumns(const View& src, int32_t side, const Cells<T>& scratch) {
  for (int j = 0; j < side; ++j)
    for (int i = 0; i < side; ++i)
      scratch.put(static_cast<int64_t>(j) * side + i, src.load(j, i));
}

// The eigenvalues behind `reached`; the others are not known.
template <class T>
ZELM_INLINE void putValues(const Cells<T>& ownRe, const Cells<T>& ownIm, int reached, int side, const Cells<T>& re,
                           const Cells<T>& im) {
  for (int i = reached + 1; i < side; ++i) {
    re.put(i, ownRe(i));
    im.put(i, ownIm(i));
  }
}

// The scratch: M and two runs of side elements.
template <class T>
ZELM_NOINLINE ZelStatus valuesOfOne(const Cells<T>& scratch, int32_t side, const Cells<T>& re, const Cells<T>& im) {
  const auto n = static_cast<int64_t>(side);
  const Columns<T, int32_t> m{scratch, side};
  const Cells<T> tau = scratch.behind(n * n), work = tau.behind(n);
  reduceToHessenberg(m, tau, work);
  clearBelowSubdiagonal(m);
  const int reached = iterate<ValuesOnly>(m, m);
  takeValues<ValuesOnly>(m, reached, tau, work);
  putValues(tau, work, reached, side, re, im);
  return reached < 0 ? zelStatusOk : zelStatusNoConvergence;
}
extern template ZelStatus valuesOfOne(const Cells<float>&, int32_t, const Cells<float>&, const Cells<float>&);
extern template ZelStatus valuesOfOne(const Cells<double>&, int32_t, const Cells<double>&, const Cells<double>&);

// ---------------------------------------------------------------------------------------------------------------------
// A block of objects, one a lane

// Two vectors side by side: each chain of divisions and roots waits for the other.
template <class T> using EigenLane = Pair<Lanes<T>>;
template <class T> constexpr int eigenLanes = LaneTraits<EigenLane<T>>::width;

// The sides whose objects go side by side.
constexpr bool isBlockSide(int32_t side) {
  return side >= 3 && side <= 8;
}
constexpr int largestBlockSide = 8;

// N lane values, also as elements: of object w, element i is at [i * eigenLanes<T> + w].
template <class T, int N> struct LaneRun {
  EigenLane<T> lanes[N];
  ZELM_INLINE Cells<EigenLane<T>> cells() { return {reinterpret_cast<char*>(lanes)}; }
  ZELM_INLINE T operator()(int i, int w) const {
    return loadElement<T>(reinterpret_cast<const char*>(lanes) + (i * eigenLanes<T> + w) * static_cast<int>(sizeof(T)));
  }
};

// The objects of a block: the matrix, then what has become of it, the eigenvalues, and how far the iteration came.
template <class T> struct EigenBlock {
  LaneRun<T, largestBlockSide * largestBlockSide> matrix;
  LaneRun<T, largestBlockSide> re, im;
  LaneRun<T, 1> reached;
  ZELM_INLINE bool isComplete(int w) const { return reached(0, w) < 0; }

  // The sources' rows become the columns of M.
  template <class Blocks, class B> ZELM_INLINE void load(Blocks& sources, const B& block, int32_t side) {
    constexpr int W = laneCount<T>;
    Lanes<T> low[largestBlockSide * largestBlockSide], high[largestBlockSide * largestBlockSide];
    loadElements(sources.at(block.template low<W>()), low, side, side);
    loadElements(sources.at(block.template high<W>()), high, side, side);
    for (int e = 0; e < side * side; ++e)
      matrix.lanes[e] = {low[e], high[e]};
  }
  ZELM_INLINE void storeValues(int w, int32_t side, const Cells<T>& toRe, const Cells<T>& toIm) const {
    for (int i = 0; i < side; ++i) {
      toRe.put(i, re(i, w));
      toIm.put(i, im(i, w));
    }
  }
};

template <class T, class N> ZELM_INLINE void valuesOfSide(EigenBlock<T>& block, N side) {
  const Columns<EigenLane<T>, N> m{block.matrix.cells(), side};
  reduceToHessenberg(m, block.re.cells(), block.im.cells());
  clearBelowSubdiagonal(m);
  block.reached.lanes[0] = iterate<ValuesOnly>(m, m);
  takeValues<ValuesOnly>(m, block.reached.lanes[0], block.re.cells(), block.im.cells());
}

template <class T> ZELM_NOINLINE void valuesOfBlock(EigenBlock<T>& block, int32_t side) {
  switch (side) {
  case 3:
    return valuesOfSide(block, Fixed<3>{});
  case 4:
    return valuesOfSide(block, Fixed<4>{});
  case 5:
    return valuesOfSide(block, Fixed<5>{});
  case 6:
    return valuesOfSide(block, Fixed<6>{});
  default:
    return valuesOfSide(block, side);
  }
}
extern template void valuesOfBlock(EigenBlock<float>&, int32_t);
extern template void valuesOfBlock(EigenBlock<double>&, int32_t);

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

template <class Source, class T>
ZELM_INLINE ZelStatus eigenValues(const Source& src, const Plain<T>& re, const Plain<T>& im, int32_t side,
                                  const Buffer<void>& buffer) {
  const Cells<T> scratch = cellsIn<T>(buffer);
  loadColumns(src.object(0, side), side, scratch);
  return valuesOfOne(scratch, side, cellsOf(re), cellsOf(im));
}
template <class Source, class T>
ZELM_INLINE ZelStatus eigenValues(const Source& src, const Plain<T>& re, const Plain<T>& im, int32_t side,
                                  int32_t count, const Buffer<void>& buffer) {
  const auto one = [&](int64_t k) ZELM_BODY {
    const Cells<T> scratch = cellsIn<T>(buffer);
    loadColumns(src.object(k, side), side, scratch);
    return valuesOfOne(scratch, side, cellsOf(re.single(k)), cellsOf(im.single(k)));
  };
  if (!isBlockSide(side)) {
    for (int64_t k = 0; k < count; ++k)
      if (const ZelStatus status = one(k); status != zelStatusOk)
        return status;
    return zelStatusOk;
  }
  auto sources = matrixBlocks(src, side);
  return forBlocks<eigenLanes<T>, false>(
      count, false,
      [&](const auto& block) ZELM_BODY {
        EigenBlock<T> objects;
        objects.load(sources, block, side);
        valuesOfBlock(objects, side);
        for (int w = 0; w <= block.last; ++w) {
          if (!objects.isComplete(w))
            return false;
          objects.storeValues(w, side, cellsOf(re.single(block.first + w)), cellsOf(im.single(block.first + w)));
        }
        return true;
      },
      one);
}

} // namespace zelm
