// Symmetric eigenproblems written down a second time, one object after the other, with both directions of the iteration
// spelled out; and the matrices that they are tried on.
#ifndef ZELMTEST_SYMMETRIC_H
#define ZELMTEST_SYMMETRIC_H

#include "../harness/job.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace zelmtest {

// What differs between the kernels.
template <class T> struct SymmetricRules {
  static constexpr T epsilon = sizeof(T) == 4 ? T(0x1p-23) : T(0x1p-52);
  T determinant = epsilon; // limit of the determinant at side 2
  T reduction = epsilon;   // limit of all tests of the reduction
  T product = epsilon;     // limit of the eigenvalues' product
  bool testsFirst = true;  // the singular test comes before the sort
  bool wideProduct = false;
};

template <class T> class SymmetricReference {
public:
  using Rules = SymmetricRules<T>;
  SymmetricReference(int side, bool withVectors, const Rules& rules)
      : n(side), vectors(withVectors), rules_(rules), b_(square()), v_(square()), w_(static_cast<size_t>(side), T(0)) {}

  T& b(int i, int j) { return b_[static_cast<size_t>(i * n + j)]; }
  T& v(int i, int j) { return v_[static_cast<size_t>(i * n + j)]; }
  T& w(int i) { return w_[static_cast<size_t>(i)]; } // values

  // Side 3 and above; the matrix is in b.
  ZelStatus solve() {
    if (vectors)
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
          v(i, j) = i == j;
    for (int k = 0; k <= n - 3; ++k)
      reduceColumn(k);
    const bool downward = vectors ? !(size(b(0, 0)) < size(b(n - 1, n - 1))) : size(b(n - 1, n - 1)) <= size(b(0, 0));
    if (!(downward ? iterateDownward() : iterateUpward()))
      return zelStatusNoConvergence;
    if (vectors || !downward)
      for (int i = 0; i < n; ++i) {
        w(i) = b(i, i);
        product_ = product_ * b(i, i);
        wide_ = wide_ * static_cast<double>(b(i, i));
      }
    const bool singular = rules_.wideProduct ? std::fabs(wide_) <= static_cast<double>(rules_.product)
                                             : size(product_) <= static_cast<double>(rules_.product);
    if (singular && rules_.testsFirst)
      return zelStatusSingular;
    sort();
    return singular ? zelStatusSingular : zelStatusOk;
  }

  // Side 2. Nothing is written if it is singular.
  ZelStatus solvePair() {
    const T eps = Rules::epsilon, a = b(0, 0), m = b(0, 1), d = b(1, 1);
    const T det = a * d - m * m;
    if (size(det) <= static_cast<double>(rules_.determinant))
      return zelStatusSingular;
    T t = a - d;
    const T ww = m + m, disc = root(t * t + ww * ww), tr = a + d;
    if (tr > eps) {
      w(0) = (disc + tr) * T(0.5);
      w(1) = det / w(0);
    } else if (tr < -eps) {
      w(0) = (tr - disc) * T(0.5);
      w(1) = det / w(0);
    } else {
      w(0) = disc * T(0.5);
      w(1) = disc * T(-0.5);
    }
    if (!vectors)
      return zelStatusOk;
    const int sign1 = tr < -eps ? -1 : 1;
    int sign2 = 1;
    if (t >= -eps)
      t = t + disc;
    else {
      sign2 = -1;
      t = t - disc;
    }
    T x = 1, y = 0;
    if (size(ww) < size(t)) {
      const T q = (T(0) - ww) / t;
      y = T(1) / root(q * q + T(1));
      x = q * y;
    } else if (size(ww) > static_cast<double>(eps)) {
      const T q = (T(0) - t) / ww;
      x = T(1) / root(q * q + T(1));
      y = q * x;
    }
    const T p = sign1 == sign2 ? T(0) - y : x;
    const T q = sign1 == sign2 ? x : y;
    v(0, 0) = p;
    v(1, 0) = q;
    v(0, 1) = T(0) - q;
    v(1, 1) = p;
    return zelStatusOk;
  }

private:
  std::vector<T> square() const { return std::vector<T>(static_cast<size_t>(n) * static_cast<size_t>(n), T(0)); }
  static double size(T x) { return std::fabs(static_cast<double>(x)); }
  static T root(T x) { return static_cast<T>(std::sqrt(static_cast<double>(x))); }
  // The radical of the shift.
  T radical(T g, bool downward) const {
    if (downward && !vectors)
      return root(g * g + T(1));
    return static_cast<T>(std::sqrt(static_cast<double>(g * g) + 1.0));
  }

  void reduceColumn(int k) {
    const T eps = rules_.reduction;
    T s = 0;
    for (int i = k + 1; i < n; ++i)
      s = s + b(i, k) * b(i, k);
    const T sigma = root(s), x = b(k + 1, k);
    if (vectors && size(sigma - x) <= static_cast<double>(eps))
      return;
    for (int i = k + 2; i < n; ++i)
      w(i) = b(i, k);
    T h;
    if (x > eps) {
      w(k + 1) = x + sigma;
      h = (s + sigma * x) * T(2);
    } else if (size(x) > static_cast<double>(eps)) {
      w(k + 1) = x - sigma;
      h = (s - sigma * x) * T(2);
    } else {
      w(k + 1) = sigma;
      h = s + s;
    }
    if (h <= eps)
      return;
    const T f = T(2) / h;
    for (int j = k; j < n; ++j) {
      T t = 0;
      for (int i = k + 1; i < n; ++i)
        t = t + b(i, j) * w(i);
      for (int i = k + 1; i < n; ++i)
        b(i, j) = vectors ? b(i, j) - (w(i) * t) * f : b(i, j) - w(i) * (t * f);
    }
    for (int r = k; r < n; ++r) {
      T t = 0;
      for (int j = k + 1; j < n; ++j)
        t = t + b(r, j) * w(j);
      t = t * f;
      for (int j = k + 1; j < n; ++j)
        b(r, j) = b(r, j) - w(j) * t;
    }
    if (!vectors)
      return;
    for (int r = 1; r < n && k == 0; ++r) {
      v(r, r) = T(1) - f * w(r) * w(r);
      for (int c = r + 1; c < n; ++c)
        v(r, c) = v(c, r) = (w(r) * (T(0) - f)) * w(c);
    }
    for (int r = 1; r < n && k > 0; ++r) {
      T t = 0;
      for (int j = k + 1; j < n; ++j)
        t = t + w(j) * v(r, j);
      t = t * f;
      for (int j = k + 1; j < n; ++j)
        v(r, j) = v(r, j) - w(j) * t;
    }
  }

  bool iterateUpward() {
    const double eps = static_cast<double>(Rules::epsilon);
    for (int l = 0; l < n; ++l)
      for (int sweeps = 0;; ++sweeps) {
        int m = l;
        while (m < n - 1 && !(size(b(m + 1, m) * T(0.5)) <= eps))
          ++m;
        if (m == l)
          break;
        if (sweeps == 30)
          return false;
        T g = (b(l + 1, l + 1) - b(l, l)) / (b(l + 1, l) * T(2));
        const T rad = radical(g, false);
        g = static_cast<double>(g) > eps ? (b(m, m) - b(l, l)) + b(l + 1, l) / (g + rad)
                                         : (b(m, m) - b(l, l)) + b(l + 1, l) / (g - rad);
        T s = 1, c = 1, p = 0, last = 0;
        int i = m - 1;
        bool early = false;
        for (; i >= l; --i) {
          const T e = b(i + 1, i), f = s * e, q = c * e;
          const T r = root(f * f + g * g);
          if (i != m - 1)
            b(i + 2, i + 1) = r;
          if (size(r) <= eps) {
            b(i + 1, i + 1) = b(i + 1, i + 1) - p;
            b(m, m - 1) = 0;
            early = true;
            break;
          }
          s = f / r;
          c = g / r;
          for (int row = 0; row < n && vectors; ++row) {
            const T x = v(row, i), y = v(row, i + 1);
            v(row, i) = c * x - s * y;
            v(row, i + 1) = x * s + y * c;
          }
          const T t = b(i + 1, i + 1) - p;
          last = (b(i, i) - t) * s + T(2) * c * q;
          p = s * last;
          b(i + 1, i + 1) = t + p;
          g = c * last - q;
        }
        const bool closes = !early && size(last) > eps;
        if (!closes && i >= 0)
          continue;
        b(l, l) = b(l, l) - p;
        b(l + 1, l) = g;
      }
    return true;
  }

  bool iterateDownward() {
    const double eps = static_cast<double>(Rules::epsilon);
    for (int l = n - 1; l >= 0; --l)
      for (int sweeps = 0;; ++sweeps) {
        int m = l;
        for (; m > 0; --m)
          if (size(b(m, m - 1) * T(0.5)) <= eps) {
            if (!vectors) {
              w(m) = b(m, m);
              product_ = product_ * b(m, m);
            }
            break;
          }
        if (m == l)
          break;
        if (sweeps == 30)
          return false;
        T g = (b(l - 1, l - 1) - b(l, l)) / (b(l, l - 1) * T(2));
        const T rad = radical(g, true);
        g = static_cast<double>(g) > eps ? (b(m, m) - b(l, l)) + b(l, l - 1) / (g + rad)
                                         : (b(m, m) - b(l, l)) + b(l, l - 1) / (g - rad);
        T s = 1, c = 1, p = 0, last = 0;
        bool early = false;
        for (int i = m; i <= l - 1; ++i) {
          const T e = b(i + 1, i), f = s * e, q = c * e;
          const T r = root(f * f + g * g);
          if (i != m)
            b(i, i - 1) = r;
          if (size(r) <= eps) {
            b(i, i) = b(i, i) - p;
            b(m + 1, m) = 0;
            early = true;
            break;
          }
          s = f / r;
          c = g / r;
          for (int row = 0; row < n && vectors; ++row) {
            const T x = v(row, i), y = v(row, i + 1);
            v(row, i) = c * x + s * y;
            v(row, i + 1) = y * c - x * s;
          }
          const T t = b(i, i) - p;
          last = (b(i + 1, i + 1) - t) * s + T(2) * c * q;
          p = s * last;
          b(i, i) = t + p;
          g = c * last - q;
        }
        if (early || size(last) <= eps)
          continue;
        b(l, l - 1) = g;
        b(l, l) = b(l, l) - p;
      }
    if (!vectors) {
      w(0) = b(0, 0);
      product_ = product_ * b(0, 0);
    }
    return true;
  }

  void sort() {
    for (int i = 0; i < n - 1; ++i) {
      int best = i;
      for (int j = i + 1; j < n; ++j)
        if (w(j) > w(best))
          best = j;
      if (best == i)
        continue;
      std::swap(w(i), w(best));
      for (int row = 0; row < n && vectors; ++row)
        std::swap(v(row, i), v(row, best));
    }
  }

  const int n;
  const bool vectors;
  const Rules rules_;
  std::vector<T> b_, v_, w_;
  T product_ = 1;
  double wide_ = 1;
};

// The results of a call, object by object.
template <class T, class RulesOf> void symmetricReference(Typed<T>& job, bool vectors, const RulesOf& rulesOf) {
  auto src = job["src"], values = job["values"], v = job[vectors ? "vectors" : "values"];
  const int n = job.size("widthHeight");
  for (int k = 0; k < job.count(); ++k) {
    SymmetricReference<T> one(n, vectors, rulesOf);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        one.b(i, j) = src(k, i, j);
    if (n == 1) {
      one.w(0) = one.b(0, 0);
      one.v(0, 0) = 1;
    }
    const ZelStatus status = n == 1 ? zelStatusOk : n == 2 ? one.solvePair() : one.solve();
    job.status(k) = status;
    if (n == 2 && status == zelStatusSingular)
      continue; // nothing is written
    for (int i = 0; i < n; ++i) {
      // Without convergence they have no meaning; vectors are as far as they got.
      if (status == zelStatusNoConvergence)
        values.free(k, 0, i);
      else
        values.set(k, i, one.w(i));
      for (int j = 0; j < n && vectors; ++j)
        v.set(k, i, j, one.v(i, j));
    }
  }
}

// The matrices of data kind 10: each object one of many sorts; in half of the jobs those that may fail are left out.
// Kind 11 is dense, and nothing fails.
template <class T> void fillSymmetric(Typed<T>& job, Rng& rng, int kind) {
  if (kind != 10 && kind != 11)
    return;
  auto src = job["src"];
  const int n = job.size("widthHeight");
  const T eps = SymmetricRules<T>::epsilon, nan = std::numeric_limits<T>::quiet_NaN(),
          infinite = std::numeric_limits<T>::infinity();
  const bool mayFail = rng.chance(2);
  const auto unit = [&rng] { return static_cast<double>(rng.next() >> 11) * 0x1p-52 - 1; };
  for (int k = 0; k < job.count(); ++k) {
    const auto both = [&](int i, int j, T x) {
      src.set(k, i, j, x);
      src.set(k, j, i, x);
    };
    const auto diagonal = [&](auto value) {
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
          src.set(k, i, j, i == j ? static_cast<T>(value(i)) : T(0));
    };
    // Dense, with the diagonal away from zero.
    for (int i = 0; i < n; ++i)
      for (int j = 0; j <= i; ++j)
        both(i, j, static_cast<T>(unit() + (i == j ? (rng.chance(2) ? 2 : -2) : 0)));
    if (kind == 11)
      continue;
    int sort = rng.below(20);
    if (!mayFail && (sort == 2 || (sort >= 4 && sort <= 6) || (sort >= 14 && sort <= 16)))
      sort = 1;
    const int edge = rng.within(-1, 1);
    // A number at the limit, just below and just above it.
    const auto limit = [&](T x) { return edge < 0 ? std::nextafter(x, T(0)) : edge > 0 ? std::nextafter(x, T(1)) : x; };
    switch (sort) {
    case 0: // graded, ascending or descending
    case 1:
      for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j) {
          const int a = sort == 0 ? i : n - 1 - i, b = sort == 0 ? j : n - 1 - j;
          both(i, j, static_cast<T>(std::ldexp(static_cast<double>(src(k, i, j)), 2 * (a + b) - n)));
        }
      break;
    case 2: // diagonal, of small integers: equal values, zeros
      diagonal([&](int) { return rng.within(-2, 3); });
      break;
    case 3:
      diagonal([](int) { return 1; });
      break;
    case 4: // zero of either sign
      if (rng.chance(3))
        diagonal([&](int) { return rng.chance(2) ? 0.0 : -0.0; });
      break;
    case 5: // of rank 1
      if (rng.chance(2))
        for (int i = 0; i < n; ++i)
          for (int j = 0; j <= i; ++j)
            both(i, j, static_cast<T>((i % 3 + 1) * (j % 3 + 1)));
      break;
    case 6: // a product of eigenvalues about the limit
      diagonal([&](int i) {
        return i == 0 ? limit(rng.chance(2) ? eps : rng.chance(2) ? T(0x1p-23) : T(0x1p-52)) : T(1);
      });
      break;
    case 7: // tridiagonal, with elements about the limit of the scan
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < i; ++j)
          both(i, j, i - j > 1 ? T(0) : rng.chance(2) ? limit(2 * eps) : src(k, i, j));
      break;
    case 8: // columns about the limits of the reduction
      for (int i = 1; i < n; ++i)
        for (int j = 0; j < i; ++j)
          both(i, j,
               rng.chance(2)
                   ? limit(static_cast<T>(std::sqrt(static_cast<double>(rng.chance(2) ? eps : T(0x1p-52)) / 2)))
                   : limit(rng.chance(2) ? eps : T(0x1p-52)));
      break;
    case 9: // equal diagonal elements, coupled in pairs
      for (int i = 0; i < n; ++i)
        for (int j = 0; j <= i; ++j)
          both(i, j, i == j ? T(2) : i - j == 1 ? T(rng.within(-1, 1)) : T(0));
      break;
    case 10: // a trace of zero, or one about the limit
      both(0, 0, -src(k, n - 1, n - 1));
      if (rng.chance(2))
        diagonal([&](int i) { return i == 0 ? 1.0 + static_cast<double>(eps) * rng.within(-2, 2) : -1.0; });
      break;
    case 11: // negative definite
      for (int i = 0; i < n; ++i)
        both(i, i, src(k, i, i) - T(2 * n));
      break;
    case 12: // blocks that the reduction finds ready
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < i; ++j)
          if (rng.chance(2))
            both(i, j, T(0));
      break;
    case 13: // not symmetric
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < i; ++j)
          src.set(k, i, j, static_cast<T>(unit()));
      break;
    case 14: // far from 1
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
          src.set(k, i, j,
                  src(k, i, j) * static_cast<T>(std::ldexp(1.0, rng.chance(3) ? 4 * (sizeof(T) == 4 ? 8 : 100) : 5)));
      break;
    case 15: // not a number, or infinite
      if (rng.chance(3))
        both(rng.below(n), rng.below(n), rng.chance(2) ? nan : infinite);
      break;
    case 16: // the same on the diagonal, coupled with nothing
      if (rng.chance(2)) {
        const int at = rng.chance(2) ? 0 : rng.below(n);
        if (at != 0)
          diagonal([](int i) { return i + 1; });
        for (int i = 0; i < n; ++i)
          both(at, i, T(0));
        both(at, at, rng.chance(2) ? nan : infinite);
      }
      break;
    default:
      break;
    }
  }
}

} // namespace zelmtest

#endif
