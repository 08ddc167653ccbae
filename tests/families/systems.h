// Linear systems: inputs whose solutions are numbers, systems of known condition, and how well a batch is solved.
#ifndef ZELMTEST_SYSTEMS_H
#define ZELMTEST_SYSTEMS_H

#include "../harness/job.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace zelmtest {

// An element of a factor, or of a right-hand side, as it is or, where it would drown all others, of moderate size. What
// divides is not near zero either.
template <class T> T moderate(T x, bool divides, Rng& rng) {
  const T size = std::fabs(x);
  if (divides ? size >= T(0.5) && size <= 4 : size <= 2) // false for a NaN
    return x;
  return (T(1) + T(rng.below(1000)) / T(1001)) * T(rng.chance(2) ? 1 : -1);
}

// Data whose results are NaN through and through show no fault: few of a back substitution's cases are of such data.
template <class T> void expectNumbers(const Member& m) {
  Rng rng(9);
  int lost = 0, all = 0;
  for (int kind : m.family->dataKinds)
    for (const Sizes& sizes : m.shapes())
      for (int trial = 0; trial < 8; ++trial, ++all) {
        Sizes s = sizes;
        if (m.hasCount)
          s.set("count", 2);
        Job job(m, s);
        for (size_t o = 0; o < m.operands.size(); ++o)
          if (!m.operands[o].output && !m.operands[o].integer)
            fillDense(job.operands[o], rng, kind);
        Typed<T> typed(job);
        if constexpr (sizeof(T) == 4) {
          m.family->fill.single(typed, rng, kind);
          m.family->reference.single(typed);
        } else {
          m.family->fill.twofold(typed, rng, kind);
          m.family->reference.twofold(typed);
        }
        const auto dst = typed["dst"];
        bool none = true;
        for (int k = 0; k < job.count; ++k)
          for (int j = 0; j < dst.cols(); ++j)
            none = none && std::isnan(dst(k, j));
        lost += none;
      }
  EXPECT_LT(10 * lost, all) << m.name << ": " << lost << " of " << all;
}

// Q D R with a diagonal D from 1 down to 1 / condition and orthogonal Q and R, which are products of reflections; Q and
// the transpose of R are the same in symmetric ones.
inline std::vector<double> conditioned(int n, double condition, Rng& rng, bool symmetric = false) {
  std::vector<double> a(static_cast<size_t>(n * n), 0.0), v(static_cast<size_t>(n));
  auto at = [&](int i, int j) -> double& { return a[static_cast<size_t>(i * n + j)]; };
  for (int i = 0; i < n; ++i)
    at(i, i) = std::pow(condition, n == 1 ? 0.0 : -static_cast<double>(i) / (n - 1));
  double square = 0;
  for (int side = 0; side < 6; ++side) {
    const bool columns = side % 2 != 0;
    if (!columns || !symmetric) {
      square = 0;
      for (double& x : v) {
        x = static_cast<double>(rng.next() >> 11) * 0x1p-52 - 1;
        square += x * x;
      }
    }
    for (int i = 0; i < n; ++i) {
      double dot = 0;
      for (int j = 0; j < n; ++j)
        dot += (columns ? at(j, i) : at(i, j)) * v[static_cast<size_t>(j)];
      for (int j = 0; j < n; ++j)
        (columns ? at(j, i) : at(i, j)) -= 2 * dot / square * v[static_cast<size_t>(j)];
    }
  }
  for (int i = 0; symmetric && i < n; ++i)
    for (int j = 0; j < i; ++j)
      at(i, j) = at(j, i);
  return a;
}

struct Outcome {
  ZelStatus status; // of the decomposition
  double error;     // backward error in units of epsilon, if the status is zelStatusOk
};

// Systems A x = b by decompose(a, factor, n, count) and solve(factor, b, x, n, count), judged by their backward error
// max|b - A x| / (max row sum of |A| * max|x| + max|b|).
template <class T, class Decompose, class Solve>
Outcome solveBatch(int n, const std::vector<double>& matrices, int count, Decompose decompose, Solve solve) {
  const auto size = static_cast<size_t>(n * n);
  std::vector<T> a(matrices.begin(), matrices.end()), factor(a.size()), b(static_cast<size_t>(n * count)), x(b.size());
  for (size_t i = 0; i < b.size(); ++i)
    b[i] = T(1) / static_cast<T>(i % 7 + 1) - T(0.3);
  Outcome outcome{decompose(a.data(), factor.data(), n, count), 0};
  if (outcome.status != zelStatusOk)
    return outcome;
  EXPECT_EQ(solve(factor.data(), b.data(), x.data(), n, count), zelStatusOk);
  for (int k = 0; k < count; ++k) {
    const T *const ak = &a[static_cast<size_t>(k) * size], *const bk = &b[static_cast<size_t>(k * n)],
                   *const xk = &x[static_cast<size_t>(k * n)];
    long double residual = 0, norm = 0, xs = 0, bs = 0;
    for (int i = 0; i < n; ++i) {
      long double r = bk[i], sum = 0;
      for (int j = 0; j < n; ++j) {
        r -= static_cast<long double>(ak[i * n + j]) * xk[j];
        sum += std::fabs(static_cast<long double>(ak[i * n + j]));
      }
      residual = std::isnan(r) ? r : std::max(residual, std::fabs(r));
      norm = std::max(norm, sum);
      xs = std::max(xs, std::fabs(static_cast<long double>(xk[i])));
      bs = std::max(bs, std::fabs(static_cast<long double>(bk[i])));
    }
    const auto error = static_cast<double>(residual / (norm * xs + bs));
    if (!(error <= outcome.error)) // a NaN stays
      outcome.error = error;
  }
  outcome.error /= static_cast<double>(std::numeric_limits<T>::epsilon());
  return outcome;
}

// The usual kinds of test matrices for linear systems.
enum class Kind {
  Diagonal,
  Upper,
  Lower,
  Random,
  FirstColumnZero,
  LastColumnZero,
  HalfOfColumnsZero,
  Ill,    // condition sqrt(0.1 / epsilon)
  Worse,  // condition 0.1 / epsilon
  Little, // scaled towards underflow
  Great   // scaled towards overflow
};

inline bool hasZeros(Kind kind) {
  return kind == Kind::FirstColumnZero || kind == Kind::LastColumnZero || kind == Kind::HalfOfColumnsZero;
}

template <class T> std::vector<double> matrixOf(Kind kind, int n, Rng& rng, bool symmetric) {
  const double worst = 0.1 / static_cast<double>(std::numeric_limits<T>::epsilon());
  std::vector<double> a = conditioned(n,
                                      kind == Kind::Ill     ? std::sqrt(worst)
                                      : kind == Kind::Worse ? worst
                                                            : 2,
                                      rng, symmetric);
  for (int i = 0; i < n; ++i)
    for (int j = 0; j < n; ++j) {
      double& x = a[static_cast<size_t>(i * n + j)];
      const auto zeroLine = [&](int line) {
        return (kind == Kind::FirstColumnZero && line == 0) || (kind == Kind::LastColumnZero && line == n - 1) ||
               (kind == Kind::HalfOfColumnsZero && line >= n - n / 2);
      };
      const bool triangle = kind == Kind::Upper || kind == Kind::Lower || kind == Kind::Diagonal;
      if (triangle && i == j)
        x = (1 + rng.below(1000) / 1000.0) * (symmetric || rng.chance(2) ? 1 : -1);
      else if (zeroLine(j) || (symmetric && zeroLine(i)) || (kind == Kind::Diagonal) ||
               (kind == Kind::Upper && i > j) || (kind == Kind::Lower && i < j))
        x = 0;
    }
  return a;
}

struct Scales {
  double usual, little, great;
};

// expected(kind, n) is the status; systems that are not singular are solved with a small backward error.
template <class T, class Decompose, class Solve, class Expected>
void checkKinds(std::initializer_list<Kind> kinds, bool symmetric, Scales scales, Decompose decompose, Solve solve,
                Expected expected) {
  constexpr int count = 20;
  Rng rng(11);
  for (Kind kind : kinds)
    for (int n : {2, 3, 4, 5, 6, 7, 10}) {
      const double scale = kind == Kind::Little ? scales.little : kind == Kind::Great ? scales.great : scales.usual;
      std::vector<double> all;
      for (int k = 0; k < count; ++k)
        for (double x : matrixOf<T>(kind, n, rng, symmetric))
          all.push_back(x * scale);
      const Outcome outcome = solveBatch<T>(n, all, count, decompose, solve);
      EXPECT_EQ(expected(kind, n), outcome.status) << "kind " << static_cast<int>(kind) << " side " << n;
      if (outcome.status == zelStatusOk && !hasZeros(kind)) {
        EXPECT_LT(outcome.error, 3) << "kind " << static_cast<int>(kind) << " side " << n;
      }
    }
}

} // namespace zelmtest

#endif
