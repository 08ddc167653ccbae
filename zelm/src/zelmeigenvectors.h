// Eigenvectors of general matrices, beyond what zelmeigenvalues.h does: accumulation of the orthogonal matrix, back
// substitution on the quasi-triangular matrix T, back transformation, normalisation.
//
// The vectors are those of M, the transpose of the source. Reduction and iteration serve objects in lanes; from the
// substitution on, where each object has its own pattern of blocks, it is one object at a time.
#pragma once

#include "zelmeigenvalues.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// The orthogonal matrix

// q: a unit matrix in its first row and column, else the product of the reflectors that reduceToHessenberg left in m.
template <class L, class N>
ZELM_INLINE void accumulateReflectors(const Columns<L, N>& m, const Cells<L>& tau, const Columns<L, N>& q) {
  const int n = m.side;
  for (int j = 0; j < n; ++j)
    for (int i = 0; i < n; ++i)
      q.put(i, j, splat<L>(i == j ? ElementOf<L>(1) : ElementOf<L>(0)));
  for (int k = n - 3; k >= 0; --k) {
    const int first = k + 1;
    const L factor = tau(k);
    const auto turns = greater(magnitude(factor), splat<L>(tinyOf<L>));
    if (!any(turns))
      continue;
    for (int j = first; j < n; ++j) {
      L sum = q(first, j);
      for (int i = first + 1; i < n; ++i)
        sum = sum + m(i, k) * q(i, j);
      sum = factor * sum;
      q.subtract(first, j, only(turns, sum));
      for (int i = first + 1; i < n; ++i)
        q.subtract(i, j, only(turns, m(i, k) * sum));
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// QR iteration on the whole matrix

// What T and the solutions are measured by: side / epsilon * tiny, and what overflows beside it.
template <class T> constexpr T smallestOf(int side) {
  return static_cast<T>(side) * (1 / EigenLimits<T>::epsilon) * EigenLimits<T>::tiny;
}
template <class T> constexpr T largestOf(int side) {
  return (1 - EigenLimits<T>::epsilon) / smallestOf<T>(side);
}

// The largest sum of a column's magnitudes in the active block.
template <class L, class N>
ZELM_NOINLINE L blockNorm(const Columns<L, N>& m, const Place<L>& first, const Place<L>& last) {
  L most{};
  for (int j = bound<L>(first, 0), end = bound<L>(last, m.side - 1); j <= end; ++j) {
    L sum{};
    for (int i = bound<L>(first, 0); i <= j + 1 && i <= end; ++i) {
      const auto inside = both(isUpTo<L>(first, placeAt<L>(i)), isFrom<L>(last, placeAt<L>(i)));
      sum = sum + only(inside, magnitude(m(i, j)));
    }
    const auto inside = both(isUpTo<L>(first, placeAt<L>(j)), isFrom<L>(last, placeAt<L>(j)));
    most = select(both(inside, greater(sum, most)), sum, most);
  }
  return most;
}

// The precision of the shifts: the elements' own, or single whatever the elements are.
struct ElementShifts {
  template <class L> using Lane = L;
};
struct SingleShifts {
  template <class L> using Lane = decltype(narrowed(L{}));
};

// With vectors. What is negligible is measured by its neighbours on the diagonal, and the shifts are chosen otherwise.
template <class Precision> struct WithVectors {
  static constexpr bool wholeMatrix = true;

  template <class L, class N>
  static ZELM_INLINE MaskOf<L> negligible(const Columns<L, N>& m, int k, const Place<L>& first, const Place<L>& last) {
    using T = ElementOf<L>;
    L size = magnitude(m(k - 1, k - 1)) + magnitude(m(k, k));
    const auto vanishes = lessEqual(size, splat<L>(tinyOf<L>));
    if (any(vanishes))
      size = select(vanishes, blockNorm(m, first, last), size);
    const L limit = size * splat<L>(epsilonOf<L>), smallest = splat<L>(smallestOf<T>(m.side));
    return lessEqual(magnitude(m(k, k - 1)), select(greater(limit, smallest), limit, smallest));
  }

  template <class L> using ShiftLane = typename Precision::template Lane<L>;
  template <class L> static ZELM_INLINE Shifts<L> shifts(const L& h33, const L& h44, const L& lower, const L& upper) {
    const L q = lower * upper, half = splat<L>(ElementOf<L>(0.5)), tiny = splat<L>(tinyOf<L>);
    const L t = (h33 - h44) * half, e = t * t + q;
    const L root = squareRoot(e), mean = (h44 + h33) * half;
    const L sum = select(lessEqual(-h44, h33), root + mean, mean - root);
    const L inverse = select(greater(magnitude(sum), tiny), splat<L>(1) / sum, sum);
    const L shift = select(less(magnitude(h44), magnitude(h33)), inverse * (h33 * h44 - q), sum);
    return chooseShifts<L>(greater(e, tiny), {shift, shift, L{}}, {h44, h33, q});
  }
};

// ---------------------------------------------------------------------------------------------------------------------
// Small systems, real or complex

template <class T> struct Complex {
  T re, im;
  Complex() = default;
  constexpr Complex(T r, T i = 0) : re(r), im(i) {}
  friend ZELM_INLINE Complex operator+(Complex a, Complex b) { return {a.re + b.re, a.im + b.im}; }
  friend ZELM_INLINE Complex operator-(Complex a, Complex b) { return {a.re - b.re, a.im - b.im}; }
  friend ZELM_INLINE Complex operator-(Complex a) { return {-a.re, -a.im}; }
  // Both parts are sums: see rotate.
  friend ZELM_INLINE Complex operator*(Complex a, Complex b) {
    const T minus = -a.im;
    return {a.re * b.re + minus * b.im, a.re * b.im + a.im * b.re};
  }
  friend ZELM_INLINE Complex operator*(Complex a, T b) { return {a.re * b, a.im * b}; }
  friend ZELM_INLINE Complex operator/(Complex a, T b) { return {a.re / b, a.im / b}; }
  // The larger part of the divisor divides first: no square overflows.
  friend ZELM_INLINE Complex operator/(Complex a, Complex b) {
    if (magnitude(b.im) < magnitude(b.re)) {
      const T e = b.im / b.re, f = b.re + b.im * e, minus = -e;
      return {(a.re + a.im * e) / f, (a.im + a.re * minus) / f};
    }
    const T e = b.re / b.im, f = b.im + b.re * e, minus = -a.re;
    return {(a.im + a.re * e) / f, (a.im * e + minus) / f};
  }
};

// The size of a number: of a complex one, the sum of its parts' magnitudes.
template <class T> ZELM_INLINE T sizeOf(T x) {
  return magnitude(x);
}
template <class T> ZELM_INLINE T sizeOf(Complex<T> x) {
  return magnitude(x.re) + magnitude(x.im);
}

// A solution, scaled by `scale` so that it does not overflow. Not regular: all coefficients are below the smallest.
template <class F, class T> struct Solution {
  F x0, x1;
  T scale;
  bool regular;
};

// What a solve is told besides its system. growth: what the solution is going to be multiplied by.
template <class T> struct SolveLimits {
  static constexpr T overflow = sizeof(T) == 4 ? static_cast<T>(0x1p124) : static_cast<T>(0x1p1020);
  T smallest, largest, growth;
};

// Scales the right side down where dividing it by a number of size t would overflow.
template <class T> ZELM_INLINE T scaleFor(T t, T right) {
  return t < 1 && right > 1 && right > t * SolveLimits<T>::overflow ? 1 / right : T(1);
}

template <class F, class T> ZELM_INLINE Solution<F, T> solveOne(F t, F b, const SolveLimits<T>& limits) {
  if (sizeOf(t) < limits.smallest)
    t = limits.smallest;
  Solution<F, T> s{F{}, F{}, scaleFor(sizeOf(t), sizeOf(b)), true};
  s.x0 = (b * s.scale) / t;
  const T size = sizeOf(s.x0);
  if (size > 1 && limits.growth > limits.largest / size) {
    s.x0 = s.x0 / size;
    s.scale = s.scale / size;
  }
  return s;
}

// [c0 c2; c1 c3] * x = b with complete pivoting.
template <class F, class T>
ZELM_INLINE Solution<F, T> solveTwo(const F (&c)[4], F b0, F b1, const SolveLimits<T>& limits) {
  // By the pivot's position: pivot, lower, upper and last coefficient; whether rows, whether columns are exchanged.
  static constexpr unsigned char places[4][4] = {{0, 1, 2, 3}, {1, 0, 3, 2}, {2, 3, 0, 1}, {3, 2, 1, 0}};
  T most = 0;
  int pivot = 0;
  for (int i = 0; i < 4; ++i)
    if (sizeOf(c[i]) > most) {
      most = sizeOf(c[i]);
      pivot = i;
    }
  if (most < limits.smallest)
    return {F{}, F{}, T(1), false};
  const F lower = c[places[pivot][1]], upper = c[places[pivot][2]], last = c[places[pivot][3]];
  const bool rows = pivot == 1 || pivot == 3, columns = pivot >= 2;
  const F inverse = F(T(1)) / c[pivot];
  const F factor = inverse * lower;
  F rest = last - upper * factor;
  if (sizeOf(rest) < limits.smallest)
    rest = limits.smallest;
  const F first = rows ? b1 : b0;
  const F second = (rows ? b0 : b1) - factor * first;
  const T restSize = sizeOf(rest);
  const T firstSize = sizeOf(first) * (restSize * sizeOf(inverse)), secondSize = sizeOf(second);
  T scale = scaleFor(restSize, firstSize > secondSize ? firstSize : secondSize);
  F x1 = (second * scale) / rest;
  F x0 = (first * scale - upper * x1) * inverse;
  const T size0 = sizeOf(x0), size1 = sizeOf(x1);
  T size = size0 > size1 ? size0 : size1;
  if (most > 1 && size > 1 && size > SolveLimits<T>::overflow / most) {
    const T down = most / SolveLimits<T>::overflow;
    x0 = x0 * down;
    x1 = x1 * down;
    size = size * down;
    scale = scale * down;
  }
  if (size > 1 && limits.growth > limits.largest / size) {
    x0 = x0 / size;
    x1 = x1 / size;
    scale = scale / size;
  }
  return {columns ? x1 : x0, columns ? x0 : x1, scale, true};
}

// ---------------------------------------------------------------------------------------------------------------------
// Back substitution

// The unknowns of one vector, or of the real and the imaginary part of a pair.
template <class F> struct Unknowns;
template <> struct Unknowns<float> : Cells<float> {};
template <> struct Unknowns<double> : Cells<double> {};
template <class T> struct Unknowns<Complex<T>> {
  Cells<T> re, im;
  ZELM_INLINE Complex<T> operator()(int64_t i) const { return {re(i), im(i)}; }
  ZELM_INLINE void put(int64_t i, Complex<T> value) const {
    re.put(i, value.re);
    im.put(i, value.im);
  }
};

template <class F, class T> ZELM_INLINE void scaleUnknowns(const Unknowns<F>& x, int from, int to, T factor) {
  for (int i = from; i < to; ++i)
    x.put(i, x(i) * factor);
}
template <class F, class T> ZELM_INLINE void applyScale(const Unknowns<F>& x, int from, int to, T scale) {
  if (magnitude(scale - 1) > EigenLimits<T>::tiny)
    scaleUnknowns(x, from, to, scale);
}

template <class T, class N> ZELM_INLINE bool isJoined(const Columns<T, N>& t, int j) {
  return magnitude(t(j, j - 1)) > EigenLimits<T>::tiny;
}

// x above `below` from (T - value) * x = right side, from the last block upwards; x has `end` elements in all.
// False if a block of two is not regular.
template <class F, class T, class N>
ZELM_INLINE bool solveUpwards(const Columns<T, N>& t, const Cells<T>& sums, const Unknowns<F>& x, int below, int end,
                              F value, T smallest) {
  SolveLimits<T> limits{smallest, largestOf<T>(t.side), 0};
  for (int j = below - 1; j >= 0; --j) {
    if (j == 0 || !isJoined(t, j)) {
      limits.growth = sums(j);
      const auto s = solveOne(F(t(j, j)) - value, x(j), limits);
      applyScale(x, 0, end, s.scale);
      x.put(j, s.x0);
      for (int i = 0; i < j; ++i)
        x.put(i, x(i) - s.x0 * t(i, j));
    } else {
      limits.growth = sums(j - 1) > sums(j) ? sums(j - 1) : sums(j);
      const F c[4] = {F(t(j - 1, j - 1)) - value, t(j, j - 1), t(j - 1, j), F(t(j, j)) - value};
      const auto s = solveTwo(c, x(j - 1), x(j), limits);
      if (!s.regular)
        return false;
      applyScale(x, 0, end, s.scale);
      x.put(j - 1, s.x0);
      x.put(j, s.x1);
      for (int i = 0; i < j - 1; ++i)
        x.put(i, x(i) - s.x0 * t(i, j - 1) - s.x1 * t(i, j));
      --j;
    }
  }
  return true;
}

template <class T> ZELM_INLINE T largestPart(T x) {
  return magnitude(x);
}
template <class T> ZELM_INLINE T largestPart(Complex<T> x) {
  return magnitude(x.re) > magnitude(x.im) ? magnitude(x.re) : magnitude(x.im);
}

// The same with the transpose, from `first` downwards; x begins at `begin`. Growth is watched by the largest element
// so far alone.
template <class F, class T, class N>
ZELM_INLINE bool solveDownwards(const Columns<T, N>& t, const Cells<T>& sums, const Unknowns<F>& x, int begin,
                                int first, F value, T smallest) {
  const int n = t.side;
  const T largest = largestOf<T>(n);
  const SolveLimits<T> limits{smallest, largest, 0};
  T most = 1, critical = largest;
  const auto reduced = [&](int j, int to) ZELM_BODY {
    F sum{T(0)};
    for (int i = first; i < to; ++i)
      sum = sum + x(i) * t(i, j);
    return x(j) - sum;
  };
  const auto grows = [&](F value1) ZELM_BODY {
    const T size = largestPart(value1);
    most = size > most ? size : most;
  };
  for (int j = first; j < n; ++j) {
    const bool two = j + 1 < n && isJoined(t, j + 1);
    if ((two && sums(j + 1) > sums(j) ? sums(j + 1) : sums(j)) > critical) {
      scaleUnknowns(x, begin, n, 1 / most);
      most = 1;
      critical = largest;
    }
    if (!two) {
      const auto s = solveOne(F(t(j, j)) - value, reduced(j, j), limits);
      applyScale(x, begin, n, s.scale);
      x.put(j, s.x0);
      grows(s.x0);
    } else {
      const F c[4] = {F(t(j, j)) - value, t(j, j + 1), t(j + 1, j), F(t(j + 1, j + 1)) - value};
      const auto s = solveTwo(c, reduced(j, j), reduced(j + 1, j), limits);
      if (!s.regular)
        return false;
      applyScale(x, begin, n, s.scale);
      x.put(j, s.x0);
      x.put(j + 1, s.x1);
      grows(s.x0);
      grows(s.x1);
      ++j;
    }
    critical = largest / most;
  }
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------
// Back transformation

// Column `own` of v becomes v * x, x being zero but at `own` and from `from` up to `to`.
template <class T, class N>
ZELM_INLINE void backTransform(const Columns<T, N>& v, int own, int from, int to, const Cells<T>& x, T factor) {
  const int n = v.side;
  for (int i = 0; i < n; ++i) {
    T sum = v(i, own) * factor;
    for (int k = from; k < to; ++k)
      sum = sum + v(i, k) * x(k);
    v.put(i, own, sum);
  }
}

// Both columns of a pair by the largest size of their elements.
template <class T, class N> ZELM_INLINE void scalePair(const Columns<T, N>& v, int j) {
  const int n = v.side;
  T most = 0;
  for (int i = 0; i < n; ++i) {
    const T size = magnitude(v(i, j)) + magnitude(v(i, j + 1));
    most = size > most ? size : most;
  }
  const T factor = 1 / most;
  for (int i = 0; i < n; ++i) {
    v.put(i, j, v(i, j) * factor);
    v.put(i, j + 1, v(i, j + 1) * factor);
  }
}

// How far a computation came. Not complete: the call ends with the status, and no vectors are written.
struct Outcome {
  ZelStatus status;
  bool complete;
};

// One object's scratch behind the stages that lanes do: T, and a run of `side` elements each for the sums of T's
// columns and for the unknowns.
template <class T, class N> struct Substitution {
  Columns<T, N> t;
  Cells<T> sums, re, im;

  ZELM_INLINE void prepare() const {
    for (int j = 0; j < t.side; ++j) {
      T sum = 0;
      for (int i = 0; i < j; ++i)
        sum = sum + magnitude(t(i, j));
      sums.put(j, sum);
    }
  }
  ZELM_INLINE T smallest(T wr, T wi) const {
    const T size = (magnitude(wr) + magnitude(wi)) * EigenLimits<T>::epsilon, least = smallestOf<T>(t.side);
    return size > least ? size : least;
  }
  ZELM_INLINE T imaginaryPart(int j) const {
    return squareRoot(magnitude(t(j + 1, j))) * squareRoot(magnitude(t(j, j + 1)));
  }

  // v, the orthogonal matrix, becomes the right vectors of M.
  Outcome rightVectors(const Columns<T, N>& v) const {
    for (int k = t.side - 1; k >= 0; --k) {
      if (k == 0 || !isJoined(t, k)) {
        const Unknowns<T> x{re};
        const T wr = t(k, k);
        x.put(k, T(1));
        for (int i = 0; i < k; ++i)
          x.put(i, -t(i, k));
        if (!solveUpwards(t, sums, x, k, k + 1, wr, smallest(wr, 0)))
          return {zelStatusOk, false};
        backTransform(v, k, 0, k, re, re(k));
        continue;
      }
      // The pair (j, k).
      const int j = k - 1;
      const Unknowns<Complex<T>> x{re, im};
      const T wr = t(k, k), wi = imaginaryPart(j);
      if (magnitude(t(j, k)) <= magnitude(t(k, j))) {
        x.put(j, {-wi / t(k, j), 0});
        x.put(k, {0, 1});
      } else {
        x.put(j, {1, 0});
        x.put(k, {0, wi / t(j, k)});
      }
      for (int i = 0; i < j; ++i)
        x.put(i, {-re(j) * t(i, j), -im(k) * t(i, k)});
      if (!solveUpwards(t, sums, x, j, k + 1, Complex<T>{wr, wi}, smallest(wr, wi)))
        return {zelStatusFailed, false};
      backTransform(v, j, 0, j, re, re(j));
      backTransform(v, k, 0, j, im, im(k));
      scalePair(v, j);
      k = j;
    }
    return {zelStatusOk, true};
  }

  // v, the orthogonal matrix, becomes the left vectors of M.
  Outcome leftVectors(const Columns<T, N>& v) const {
    const int n = t.side;
    for (int j = 0; j < n; ++j) {
      if (j + 1 == n || !isJoined(t, j + 1)) {
        const Unknowns<T> x{re};
        const T wr = t(j, j);
        x.put(j, T(1));
        for (int i = j + 1; i < n; ++i)
          x.put(i, -t(j, i));
        if (!solveDownwards(t, sums, x, j, j + 1, wr, smallest(wr, 0)))
          return {zelStatusOk, false};
        backTransform(v, j, j + 1, n, re, re(j));
        continue;
      }
      // The pair (j, k).
      const int k = j + 1;
      const Unknowns<Complex<T>> x{re, im};
      const T wr = t(j, j), wi = imaginaryPart(j);
      if (magnitude(t(j, k)) < magnitude(t(k, j))) {
        x.put(j, {1, 0});
        x.put(k, {0, -wi / t(k, j)});
      } else {
        x.put(j, {wi / t(j, k), 0});
        x.put(k, {0, 1});
      }
      for (int i = k + 1; i < n; ++i)
        x.put(i, {-re(j) * t(j, i), -im(k) * t(k, i)});
      if (!solveDownwards(t, sums, x, j, k + 1, Complex<T>{wr, -wi}, smallest(wr, wi)))
        return {zelStatusFailed, false};
      backTransform(v, j, k + 1, n, re, re(j));
      backTransform(v, k, k + 1, n, im, im(k));
      scalePair(v, j);
      j = k;
    }
    return {zelStatusOk, true};
  }
};

// ---------------------------------------------------------------------------------------------------------------------
// Normalisation

template <class T, class N> ZELM_INLINE T squaredLength(const Columns<T, N>& v, int j) {
  constexpr int parts = sizeof(T) == 4 ? 4 : 1;
  T sum[parts] = {};
  for (int i = 0; i < v.side; ++i)
    sum[i % parts] = sum[i % parts] + v(i, j) * v(i, j);
  if constexpr (parts == 4)
    return (sum[0] + sum[1]) + (sum[2] + sum[3]);
  else
    return sum[0];
}

template <class T, class N> ZELM_INLINE void scaleColumn(const Columns<T, N>& v, int j, T factor) {
  for (int i = 0; i < v.side; ++i)
    v.put(i, j, v(i, j) * factor);
}

// Vectors of length 1; the largest element of a pair is turned so that it is real, up to rounding.
template <class T, class N> ZELM_INLINE void normalise(const Columns<T, N>& v, const Cells<T>& imaginary) {
  const int n = v.side;
  for (int j = 0; j < n; ++j) {
    const T own = squaredLength(v, j);
    if (magnitude(imaginary(j)) < EigenLimits<T>::tiny) {
      if (magnitude(own) > EigenLimits<T>::tiny)
        scaleColumn(v, j, 1 / squareRoot(own));
      continue;
    }
    const int k = j + 1;
    const T factor = 1 / squareRoot(own + squaredLength(v, k));
    scaleColumn(v, j, factor);
    scaleColumn(v, k, factor);
    T most = 0, re = v(0, j), im = v(0, k);
    for (int i = 0; i < n; ++i) {
      const T size = v(i, j) * v(i, j) + v(i, k) * v(i, k);
      if (size > most) {
        most = size;
        re = v(i, j);
        im = v(i, k);
      }
    }
    const T r = squareRoot(re * re + im * im);
    T cs = re / r, sn = im / r;
    if (cs < 0 && magnitude(im) < magnitude(re)) {
      cs = -cs;
      sn = -sn;
    }
    const T minusSn = -sn;
    for (int i = 0; i < n; ++i) {
      const T x = v(i, j), y = v(i, k);
      v.put(i, k, y * cs + x * minusSn);
      v.put(i, j, cs * x + sn * y);
    }
    j = k;
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// One object

// The scratch of one object: M and then T, the vectors of one kind, with both kinds those of the other, five runs of
// side elements.
template <class T> struct VectorScratch {
  Cells<T> cells;
  int32_t side;
  ZELM_INLINE int64_t square() const { return static_cast<int64_t>(side) * side; }
  ZELM_INLINE Columns<T, int32_t> matrix(int which) const { return {cells.behind(which * square()), side}; }
  ZELM_INLINE Cells<T> run(int squares, int which) const {
    return cells.behind(squares * square() + static_cast<int64_t>(which) * side);
  }
};

// T, the orthogonal matrix and the eigenvalues from M; returns how far the iteration came.
template <class Rules, class T>
ZELM_NOINLINE int decomposeOne(const VectorScratch<T>& scratch, const Cells<T>& re, const Cells<T>& im) {
  const auto m = scratch.matrix(0), q = scratch.matrix(1);
  const Cells<T> tau = scratch.run(2, 0), work = scratch.run(2, 1);
  reduceToHessenberg(m, tau, work);
  accumulateReflectors(m, tau, q);
  clearBelowSubdiagonal(m);
  const int reached = iterate<Rules>(m, q);
  takeValues<Rules>(m, reached, tau, work);
  putValues(tau, work, reached, scratch.side, re, im);
  return reached;
}

// The vectors from T and the orthogonal matrix.
template <bool Right, bool Left, class T>
ZELM_NOINLINE Outcome vectorsOfOne(const VectorScratch<T>& scratch, const Cells<T>& imaginary) {
  constexpr int squares = Right && Left ? 3 : 2;
  const auto v = scratch.matrix(1), w = scratch.matrix(squares - 1);
  const Substitution<T, int32_t> substitution{scratch.matrix(0), scratch.run(squares, 0), scratch.run(squares, 1),
                                              scratch.run(squares, 2)};
  substitution.prepare();
  if constexpr (Right && Left)
    for (int64_t e = 0; e < scratch.square(); ++e)
      w.cells.put(e, v.cells(e));
  if constexpr (Right) {
    if (const Outcome outcome = substitution.rightVectors(v); !outcome.complete)
      return outcome;
  }
  if constexpr (Left) {
    if (const Outcome outcome = substitution.leftVectors(w); !outcome.complete)
      return outcome;
  }
  if constexpr (Right)
    normalise(v, imaginary);
  if constexpr (Left)
    normalise(w, imaginary);
  return {zelStatusOk, true};
}

// ---------------------------------------------------------------------------------------------------------------------
// A block of objects, one a lane

template <class T> struct EigenVectorBlock : EigenBlock<T> {
  LaneRun<T, largestBlockSide * largestBlockSide> vectors;
  // T and the orthogonal matrix of object w.
  ZELM_INLINE void extract(int w, const VectorScratch<T>& scratch) const {
    const int n = scratch.side * scratch.side;
    for (int e = 0; e < n; ++e) {
      scratch.cells.put(e, this->matrix(e, w));
      scratch.cells.put(n + e, vectors(e, w));
    }
  }
};

template <class Rules, class T, class N> ZELM_INLINE void decomposeSide(EigenVectorBlock<T>& block, N side) {
  const Columns<EigenLane<T>, N> m{block.matrix.cells(), side}, q{block.vectors.cells(), side};
  reduceToHessenberg(m, block.re.cells(), block.im.cells());
  accumulateReflectors(m, block.re.cells(), q);
  clearBelowSubdiagonal(m);
  block.reached.lanes[0] = iterate<Rules>(m, q);
  takeValues<Rules>(m, block.reached.lanes[0], block.re.cells(), block.im.cells());
}

template <class Rules, class T> ZELM_NOINLINE void decomposeBlock(EigenVectorBlock<T>& block, int32_t side) {
  switch (side) {
  case 3:
    return decomposeSide<Rules>(block, Fixed<3>{});
  case 4:
    return decomposeSide<Rules>(block, Fixed<4>{});
  case 5:
    return decomposeSide<Rules>(block, Fixed<5>{});
  case 6:
    return decomposeSide<Rules>(block, Fixed<6>{});
  default:
    return decomposeSide<Rules>(block, side);
  }
}

// The functions above are compiled once for all layouts.
#define EIGEN_VECTORS_DECOMPOSED(EXTERN, RULES, T)                                                                     \
  EXTERN template int decomposeOne<RULES, T>(const VectorScratch<T>&, const Cells<T>&, const Cells<T>&);
#define EIGEN_VECTOR_BLOCKS(EXTERN, RULES, T)                                                                          \
  EXTERN template void decomposeBlock<RULES, T>(EigenVectorBlock<T>&, int32_t);
#define EIGEN_VECTORS_OF_ONE(EXTERN, T)                                                                                \
  EXTERN template Outcome vectorsOfOne<true, false, T>(const VectorScratch<T>&, const Cells<T>&);                      \
  EXTERN template Outcome vectorsOfOne<false, true, T>(const VectorScratch<T>&, const Cells<T>&);                      \
  EXTERN template Outcome vectorsOfOne<true, true, T>(const VectorScratch<T>&, const Cells<T>&);
#define EIGEN_VECTORS_COMPILED(EXTERN)                                                                                 \
  EIGEN_VECTORS_DECOMPOSED(EXTERN, WithVectors<ElementShifts>, float)                                                  \
  EIGEN_VECTORS_DECOMPOSED(EXTERN, WithVectors<ElementShifts>, double)                                                 \
  EIGEN_VECTORS_DECOMPOSED(EXTERN, WithVectors<SingleShifts>, double)                                                  \
  EIGEN_VECTOR_BLOCKS(EXTERN, WithVectors<ElementShifts>, float)                                                       \
  EIGEN_VECTOR_BLOCKS(EXTERN, WithVectors<SingleShifts>, double)                                                       \
  EIGEN_VECTORS_OF_ONE(EXTERN, float)                                                                                  \
  EIGEN_VECTORS_OF_ONE(EXTERN, double)
EIGEN_VECTORS_COMPILED(extern)

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

template <class T, class View> ZELM_INLINE void storeVectors(const Columns<T, int32_t>& vectors, const View& dst) {
  for (int j = 0; j < vectors.side; ++j)
    for (int i = 0; i < vectors.side; ++i)
      dst.store(i, j, vectors(i, j));
}

// From T on; the vectors are written at the very end.
template <bool Right, bool Left, class T, class... Vectors>
ZELM_INLINE Outcome finishVectors(const VectorScratch<T>& scratch, const Cells<T>& imaginary, int64_t k,
                                  const Vectors&... vectors) {
  const Outcome outcome = vectorsOfOne<Right, Left>(scratch, imaginary);
  if (outcome.complete) {
    int which = 0;
    static_cast<void>((storeVectors(scratch.matrix(++which), vectors.object(k, scratch.side)), ...));
  }
  return outcome;
}

template <class Rules, bool Right, bool Left, class Source, class T, class... Vectors>
ZELM_INLINE Outcome eigenVectorsOfOne(const Source& src, const Plain<T>& re, const Plain<T>& im, int32_t side,
                                      const Buffer<void>& buffer, int64_t k, const Vectors&... vectors) {
  const VectorScratch<T> scratch{cellsIn<T>(buffer), side};
  loadColumns(src.object(k, side), side, scratch.cells);
  const Cells<T> imaginary = cellsOf(im.single(k));
  if (decomposeOne<Rules>(scratch, cellsOf(re.single(k)), imaginary) >= 0)
    return {zelStatusNoConvergence, false};
  return finishVectors<Right, Left>(scratch, imaginary, k, vectors...);
}

template <class Rules, bool Right, bool Left, class Source, class T, class... Vectors>
ZELM_INLINE ZelStatus eigenVectorsOfArray(const Source& src, const Plain<T>& re, const Plain<T>& im, int32_t side,
                                          int32_t count, const Buffer<void>& buffer, const Vectors&... vectors) {
  // An object that is not complete ends the array, also with zelStatusOk.
  constexpr ZelStatus endsWell = 1;
  const auto one = [&](int64_t k) ZELM_BODY -> ZelStatus {
    const Outcome outcome = eigenVectorsOfOne<Rules, Right, Left>(src, re, im, side, buffer, k, vectors...);
    return outcome.complete || outcome.status != zelStatusOk ? outcome.status : endsWell;
  };
  ZelStatus status = zelStatusOk;
  if (!isBlockSide(side)) {
    for (int64_t k = 0; k < count && status == zelStatusOk; ++k)
      status = one(k);
  } else {
    auto sources = matrixBlocks(src, side);
    const VectorScratch<T> scratch{cellsIn<T>(buffer), side};
    status = forBlocks<eigenLanes<T>, false>(
        count, false,
        [&](const auto& block) ZELM_BODY {
          EigenVectorBlock<T> objects;
          objects.load(sources, block, side);
          decomposeBlock<Rules>(objects, side);
          for (int w = 0; w <= block.last; ++w) {
            const int64_t k = block.first + w;
            if (!objects.isComplete(w))
              return false;
            const Cells<T> imaginary = cellsOf(im.single(k));
            objects.storeValues(w, side, cellsOf(re.single(k)), imaginary);
            objects.extract(w, scratch);
            if (!finishVectors<Right, Left>(scratch, imaginary, k, vectors...).complete)
              return false;
          }
          return true;
        },
        one);
  }
  return status == endsWell ? ZelStatus(zelStatusOk) : status;
}

// Right vectors, left vectors, both; of one object and of an array.
template <class Rules, class Source, class Result, class T>
ZELM_INLINE ZelStatus eigenVectorsRight(const Source& src, const Result& vectors, const Plain<T>& re,
                                        const Plain<T>& im, int32_t side, const Buffer<void>& buffer) {
  return eigenVectorsOfOne<Rules, true, false>(src, re, im, side, buffer, 0, vectors).status;
}
template <class Rules, class Source, class Result, class T>
ZELM_INLINE ZelStatus eigenVectorsRight(const Source& src, const Result& vectors, const Plain<T>& re,
                                        const Plain<T>& im, int32_t side, int32_t count, const Buffer<void>& buffer) {
  return eigenVectorsOfArray<Rules, true, false>(src, re, im, side, count, buffer, vectors);
}
template <class Rules, class Source, class Result, class T>
ZELM_INLINE ZelStatus eigenVectorsLeft(const Source& src, const Result& vectors, const Plain<T>& re, const Plain<T>& im,
                                       int32_t side, const Buffer<void>& buffer) {
  return eigenVectorsOfOne<Rules, false, true>(src, re, im, side, buffer, 0, vectors).status;
}
template <class Rules, class Source, class Result, class T>
ZELM_INLINE ZelStatus eigenVectorsLeft(const Source& src, const Result& vectors, const Plain<T>& re, const Plain<T>& im,
                                       int32_t side, int32_t count, const Buffer<void>& buffer) {
  return eigenVectorsOfArray<Rules, false, true>(src, re, im, side, count, buffer, vectors);
}
template <class Rules, class Source, class Result, class T>
ZELM_INLINE ZelStatus eigenVectors(const Source& src, const Result& right, const Result& left, const Plain<T>& re,
                                   const Plain<T>& im, int32_t side, const Buffer<void>& buffer) {
  return eigenVectorsOfOne<Rules, true, true>(src, re, im, side, buffer, 0, right, left).status;
}
template <class Rules, class Source, class Result, class T>
ZELM_INLINE ZelStatus eigenVectors(const Source& src, const Result& right, const Result& left, const Plain<T>& re,
                                   const Plain<T>& im, int32_t side, int32_t count, const Buffer<void>& buffer) {
  return eigenVectorsOfArray<Rules, true, true>(src, re, im, side, count, buffer, right, left);
}

} // namespace zelm
