// Solution of linear systems from an LU decomposition.
#include "blocks.h"
#include "systems.h"

#include "../harness/job.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

using namespace zelmtest;

bool isFixed(int n) {
  return n >= 3 && n <= 6;
}

template <class Job> void reference(Job& job) {
  auto lu = job["src1"], b = job["src2"], dst = job["dst"];
  auto index = job.ints("index");
  using T = decltype(lu(0, 0, 0));
  const int n = job.size("widthHeight");
  for (int k = 0; k < job.count(); ++k) {
    const int own = job.member().formName == "mava" ? k : 0;
    auto p = [&](int i) { return index(own, i); };
    auto at = [&](int i, int j) { return lu(k, p(i), j); };
    std::vector<T> x(static_cast<size_t>(n));
    auto y = [&](int i) -> T& { return x[static_cast<size_t>(i)]; };
    for (int i = 0; i < n; ++i) {
      y(i) = b(k, p(i));
      if (isFixed(n)) {
        for (int j = 1; j < i; ++j)
          y(i) = y(i) - static_cast<T>(at(i, j) * y(j));
        if (i > 0)
          y(i) = y(i) - static_cast<T>(at(i, 0) * y(0));
      } else if (i > 0) {
        T sum = 0;
        for (int j = 0; j < i; ++j)
          sum += static_cast<T>(at(i, j) * y(j));
        y(i) -= sum;
      }
    }
    for (int i = n - 1; i >= 0; --i) {
      if (isFixed(n)) {
        for (int j = n - 1; j > i; --j)
          y(i) = y(i) - static_cast<T>(at(i, j) * y(j));
        y(i) *= 1 / at(i, i);
      } else {
        T sum = 0;
        for (int j = i + 1; j < n; ++j)
          sum += static_cast<T>(at(i, j) * y(j));
        if (i < n - 1)
          y(i) -= sum;
        y(i) /= at(i, i);
      }
    }
    for (int i = 0; i < n; ++i)
      dst.set(k, i, y(i));
  }
}

// Any permutation is an index, and so are rows of which some appear twice; kind 20 keeps the identity, kind 21 has
// signed zeros on the diagonal, in kind 22 all products are -0.0. What lies behind the one index of mva is nothing to
// read.
template <class Job> void fill(Job& job, Rng& rng, int kind) {
  auto lu = job["src1"], b = job["src2"];
  auto index = job.ints("index");
  using T = decltype(lu(0, 0, 0));
  const int n = job.size("widthHeight");
  const bool asItIs = kind == 21 || (kind > 0 && kind < 5 && rng.chance(16));
  std::vector<int> order(static_cast<size_t>(n));
  for (int k = 0; k < job.count(); ++k) {
    if (k > 0 && job.member().formName == "mva") {
      for (int i = 0; i < n; ++i)
        index.set(k, i, 1 << 28);
      continue;
    }
    std::iota(order.begin(), order.end(), 0);
    for (int i = n - 1; i > 0 && kind != 20; --i)
      std::swap(order[static_cast<size_t>(i)], order[static_cast<size_t>(rng.below(i + 1))]);
    if (kind != 20 && rng.chance(6))
      order[static_cast<size_t>(rng.below(n))] = order[static_cast<size_t>(rng.below(n))];
    for (int i = 0; i < n; ++i) {
      const int row = order[static_cast<size_t>(i)];
      index.set(k, i, row);
      if (kind == 21 && rng.chance(3))
        lu.set(k, row, i, rng.chance(2) ? T(0) : -T(0));
    }
    for (int i = 0; i < n && !asItIs; ++i)
      for (int j = 0; j < n; ++j) {
        const int row = order[static_cast<size_t>(i)];
        lu.set(k, row, j, kind == 22 ? T(rng.within(1, 9)) : moderate(lu(k, row, j), i == j, rng));
      }
  }
  for (int k = 0; k < job.count() && !asItIs; ++k)
    for (int i = 0; i < n; ++i)
      b.set(k, i, kind == 22 ? -T(0) : moderate(b(k, i), false, rng));
}

Family family() {
  Family f;
  f.name = "LU back substitution";
  const auto mva = [](const Sizes& s) { return (2 * s["count"] + s["widthHeight"]) * s["widthHeight"]; };
  const auto mava = [](const Sizes& s) { return (s["widthHeight"] + 2) * s["widthHeight"] * s["count"]; };
  constexpr Limits few = {701, 701, 701, 701, 701}, many = {1201, 1201, 1201, 1201, 1201};
  constexpr Orders single = {"NZS", nullptr, "NZH"}, array = {"NCZS", "NCZSH", "NCZSH"};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmLUBackSubst_mv),  "src1:m index:i src2:v dst:v widthHeight",          single, ""},
      {ZELMTEST_ARRAY(zelmLUBackSubst_mva),  "src1:m index:i src2:va dst:va widthHeight count",  array,  "", mva,  few,  few},
      {ZELMTEST_ARRAY(zelmLUBackSubst_mava), "src1:ma index:i src2:va dst:va widthHeight count", array,  "", mava, many, many},
  };
  // clang-format on
  f.reference = both([](auto& job) { reference(job); });
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fill(job, rng, kind); });
  f.dataKinds = {0, 0, 1, 2, 3, 4, 20, 21, 22};
  return f;
}

const Registration registration{family()};

TEST(Results, LUBackSubstBlocks) {
  checkBlocks();
}

TEST(Results, LUBackSubstDataAreNumbers) {
  expectNumbers<float>(member("zelmLUBackSubst_mava_32f"));
  expectNumbers<double>(member("zelmLUBackSubst_mava_64f"));
}

// dst in place of src2: sides 3 to 6 with any index, the others with rows in order.
TEST(Results, LUBackSubstInPlace) {
  for (const Member& m : members())
    for (int n = 1; n <= 8; ++n)
      for (Spread spread : {Spread::Packed, Spread::PaddedObjects, Spread::ObjectsInside, Spread::Random})
        for (int count : {1, 2, 3, 4, 5, 8, 9, 17, 18}) {
          CaseSpec s;
          s.id = "own";
          s.sizes = m.square(n, m.hasCount ? count : 1);
          s.plans.assign(m.operands.size(), Plan{});
          for (Plan& plan : s.plans)
            plan.spread = spread;
          s.dataKind = isFixed(n) ? 0 : 20;
          s.inPlace = m.operandIndex("src2");
          s.seed = static_cast<uint64_t>(n * 100 + count);
          ASSERT_EQ(runCase(m, s), "");
        }
}

// ---- Decomposition and solution together: residuals

struct Solved {
  double backward; // residual over |A| |x| + |b|, in units of eps
  double forward;  // error of x, relative to its largest element
};

// A system with the solution x, both exact in double precision or close enough.
template <class T, class D, class S>
Solved solveSystem(D decompose, S solve, int n, const std::vector<double>& exact, const std::vector<double>& x) {
  const int e = sizeof(T);
  std::vector<T> a(exact.begin(), exact.end()), lu = a, b(static_cast<size_t>(n));
  std::vector<int32_t> index(static_cast<size_t>(n));
  for (int i = 0; i < n; ++i) {
    long double sum = 0;
    for (int j = 0; j < n; ++j)
      sum += static_cast<long double>(a[static_cast<size_t>(i * n + j)]) * x[static_cast<size_t>(j)];
    b[static_cast<size_t>(i)] = static_cast<T>(sum);
  }
  const std::vector<T> right = b;
  EXPECT_EQ(decompose(a.data(), n * e, e, index.data(), lu.data(), n * e, e, n), zelStatusOk);
  std::vector<T> got(static_cast<size_t>(n));
  EXPECT_EQ(solve(lu.data(), n * e, e, index.data(), b.data(), e, got.data(), e, n), zelStatusOk);
  Solved result{0, 0};
  double norm = 0, largest = 0, error = 0, height = 0;
  for (int j = 0; j < n; ++j) {
    const auto at = static_cast<size_t>(j);
    largest = std::max(largest, std::fabs(static_cast<double>(got[at])));
    error = std::max(error, std::fabs(static_cast<double>(got[at]) - x[at]));
    height = std::max(height, std::fabs(x[at]));
  }
  for (T value : a)
    norm = std::max(norm, std::fabs(static_cast<double>(value)));
  for (int i = 0; i < n; ++i) {
    long double sum = static_cast<long double>(right[static_cast<size_t>(i)]);
    for (int j = 0; j < n; ++j)
      sum -= static_cast<long double>(a[static_cast<size_t>(i * n + j)]) *
             static_cast<long double>(got[static_cast<size_t>(j)]);
    const double eps = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52;
    result.backward = std::max(result.backward, std::fabs(static_cast<double>(sum)) / (norm * largest * n * eps));
  }
  result.forward = error / height;
  return result;
}

template <class T, class D, class S> void residuals(D decompose, S solve) {
  Rng rng(5);
  double worst = 0;
  for (int n = 2; n <= 10; ++n)
    for (double condition : {1.0, 1e2, 1e4})
      for (int round = 0; round < 100; ++round) {
        std::vector<double> x(static_cast<size_t>(n));
        for (double& value : x)
          value = static_cast<double>(rng.within(-9, 9));
        x[0] = 10;
        const Solved s = solveSystem<T>(decompose, solve, n, conditioned(n, condition, rng), x);
        worst = std::max(worst, s.backward);
        const double eps = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52;
        EXPECT_LT(s.forward, 8 * n * condition * eps) << n << " " << condition;
      }
  EXPECT_LT(worst, 4) << "backward error in units of the last place";
  // Hilbert matrices: the backward error stays, the forward error grows as the condition does.
  const double conditions[] = {1, 1, 19.3, 524, 1.55e4, 4.77e5, 1.5e7};
  for (int n = 2; n <= 6; ++n) {
    const auto most = static_cast<size_t>(n);
    std::vector<double> a;
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        a.push_back(1.0 / (i + j + 1));
    const Solved s = solveSystem<T>(decompose, solve, n, a, std::vector<double>(most, 1.0));
    EXPECT_LT(s.backward, 4) << n;
    const double eps = sizeof(T) == 4 ? 0x1p-23 : 0x1p-52;
    if (conditions[n] * eps < 0.1) {
      EXPECT_LT(s.forward, 8 * conditions[n] * eps) << n;
    }
  }
}

TEST(Results, LUResiduals) {
  residuals<float>(zelmLUDecomp_m_32f, zelmLUBackSubst_mv_32f);
  residuals<double>(zelmLUDecomp_m_64f, zelmLUBackSubst_mv_64f);
}

// A pivot of the loop has to exceed epsilon, however the matrix is scaled; one of sides 3 to 6 the smallest numbers.
template <class T, class D, class S> void kinds(D decompose, S solve, double little, double great) {
  constexpr int e = sizeof(T);
  std::vector<int32_t> index(200);
  checkKinds<T>(
      {Kind::Diagonal, Kind::Upper, Kind::Lower, Kind::Random, Kind::FirstColumnZero, Kind::LastColumnZero,
       Kind::HalfOfColumnsZero, Kind::Ill, Kind::Worse, Kind::Little, Kind::Great},
      false, {1, little, great},
      [&](const T* a, T* lu, int n, int count) {
        return decompose(a, n * n * e, n * e, e, index.data(), lu, n * n * e, n * e, e, n, count);
      },
      [&](const T* lu, const T* b, T* x, int n, int count) {
        return solve(lu, n * n * e, n * e, e, index.data(), b, n * e, e, x, n * e, e, n, count);
      },
      [](Kind kind, int n) {
        return hasZeros(kind) || (kind == Kind::Little && !isFixed(n)) ? zelStatusSingular : zelStatusOk;
      });
}

TEST(Results, LUKinds) {
  kinds<float>(zelmLUDecomp_ma_32f, zelmLUBackSubst_mava_32f, 0x1p-100, 0x1p100);
  kinds<double>(zelmLUDecomp_ma_64f, zelmLUBackSubst_mava_64f, 0x1p-900, 0x1p900);
}

} // namespace
