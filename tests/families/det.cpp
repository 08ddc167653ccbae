// Determinants.
#include "../harness/paths.h"
#include "../harness/run.h"
#include "blocks.h"
#include "pivots.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

using namespace zelmtest;

template <class T> using Rows = std::vector<std::vector<T>>;

// The determinant of the first rows and these columns: along the last row, the highest column first.
template <class T> T minorOf(const Rows<T>& a, const std::vector<int>& columns) {
  const size_t n = columns.size();
  auto element = [&](size_t row, size_t c) { return a[row][static_cast<size_t>(columns[c])]; };
  if (n == 2) {
    const T p = element(0, 0) * element(1, 1), q = element(0, 1) * element(1, 0);
    return p - q;
  }
  T sum = 0;
  for (size_t c = n; c-- > 0;) {
    std::vector<int> others = columns;
    others.erase(others.begin() + static_cast<std::ptrdiff_t>(c));
    T factor = element(n - 1, c);
    const bool subtract = (n - 1 - c) % 2 == 1;
    const bool last = a.size() == 4 && n == 4 && c == 0; // is added
    if (last)
      factor = 0 - factor;
    const T term = factor * minorOf(a, others);
    sum = c == n - 1 ? term : subtract && !last ? sum - term : sum + term;
  }
  return sum;
}

template <class T> T limitOf(int n) {
  const auto cube =
      static_cast<int32_t>(2u * static_cast<uint32_t>(n) * static_cast<uint32_t>(n) * static_cast<uint32_t>(n));
  return static_cast<T>(cube) * std::numeric_limits<T>::min();
}

template <class T> T eliminated(Rows<T> w, bool array) {
  const size_t n = w.size();
  const T limit = limitOf<T>(static_cast<int>(n));
  std::vector<size_t> piv(n);
  std::iota(piv.begin(), piv.end(), size_t{0});
  T result = 1, sign = 1;
  for (size_t k = 0; k + 1 < n; ++k) {
    size_t best = k;
    for (size_t j = k + 1; j < n; ++j)
      if (std::fabs(w[piv[j]][k]) > std::fabs(w[piv[best]][k]))
        best = j;
    if (best != k) {
      std::swap(piv[k], piv[best]);
      sign = -sign;
    }
    const T pivot = w[piv[k]][k];
    if (std::fabs(pivot) < limit) {
      if (!array)
        return 0;
      sign = 0;
      break;
    }
    for (size_t j = k + 1; j < n; ++j) {
      const T q = w[piv[j]][k] / pivot;
      for (size_t c = k + 1; c < n; ++c) {
        const T product = w[piv[k]][c] * q;
        w[piv[j]][c] = w[piv[j]][c] - product;
      }
    }
    result = pivot * result;
  }
  const T x = w[piv[n - 1]][n - 1];
  if (std::fabs(x) > limit) {
    const T signedPivot = x * sign;
    return result * signedPivot;
  }
  return 0;
}

template <class Job> void reference(Job& job) {
  auto src = job["src"], dst = job["dst"];
  using T = decltype(src(0, 0, 0));
  const int n = job.size("widthHeight");
  std::vector<int> all(static_cast<size_t>(n));
  std::iota(all.begin(), all.end(), 0);
  for (int k = 0; k < job.count(); ++k) {
    Rows<T> a(static_cast<size_t>(n));
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        a[static_cast<size_t>(i)].push_back(src(k, i, j));
    dst.set(k, 0, n >= 3 && n <= 6 ? minorOf(a, all) : eliminated(a, job.member().hasCount));
  }
}

// Data kinds from 10 on:
// 10 permutation matrices times values     11 small integers: ties, exact results
// 12 triangular with a pivot at the limit or beside it, rows exchanged
// 13 a column of zeros, elements of both signs, zeros and infinities
template <class Job> void fill(Job& job, Rng& rng, int kind) {
  if (kind < 10)
    return;
  auto src = job["src"];
  using T = decltype(src(0, 0, 0));
  const int n = job.size("widthHeight");
  std::vector<int> order(static_cast<size_t>(n));
  std::iota(order.begin(), order.end(), 0);
  auto value = [&] { return pivotValue<T>(rng); };
  for (int k = 0; k < job.count(); ++k) {
    for (int i = n - 1; i > 0; --i)
      std::swap(order[static_cast<size_t>(i)], order[static_cast<size_t>(rng.below(i + 1))]);
    const int step = rng.below(n), beyond = rng.within(-1, 1);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        const int place = order[static_cast<size_t>(i)];
        T x = 0;
        if (kind == 10)
          x = place == j ? value() : rng.chance(2) ? T(0) : T(-0.0);
        else if (kind == 11)
          x = static_cast<T>(rng.within(-2, 2));
        else if (kind == 12)
          x = place == j  ? (j == step ? (rng.chance(2) ? -1 : 1) * beside(limitOf<T>(n), beyond) : value())
              : j > place ? value()
                          : T(0);
        else if (j == step)
          x = rng.chance(2) ? T(0) : T(-0.0);
        else
          x = rng.chance(5) ? T(0) : rng.chance(8) ? std::numeric_limits<T>::infinity() : value();
        src.set(k, i, j, x);
      }
  }
}

Family family() {
  Family f;
  f.name = "Determinant";
  const auto estimate = [](const Sizes& s) { return s["widthHeight"] * s["count"]; };
  constexpr Limits limits = {14401, 14401, 14401, 14401, 14401};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmDet_m), "src:m widthHeight buffer:b dst:r",        {"NZS", nullptr, "NZH"}},
      {ZELMTEST_ARRAY(zelmDet_ma), "src:ma widthHeight buffer:b dst:r count", {"NCZS", "NCZSH", "NCZSH"}, "", estimate, limits, limits},
  };
  // clang-format on
  f.shape = [](const Member&, const std::string& operand, const Sizes& s) {
    const int n = s.get("widthHeight");
    return operand == "buffer" ? Shape{1, n * n + n} : Shape{0, 0};
  };
  f.reference = both([](auto& job) { reference(job); });
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fill(job, rng, kind); });
  f.dataKinds = {0, 0, 1, 2, 3, 4, 10, 11, 12, 13};
  return f;
}

const Registration registration{family()};

TEST(Results, DetBlocks) {
  checkBlocks();
}

// ---- What the common suites do not reach in every run

template <class T, class F> T detOf(F function, const std::vector<T>& a, int n) {
  std::vector<T> buffer(static_cast<size_t>(n * n + n));
  const int e = sizeof(T);
  T det = -7;
  EXPECT_EQ(function(a.data(), n * e, e, n, buffer.data(), &det), zelStatusOk);
  return det;
}

// Every permutation has its sign: products of primes are exact.
TEST(Det, SignsOfPermutations) {
  constexpr int primes[] = {2, 3, 5, 7, 11, 13, 17};
  for (int n = 1; n <= 7; ++n) {
    std::vector<int> order(static_cast<size_t>(n));
    std::iota(order.begin(), order.end(), 0);
    do {
      int64_t expected = 1;
      std::vector<float> a(static_cast<size_t>(n * n), 0.0f);
      for (int i = 0; i < n; ++i) {
        expected *= primes[i];
        for (int j = i + 1; j < n; ++j)
          expected *= order[static_cast<size_t>(i)] > order[static_cast<size_t>(j)] ? -1 : 1;
        a[static_cast<size_t>(i * n + order[static_cast<size_t>(i)])] = static_cast<float>(primes[i]);
      }
      const std::vector<double> d(a.begin(), a.end());
      ASSERT_EQ(detOf<float>(zelmDet_m_32f, a, n), static_cast<float>(expected));
      ASSERT_EQ(detOf<double>(zelmDet_m_64f, d, n), static_cast<double>(expected));
    } while (std::next_permutation(order.begin(), order.end()));
  }
}

// The last pivot has to exceed the limit, the others only to reach it.
template <class T, class F> void edges(F function) {
  for (int n : {1, 2, 7, 9})
    for (int step = 0; step < n; ++step)
      for (int beyond = -1; beyond <= 1; ++beyond) {
        std::vector<T> a(static_cast<size_t>(n * n), T(0));
        for (int i = 0; i < n; ++i)
          a[static_cast<size_t>(i * n + i)] = 1;
        const T pivot = beside(limitOf<T>(n), beyond);
        a[static_cast<size_t>(step * n + step)] = pivot;
        const bool counts = step == n - 1 ? beyond > 0 : beyond >= 0;
        EXPECT_EQ(detOf<T>(function, a, n), counts ? pivot : T(0)) << n << " " << step << " " << beyond;
      }
}

TEST(Det, Edges) {
  edges<float>(zelmDet_m_32f);
  edges<double>(zelmDet_m_64f);
  EXPECT_EQ(detOf<float>(zelmDet_m_32f, {1e-38f}, 1), 0.0f);
  EXPECT_FALSE(std::signbit(detOf<float>(zelmDet_m_32f, {-std::numeric_limits<float>::quiet_NaN()}, 1)));
  EXPECT_EQ(detOf<float>(zelmDet_m_32f, {std::numeric_limits<float>::quiet_NaN()}, 1), 0.0f);
}

// Rounding is that of the expansion: matrices of known condition stay within what it amplifies.
TEST(Det, ErrorOfDenseMatrices) {
  Rng rng(5);
  for (int n = 1; n <= 9; ++n)
    for (int round = 0; round < 200; ++round) {
      std::vector<double> a;
      std::vector<float> s;
      for (int i = 0; i < n * n; ++i) {
        s.push_back(static_cast<float>(rng.within(-1000, 1000)) / 256);
        a.push_back(static_cast<double>(s.back()));
      }
      double bound = 1; // the product of the rows' norms is at least the determinant
      for (int i = 0; i < n; ++i) {
        double square = 0;
        for (int j = 0; j < n; ++j)
          square += a[static_cast<size_t>(i * n + j)] * a[static_cast<size_t>(i * n + j)];
        bound *= std::sqrt(square);
      }
      EXPECT_NEAR(static_cast<double>(detOf<float>(zelmDet_m_32f, s, n)), detOf<double>(zelmDet_m_64f, a, n),
                  bound * n * 0x1p-22)
          << n;
    }
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmDet_ma_32f", entered("zelmDet_ma_32f", 6, 2400)); // 14400
  EXPECT_EQ("ownOMP_zelmDet_ma_32f", entered("zelmDet_ma_32f", 6, 2401));
  EXPECT_EQ("ownzelmDet_ma_64f_P", entered("zelmDet_ma_64f_P", 6, 2400));
  EXPECT_EQ("ownOMP_zelmDet_ma_64f_P", entered("zelmDet_ma_64f_P", 6, 2401));
}

} // namespace
