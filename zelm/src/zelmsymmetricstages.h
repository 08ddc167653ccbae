// Symmetric eigenproblems, the stages: reduction to tridiagonal form by reflections, implicitly shifted QL iteration,
// test and sort.
//
// One object, or as many as a lane value holds. Lanes that have nothing to do in a step keep what they hold.
//
// The iteration runs up from the first diagonal element or down from the last one. Downward is upward on the matrix
// with rows and columns in reverse, operation by operation: objects that go downward are turned round for the iteration
// and back behind it. Where the two differ besides, it is said.
#pragma once

#include "zelmsymmetric.h"

namespace zelm {

// In the place of the vectors where only the values are wanted.
struct NoVectors {};
template <class V> constexpr bool hasVectors = !std::is_same_v<V, NoVectors>;

template <class L> ZELM_INLINE L splatInt(int value) {
  return splat<L>(static_cast<ElementOf<L>>(value));
}

// ---------------------------------------------------------------------------------------------------------------------
// Reduction

// u is room for a reflection vector. Above the diagonal and below the subdiagonal nothing is kept. The values alone and
// the values with vectors have tests and products of their own.
template <class L, class V>
ZELM_INLINE void symmetricReduce(const Square<L>& b, const Column<L>& u, const V& v, int n,
                                 ElementOf<L> limitOfKernel) {
  const L zero{}, two = splatInt<L>(2), limit = splat<L>(limitOfKernel);
  for (int k = 0; k < n - 2; ++k) {
    L s{};
    for (int i = k + 1; i < n; ++i) {
      const L x = b.load(i, k);
      s = s + x * x;
    }
    const L x = b.load(k + 1, k);
    const L sigma = squareRoot(s);
    const L part = sigma * x;
    const MaskOf<L> positive = greater(x, limit);
    const MaskOf<L> large = greater(magnitude(x), limit);
    const L head = select(positive, x + sigma, select(large, x - sigma, sigma));
    const L h = select(positive, (s + part) * two, select(large, (s - part) * two, s + s));
    MaskOf<L> passed = lessEqual(h, limit);
    if constexpr (hasVectors<V>)
      passed = either(passed, lessEqual(magnitude(sigma - x), limit));
    if (all(passed))
      continue;
    // In lanes that are passed over, a reflection vector and a factor of zero leave all as it is, signs of zeros too.
    // Only infinities become NaN there, on the subdiagonal too, which does not converge.
    const L factor = select(passed, zero, two / h);
    u.store(k + 1, select(passed, zero, head));
    for (int i = k + 2; i < n; ++i)
      u.store(i, select(passed, zero, b.load(i, k)));

    // From the left. Of column k only the subdiagonal element is needed further on.
    for (int j = k; j < n; ++j) {
      L t{};
      for (int i = k + 1; i < n; ++i)
        t = t + b.load(i, j) * u.load(i);
      if constexpr (!hasVectors<V>)
        t = t * factor;
      for (int i = k + 1; i < (j == k ? k + 2 : n); ++i) {
        L y = u.load(i) * t;
        if constexpr (hasVectors<V>)
          y = y * factor;
        b.store(i, j, b.load(i, j) - y);
      }
    }
    // From the right. Of row k nothing is needed.
    for (int r = k + 1; r < n; ++r) {
      L t{};
      for (int j = k + 1; j < n; ++j)
        t = t + b.load(r, j) * u.load(j);
      t = t * factor;
      for (int j = k + 1; j < n; ++j)
        b.store(r, j, b.load(r, j) - u.load(j) * t);
    }
    if constexpr (hasVectors<V>) {
      if (k == 0) {
        const L one = splatInt<L>(1);
        for (int r = 1; r < n; ++r) {
          v.store(r, r, one - factor * u.load(r) * u.load(r));
          const L left = u.load(r) * (zero - factor);
          for (int c = r + 1; c < n; ++c) {
            const L y = left * u.load(c);
            v.store(r, c, y);
            v.store(c, r, y);
          }
        }
      } else {
        for (int r = 1; r < n; ++r) {
          L t{};
          for (int j = k + 1; j < n; ++j)
            t = t + u.load(j) * v.load(r, j);
          t = t * factor;
          for (int j = k + 1; j < n; ++j)
            v.store(r, j, v.load(r, j) - u.load(j) * t);
        }
      }
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Iteration

// Exchanges two where the mask says so.
template <class L> ZELM_INLINE void exchangeWhere(const MaskOf<L>& mask, const Column<L>& x, int i, int j) {
  const L a = x.load(i), b = x.load(j);
  x.store(i, select(mask, b, a));
  x.store(j, select(mask, a, b));
}
template <class L, class V>
ZELM_INLINE void exchangeColumnsWhere(const MaskOf<L>& mask, const V& v, int n, int i, int j) {
  if constexpr (hasVectors<V>)
    for (int r = 0; r < n; ++r) {
      const L a = v.load(r, i), b = v.load(r, j);
      v.store(r, i, select(mask, b, a));
      v.store(r, j, select(mask, a, b));
    }
}

// Turns the objects of the mask round.
template <class L, class V> ZELM_INLINE void turnWhere(const MaskOf<L>& mask, const Column<L>& d, const V& v, int n) {
  if (any(mask))
    for (int i = 0, j = n - 1; i < j; ++i, --j) {
      exchangeWhere(mask, d, i, j);
      exchangeColumnsWhere<L>(mask, v, n, i, j);
    }
}

// The root of g * g + 1, the sum in double; in single precision the square is rounded before.
template <class L> ZELM_INLINE L wideRadical(const L& g) {
  if constexpr (sizeof(ElementOf<L>) == sizeof(float)) {
    const auto square = widened(g * g);
    return narrowed(squareRoot(square + splatInt<std::decay_t<decltype(square)>>(1)));
  } else {
    return squareRoot(g * g + splatInt<L>(1));
  }
}
// Values alone going downward add in the element type.
template <class L, class V> ZELM_INLINE L shiftRadical(const L& g, const MaskOf<L>& down) {
  if constexpr (hasVectors<V> || sizeof(ElementOf<L>) == sizeof(double))
    return wideRadical(g);
  else
    return select(down, squareRoot(g * g + splatInt<L>(1)), wideRadical(g));
}

// The diagonal d and the subdiagonal e of n and n - 1 elements; vectors in the columns of v. If no vectors are wanted,
// `product` takes a factor at each end of a block that is found, the same one again and again: it is not the product of
// the values. False if a lane does not converge.
template <class L, class V>
ZELM_INLINE bool symmetricIterate(const Column<L>& d, const Column<L>& e, const V& v, int n, const MaskOf<L>& down,
                                  L& product) {
  const L limit = splat<L>(symmetricEpsilon<ElementOf<L>>);
  const L zero{}, half = splat<L>(ElementOf<L>(0.5)), one = splatInt<L>(1), two = splatInt<L>(2);
  for (int l = 0; l < n - 1; ++l) {
    MaskOf<L> open = equal(zero, zero);
    for (int sweeps = 0;; ++sweeps) {
      // The block l .. m that is still coupled, each lane its own m. NaN is never small.
      L m = splatInt<L>(l), dm = d.load(l);
      int last = l;
      MaskOf<L> coupled = open;
      for (int i = l; i < n - 1 && any(coupled); ++i) {
        const MaskOf<L> small = lessEqual(magnitude(e.load(i) * half), limit);
        if constexpr (!hasVectors<V>)
          product = select(both(coupled, small), product * d.load(i), product);
        coupled = without(coupled, small);
        m = select(coupled, splatInt<L>(i + 1), m);
        dm = select(coupled, d.load(i + 1), dm);
        last = any(coupled) ? i + 1 : last;
      }
      open = greater(m, splatInt<L>(l));
      if (last == l)
        break;
      if (sweeps == symmetricSweeps)
        return false;

      const L dl = d.load(l), el = e.load(l);
      L g = (d.load(l + 1) - dl) / (el * two);
      const L radical = shiftRadical<L, V>(g, down);
      g = (dm - dl) + el / select(greater(g, limit), g + radical, g - radical);
      L s = one, c = one, p = zero, rest = zero;
      MaskOf<L> running = open;
      for (int i = last - 1; i >= l; --i) {
        // Behind its m a lane waits; at its m it starts.
        const MaskOf<L> now = both(running, greater(m, splatInt<L>(i)));
        const MaskOf<L> behindStart = both(running, greater(m, splatInt<L>(i + 1)));
        const L ei = e.load(i);
        const L f = s * ei, b = c * ei;
        const L r = squareRoot(f * f + g * g);
        if (i + 1 < n - 1)
          e.store(i + 1, select(behindStart, r, e.load(i + 1)));
        MaskOf<L> on = now;
        const MaskOf<L> vanished = both(now, lessEqual(magnitude(r), limit));
        if (any(vanished)) {
          d.store(i + 1, select(vanished, d.load(i + 1) - p, d.load(i + 1)));
          for (int j = l; j < n - 1; ++j)
            e.store(j, select(both(vanished, equal(m, splatInt<L>(j + 1))), zero, e.load(j)));
          running = without(running, vanished);
          on = without(now, vanished);
        }
        s = select(on, f / r, s);
        c = select(on, g / r, c);
        const L d1 = d.load(i + 1);
        const L t = d1 - p;
        rest = (d.load(i) - t) * s + two * c * b;
        p = select(on, s * rest, p);
        d.store(i + 1, select(on, t + p, d1));
        g = select(on, c * rest - b, g);
        if constexpr (hasVectors<V>)
          for (int row = 0; row < n; ++row) {
            const L x = v.load(row, i), y = v.load(row, i + 1);
            v.store(row, i, select(on, c * x - s * y, x));
            v.store(row, i + 1, select(on, x * s + y * c, y));
          }
      }
      // After a full run the closing step is left out where the last rest is small, but upward not at l = 0; NaN is
      // small upward, and not downward.
      const MaskOf<L> large = greater(magnitude(rest), limit);
      const MaskOf<L> closesUp = l == 0 ? equal(zero, zero) : large;
      const MaskOf<L> closesDown = negated(lessEqual(magnitude(rest), limit));
      const MaskOf<L> closes = both(running, either(both(down, closesDown), without(closesUp, down)));
      d.store(l, select(closes, d.load(l) - p, d.load(l)));
      e.store(l, select(closes, g, e.load(l)));
    }
  }
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------
// Test and sort

// Descending, by selection; of equal values the first stands. A NaN in front stays, others are never chosen.
template <class L, class V> ZELM_INLINE void symmetricSort(const Column<L>& w, const V& v, int n) {
  for (int i = 0; i < n - 1; ++i) {
    L best = w.load(i), place = splatInt<L>(i);
    for (int j = i + 1; j < n; ++j) {
      const MaskOf<L> above = greater(w.load(j), best);
      best = select(above, w.load(j), best);
      place = select(above, splatInt<L>(j), place);
    }
    for (int j = i + 1; j < n; ++j)
      if (const MaskOf<L> here = equal(place, splatInt<L>(j)); any(here)) {
        exchangeWhere(here, w, i, j);
        exchangeColumnsWhere<L>(here, v, n, i, j);
      }
  }
}

template <class L> ZELM_INLINE MaskOf<L> isSmall(const L& product, double limit) {
  return lessEqual(magnitude(product), splat<L>(static_cast<ElementOf<L>>(limit)));
}

// Lanes with a small product of values. Arrays with vectors form it in double.
template <class L> ZELM_INLINE bool anySmallProduct(const Column<L>& w, int n, double limit, bool wide) {
  if (wide && sizeof(ElementOf<L>) == sizeof(float)) {
    if constexpr (sizeof(ElementOf<L>) == sizeof(float)) {
      using Wide = std::decay_t<decltype(widened(w.load(0)))>;
      Wide product = splatInt<Wide>(1);
      for (int i = 0; i < n; ++i)
        product = product * widened(w.load(i));
      return any(isSmall(product, limit));
    }
  }
  L product = splatInt<L>(1);
  for (int i = 0; i < n; ++i)
    product = product * w.load(i);
  return any(isSmall(product, limit));
}

// ---------------------------------------------------------------------------------------------------------------------
// All of it, from side 3 on

template <class L> ZELM_INLINE Column<L> from(const Column<L>& x, int n) {
  return {x.element + n};
}
template <class V> ZELM_INLINE Column<Pair<V>> from(const Column<Pair<V>>& x, int n) {
  return {x.low + n, x.high + n};
}

template <class L, class V>
ZELM_INLINE ZelStatus symmetricSolve(const Column<L>& scratch, const Column<L>& w, const V& v, int n,
                                     const SymmetricLimits& limits) {
  const Square<L> b{scratch, n};
  if constexpr (hasVectors<V>)
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        v.store(i, j, splatInt<L>(i == j ? 1 : 0));
  symmetricReduce(b, w, v, n, static_cast<ElementOf<L>>(limits.reduction));

  // Diagonal and subdiagonal come to the front of the scratch.
  const Column<L> d = scratch, e = from(scratch, n);
  for (int i = 1; i < n; ++i)
    d.store(i, b.load(i, i));
  for (int i = 0; i < n - 1; ++i)
    e.store(i, b.load(i + 1, i));

  const L first = magnitude(d.load(0)), last = magnitude(d.load(n - 1));
  const MaskOf<L> down = hasVectors<V> ? negated(less(first, last)) : lessEqual(last, first);
  turnWhere(down, d, v, n);
  turnWhere(down, e, NoVectors{}, n - 1);
  L product = splatInt<L>(1);
  const bool converges = symmetricIterate(d, e, v, n, down, product);
  if constexpr (!hasVectors<V>)
    product = product * d.load(n - 1);
  turnWhere(down, d, v, n);
  if (!converges)
    return zelStatusNoConvergence;

  for (int i = 0; i < n; ++i)
    w.store(i, d.load(i));
  bool singular = false;
  if constexpr (hasVectors<V>) {
    singular = anySmallProduct(w, n, limits.product, limits.array);
  } else {
    L upward = splatInt<L>(1);
    for (int i = 0; i < n; ++i)
      upward = upward * w.load(i);
    singular = any(isSmall(select(down, product, upward), limits.product));
  }
  if (singular && limits.testsFirst())
    return zelStatusSingular;
  symmetricSort(w, v, n);
  return singular ? zelStatusSingular : zelStatusOk;
}

} // namespace zelm
