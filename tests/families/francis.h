// The stages of the general eigenvalue computation, written down plainly a second time: one matrix, indices from 1, a
// block standardised as soon as it is found. And the matrices that are hard for it.
#ifndef ZELMTEST_FRANCIS_H
#define ZELMTEST_FRANCIS_H

#include "../harness/job.h"

#include <cmath>
#include <limits>
#include <vector>

namespace zelmtest {

// What differs between the eigenvalues alone and those with vectors.
enum class Deflation { Absolute, Relative, RelativeSingleShifts };

template <class T> class Francis {
public:
  // source(row, column) from 0; the matrix that is worked on is the transpose.
  template <class Source>
  Francis(int side, Deflation deflation, Source source)
      : re(static_cast<size_t>(side)), im(static_cast<size_t>(side)), known(side), n(side), kind(deflation),
        matrix(static_cast<size_t>(side + 1), std::vector<T>(static_cast<size_t>(side + 1))) {
    for (int i = 1; i <= n; ++i)
      for (int j = 1; j <= n; ++j)
        M(i, j) = source(j - 1, i - 1);
    hessenberg();
    status = iterate();
  }

  ZelStatus status = zelStatusOk;
  std::vector<T> re, im;
  int known; // the values from this one on, counted from 0, are known
  // Branches that were taken, so that tests can tell what their data reach.
  enum Branch {
    SmallColumn,
    NoReflection,
    ExceptionalAt10,
    ExceptionalAt20,
    ShiftPair,
    ShiftDouble,
    ShiftQuotient,
    BulgeInside,
    ColumnSum,
    SmallC,
    SmallB,
    EqualDiagonal,
    RealPair,
    NearlyEqualSplit,
    NearlyEqualApart,
    ComplexPair,
    NotFound,
    DenormalSquares,
    BranchCount
  };
  bool taken[BranchCount] = {};

private:
  static constexpr T eps = sizeof(T) == 4 ? T(1.1920928955078125e-07) : T(2.220446049250313e-16);
  static constexpr T tiny = sizeof(T) == 4 ? T(2.350988701644575e-38) : T(4.450147717014403e-308);
  static constexpr T tiny2 = sizeof(T) == 4 ? T(4.70197740328915e-38) : T(8.900295434028806e-308);
  static constexpr T eps4 = sizeof(T) == 4 ? T(4.76837158203125e-07) : T(8.881784197001252e-16);

  int n;
  Deflation kind;
  std::vector<std::vector<T>> matrix;
  T& M(int i, int j) { return matrix[static_cast<size_t>(i)][static_cast<size_t>(j)]; }
  void took(Branch branch) { taken[branch] = true; }

  static T root(T x) { return static_cast<T>(std::sqrt(static_cast<double>(x))); }
  static T absolute(T x) { return static_cast<T>(std::fabs(static_cast<double>(x))); }
  static T safeHypot(T x, T y) {
    const T ax = absolute(x), ay = absolute(y);
    const T w = ax > ay ? ax : ay, z = ax < ay ? ax : ay;
    T r = w;
    if (z >= tiny) {
      const T quotient = z * z / (w * w);
      r = w * root(quotient + 1);
    }
    if (r < tiny)
      r = tiny2;
    return r;
  }
  // Leaves beta in alpha.
  T makeReflector(T& alpha, std::vector<T>& x) {
    if (x.empty())
      return 0;
    T sum = 0;
    for (T e : x)
      sum = sum + e * e;
    if (sum > 0 && sum < std::numeric_limits<T>::min())
      took(DenormalSquares);
    const T norm = root(sum);
    if (norm < tiny) {
      took(SmallColumn);
      return 0;
    }
    const T r = safeHypot(alpha, norm);
    const T beta = alpha >= 0 ? -r : r;
    const T tau = (beta - alpha) / beta;
    const T factor = 1 / (alpha - beta);
    for (T& e : x)
      e = e * factor;
    alpha = beta;
    return tau;
  }

  void hessenberg() {
    for (int k = 1; k <= n - 1; ++k) {
      T alpha = M(k + 1, k);
      std::vector<T> x, w(static_cast<size_t>(n + 1));
      for (int i = k + 2; i <= n; ++i)
        x.push_back(M(i, k));
      const T tau = makeReflector(alpha, x);
      std::vector<T> v(1, T(1));
      v.insert(v.end(), x.begin(), x.end());
      const int length = n - k;
      auto V = [&](int j) { return v[static_cast<size_t>(j - 1)]; };
      auto W = [&](int i) -> T& { return w[static_cast<size_t>(i)]; };
      if (absolute(tau) > tiny) {
        for (int i = 1; i <= n; ++i) {
          W(i) = 0;
          for (int j = 1; j <= length; ++j)
            W(i) = W(i) + M(i, k + j) * V(j);
        }
        for (int i = 1; i <= n; ++i)
          for (int j = 1; j <= length; ++j)
            M(i, k + j) = M(i, k + j) - (tau * W(i)) * V(j);
        for (int c = k + 1; c <= n; ++c) {
          W(c) = 0;
          for (int j = 1; j <= length; ++j)
            W(c) = W(c) + M(k + j, c) * V(j);
        }
        for (int c = k + 1; c <= n; ++c)
          for (int j = 1; j <= length; ++j)
            M(k + j, c) = M(k + j, c) - (tau * V(j)) * W(c);
      } else {
        took(NoReflection);
      }
      M(k + 1, k) = alpha;
      for (int i = k + 2; i <= n; ++i)
        M(i, k) = 0;
    }
  }

  bool negligible(int c, int l, int i) {
    const T below = absolute(M(c, c - 1));
    if (kind == Deflation::Absolute)
      return below <= eps;
    T tst = absolute(M(c - 1, c - 1)) + absolute(M(c, c));
    if (tst <= tiny) {
      took(ColumnSum);
      tst = 0;
      for (int j = l; j <= i; ++j) {
        T sum = 0;
        for (int r = l; r <= (j + 1 < i ? j + 1 : i); ++r)
          sum = sum + absolute(M(r, j));
        tst = sum > tst ? sum : tst;
      }
    }
    const T smlnum = sizeof(T) == 4 ? T(n) * T(8388608.0) * tiny : T(n) * T(4503599627370496.0) * tiny;
    const T lim = tst * eps > smlnum ? tst * eps : smlnum;
    return below <= lim;
  }

  struct Shift {
    T s1, s2, q;
  };
  Shift exceptional(int i) {
    using S = T;
    if (kind == Deflation::RelativeSingleShifts)
      return exceptionalIn<float>(i);
    return exceptionalIn<S>(i);
  }
  template <class S> Shift exceptionalIn(int i) {
    const S a = static_cast<S>(M(i, i - 1)), b = static_cast<S>(M(i - 1, i - 2)), d = static_cast<S>(M(i, i));
    const S s = std::fabs(a) + std::fabs(b);
    const S shift = S(0.75) * s + d;
    const S half = s * S(-0.4375);
    return {static_cast<T>(shift), static_cast<T>(shift), static_cast<T>(half * s)};
  }
  Shift usual(int i) {
    const T h44 = M(i, i), h33 = M(i - 1, i - 1);
    T q = M(i, i - 1) * M(i - 1, i);
    const T t = (h33 - h44) * T(0.5);
    const T e = t * t + q;
    if (!(e > 0)) {
      took(ShiftPair);
      return {h44, h33, q};
    }
    const T rt = root(e), ave = (h44 + h33) * T(0.5);
    T sum = ave >= 0 ? ave + rt : ave - rt;
    took(ShiftDouble);
    if (absolute(h33) - absolute(h44) > 0) {
      took(ShiftQuotient);
      sum = (h33 * h44 - q) / sum;
    }
    return {sum, sum, 0};
  }
  template <class S> Shift relative(int i) {
    constexpr S least = sizeof(S) == 4 ? S(2.350988701644575e-38) : S(4.450147717014403e-308);
    const S h44 = static_cast<S>(M(i, i)), h33 = static_cast<S>(M(i - 1, i - 1));
    const S q = static_cast<S>(M(i, i - 1)) * static_cast<S>(M(i - 1, i));
    const S t = (h33 - h44) * S(0.5);
    const S e = t * t + q;
    if (!(e > least)) {
      took(ShiftPair);
      return {static_cast<T>(h44), static_cast<T>(h33), static_cast<T>(q)};
    }
    const S rt = static_cast<S>(std::sqrt(static_cast<double>(e))), ave = (h44 + h33) * S(0.5);
    const S sum = -h44 <= h33 ? rt + ave : ave - rt;
    const S inv = std::fabs(sum) > least ? 1 / sum : sum;
    took(ShiftDouble);
    S shift = sum;
    if (std::fabs(h44) < std::fabs(h33)) {
      took(ShiftQuotient);
      shift = inv * (h33 * h44 - q);
    }
    return {static_cast<T>(shift), static_cast<T>(shift), 0};
  }

  void sweep(int i, int l, int its) {
    if (its == 10)
      took(ExceptionalAt10);
    if (its == 20)
      took(ExceptionalAt20);
    const Shift s = its == 10 || its == 20                    ? exceptional(i)
                    : kind == Deflation::Absolute             ? usual(i)
                    : kind == Deflation::RelativeSingleShifts ? relative<float>(i)
                                                              : relative<T>(i);
    T a1 = 0, a2 = 0, a3 = 0;
    int m = i - 2;
    for (;; --m) {
      const T h11 = M(m, m), h22 = M(m + 1, m + 1), h21 = M(m + 1, m), h12 = M(m, m + 1), h32 = M(m + 2, m + 1);
      a1 = ((s.s2 - h11) * (s.s1 - h11) - s.q) / h21 + h12;
      a2 = ((h22 - h11) - (s.s1 - h11)) - (s.s2 - h11);
      a3 = h32;
      const T scale = absolute(a1) + absolute(a2) + absolute(a3);
      a1 = a1 / scale;
      a2 = a2 / scale;
      a3 = a3 / scale;
      if (m == l)
        break;
      const T h00 = M(m - 1, m - 1), h10 = M(m, m - 1);
      const T left = absolute(h10) * (absolute(a2) + absolute(a3));
      const T right = absolute(a1) * (absolute(h00) + absolute(h11) + absolute(h22)) * eps;
      if (left <= right) {
        took(BulgeInside);
        break;
      }
    }
    for (int k = m; k <= i - 1; ++k) {
      const bool three = i - k + 1 >= 3;
      T alpha = a1;
      std::vector<T> x = {a2, a3};
      if (k > m) {
        alpha = M(k, k - 1);
        x = {M(k + 1, k - 1)};
        if (three)
          x.push_back(M(k + 2, k - 1));
      }
      const T tau = makeReflector(alpha, x);
      if (k > m) {
        M(k, k - 1) = alpha;
        M(k + 1, k - 1) = 0;
        if (k < i - 1)
          M(k + 2, k - 1) = 0;
      } else if (m > l) {
        M(k, k - 1) = -M(k, k - 1);
      }
      const T g2 = x[0], g3 = three ? x[1] : T(0), t2 = tau * g2;
      auto apply = [&](T& x0, T& x1, T* x2) {
        T sum = g2 * x1 + x0;
        if (three)
          sum = sum + g3 * *x2;
        x0 = x0 - tau * sum;
        x1 = x1 - t2 * sum;
        if (three)
          *x2 = *x2 - (sum * tau) * g3;
      };
      for (int j = k; j <= i; ++j)
        apply(M(k, j), M(k + 1, j), three ? &M(k + 2, j) : nullptr);
      for (int r = l; r <= (k + 3 < i ? k + 3 : i); ++r)
        apply(M(r, k), M(r, k + 1), three ? &M(r, k + 2) : nullptr);
    }
  }

  ZelStatus iterate() {
    int budget = 30 * n, i = n;
    while (i >= 1) {
      int l = 1, its = 0;
      while (its < budget) {
        int c = i;
        for (; c >= l + 1; --c)
          if (negligible(c, l, i))
            break;
        l = c; // l itself if none is negligible
        if (l > 1)
          M(l, l - 1) = 0;
        if (l >= i - 1)
          break;
        sweep(i, l, its);
        ++its;
      }
      if (l < i - 1) {
        took(NotFound);
        return zelStatusNoConvergence;
      }
      if (l == i) {
        value(i) = M(i, i);
        imaginary(i) = 0;
      } else {
        standardise(i);
      }
      budget -= its;
      i = l - 1;
      known = i;
    }
    return zelStatusOk;
  }
  T& value(int i) { return re[static_cast<size_t>(i - 1)]; }
  T& imaginary(int i) { return im[static_cast<size_t>(i - 1)]; }

  static int sign(T x) { return x < 0 ? -1 : 1; }
  void standardise(int i) {
    T a = M(i - 1, i - 1), b = M(i - 1, i), c = M(i, i - 1), d = M(i, i), wi = 0;
    block(a, b, c, d, wi);
    value(i - 1) = a;
    value(i) = d;
    imaginary(i - 1) = wi;
    imaginary(i) = wi == 0 ? T(0) : -wi;
  }
  void block(T& a, T& b, T& c, T& d, T& wi) {
    if (absolute(c) <= tiny)
      return took(SmallC);
    if (absolute(b) <= tiny) {
      took(SmallB);
      std::swap(a, d);
      return;
    }
    if (!(absolute(a - d) <= tiny)) {
      const T t = a - d, p = t * T(0.5);
      const T ab = absolute(b), ac = absolute(c);
      const T bcmax = ab > ac ? ab : ac, bcmin = ab > ac ? ac : ab; // a NaN is one of the two
      const T bcmis = sign(b) == sign(c) ? bcmin : -bcmin;
      const T scale = absolute(p) > bcmax ? absolute(p) : bcmax;
      const T z = (p / scale) * p + (bcmax / scale) * bcmis;
      if (z >= eps4) {
        took(RealPair);
        const T product = root(scale) * root(z);
        const T zz = p > 0 ? p + product : p - product;
        a = d + zz;
        d = d - (bcmax / zz) * bcmis;
        return;
      }
      const T sigma = b + c, tau = safeHypot(sigma, t);
      const T cs = root((absolute(sigma) / tau + 1) * T(0.5));
      T sn = -p / (tau * cs);
      if (sigma < 0)
        sn = -sn;
      const T aa = a * cs + b * sn, bb = b * cs - a * sn, cc = c * cs + d * sn, dd = d * cs - c * sn;
      const T a2 = aa * cs + cc * sn, b2 = bb * cs + dd * sn, c2 = cc * cs - aa * sn, d2 = dd * cs - bb * sn;
      const T temp = (a2 + d2) * T(0.5);
      a = d = temp;
      b = b2;
      c = c2;
      if (absolute(b) <= tiny || absolute(c) <= tiny)
        return took(NearlyEqualSplit);
      if (sign(b) == sign(c)) {
        took(NearlyEqualApart);
        T p2 = root(absolute(b)) * root(absolute(c));
        if (sign(c) < 0)
          p2 = -p2;
        a = temp + p2;
        d = temp - p2;
        return;
      }
      took(ComplexPair);
    } else {
      took(EqualDiagonal);
    }
    wi = root(absolute(b)) * root(absolute(c));
  }
};

// ---- Matrices
// --------------------------------------------------------------------------------------------------------

constexpr int hardKinds = 18;

// Kind of hard matrix `kind`, into set(i, j, value).
template <class T, class Set> void hardMatrix(int kind, int n, Rng& rng, Set set) {
  const double eps = std::numeric_limits<T>::epsilon();
  auto unit = [&] { return static_cast<double>(rng.below(4001) - 2000) / 2000; };
  auto fill = [&](auto element) {
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        set(i, j, static_cast<T>(element(i, j)));
  };
  switch (kind) {
  case 0: { // a rotation in one plane, the identity elsewhere
    const int p = rng.below(n), q = rng.below(n);
    const double angle = unit() * 3.2;
    fill([&](int i, int j) {
      if (p == q || (i != p && i != q) || (j != p && j != q))
        return i == j ? 1.0 : 0.0;
      return i == j ? std::cos(angle) : (i == p ? -1 : 1) * std::sin(angle);
    });
    return;
  }
  case 1: { // a companion matrix of random coefficients, of x^n - 1 in one of three: the shifts do not move it
    const bool cyclic = rng.chance(3), below = rng.chance(2);
    fill([&](int i, int j) {
      if (below)
        std::swap(i, j);
      if (i == n - 1)
        return cyclic ? (j == 0 ? 1.0 : 0.0) : unit();
      return j == i + 1 ? 1.0 : 0.0;
    });
    return;
  }
  case 2: // a defective block
    fill([&](int i, int j) { return i == j ? 2.0 : j == i + 1 ? 1.0 : 0.0; });
    return;
  case 3: // nearly one, disturbed anywhere
    fill([&](int i, int j) { return (i == j ? 2.0 : j == i - 1 ? 1.0 : 0.0) + eps * 4 * unit(); });
    return;
  case 4: // triangular
    fill([&](int i, int j) { return i <= j ? unit() : 0.0; });
    return;
  case 5:
    fill([&](int i, int j) { return i >= j ? unit() : 0.0; });
    return;
  case 6: { // graded
    const double ratio = rng.chance(2) ? 0.01 : 100;
    fill([&](int i, int j) { return unit() * std::pow(ratio, i + j); });
    return;
  }
  case 7: { // large and small as a whole, up to where squares leave the range
    const int most = std::numeric_limits<T>::max_exponent;
    const double scale = std::ldexp(1.0, rng.within(-most + 2, most - 2));
    fill([&](int, int) { return unit() * scale; });
    return;
  }
  case 8: { // equal diagonal elements, other elements of one sign or any
    const bool oneSign = rng.chance(2);
    const double d = unit();
    fill([&](int i, int j) { return i == j ? d : oneSign ? std::fabs(unit()) : unit(); });
    return;
  }
  case 9: // blocks of two along the diagonal
    fill([&](int i, int j) { return i / 2 == j / 2 ? unit() : 0.0; });
    return;
  case 10: { // Hessenberg, elements beside the diagonal at the limits
    const double limits[] = {eps, eps * (1 + eps), eps * (1 - eps), std::numeric_limits<T>::min(), 4 * eps, 0.0};
    fill([&](int i, int j) {
      return j <= i ? unit() : j == i + 1 ? limits[rng.below(6)] * (rng.chance(2) ? 1 : -1) : 0.0;
    });
    return;
  }
  case 11: // integers: coincidences, double eigenvalues
    fill([&](int, int) { return rng.within(-1, 1); });
    return;
  case 12: { // a NaN or an infinity
    const int p = rng.below(n), q = rng.below(n);
    const double odd = rng.chance(2) ? std::numeric_limits<double>::quiet_NaN()
                                     : (rng.chance(2) ? 1 : -1) * std::numeric_limits<double>::infinity();
    fill([&](int i, int j) { return i == p && j == q ? odd : unit(); });
    return;
  }
  case 13: // zeros of both signs
    fill([&](int, int) { return rng.chance(5) ? unit() : rng.chance(2) ? 0.0 : -0.0; });
    return;
  case 14: { // symmetric, or skew
    const double sign = rng.chance(2) ? 1 : -1;
    std::vector<double> upper;
    for (int i = 0; i < n * n; ++i)
      upper.push_back(unit());
    fill([&](int i, int j) {
      return i == j  ? (sign > 0 ? upper[static_cast<size_t>(i)] : 0.0)
             : i < j ? upper[static_cast<size_t>(i * n + j)]
                     : sign * upper[static_cast<size_t>(j * n + i)];
    });
    return;
  }
  case 15: { // blocks whose eigenvalues coincide up to a few roundings: {d + p, b, -p * p / b, d - p}
    const double d = unit(), p = rng.within(1, 8) / 8.0, b = std::ldexp(rng.chance(2) ? 1.0 : -1.0, rng.within(-2, 2));
    const double off = rng.chance(2) ? 0.0 : eps * rng.within(-8, 8);
    fill([&](int i, int j) {
      return i / 2 != j / 2 ? (i > j ? unit() : 0.0)
             : i == j       ? (i % 2 == 0 ? d + p : d - p)
                            : (i < j ? b : -p * p / b + off);
    });
    return;
  }
  case 16: // a permutation
  {
    std::vector<int> to(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i)
      to[static_cast<size_t>(i)] = i;
    for (int i = n - 1; i > 0; --i)
      std::swap(to[static_cast<size_t>(i)], to[static_cast<size_t>(rng.below(i + 1))]);
    fill([&](int i, int j) { return to[static_cast<size_t>(i)] == j ? 1.0 : 0.0; });
    return;
  }
  default: { // Hessenberg with weak joints: a bulge may start inside
    fill([&](int i, int j) {
      return j <= i ? unit() : j == i + 1 ? std::ldexp(unit(), -rng.below(std::numeric_limits<T>::digits)) : 0.0;
    });
    return;
  }
  }
}

// A fill of the harness: kinds from 10 on are hard matrices, one kind for each object.
template <class T> void fillHard(Typed<T>& job, Rng& rng, int kind) {
  if (kind < 10)
    return;
  auto src = job["src"];
  for (int k = 0; k < job.count(); ++k) {
    // 10: without what does not converge.
    int hard = rng.below(hardKinds);
    while (kind == 10 && (hard == 7 || hard == 12))
      hard = rng.below(hardKinds);
    if (kind == 12 && rng.chance(2))
      continue; // dense, as it was filled
    hardMatrix<T>(hard, job.size("widthHeight"), rng, [&](int i, int j, T value) { src.set(k, i, j, value); });
  }
}

} // namespace zelmtest

#endif
