// LU decomposition.
#include "../harness/run.h"
#include "blocks.h"
#include "pivots.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

using namespace zelmtest;

template <class T> T fixedLimit() {
  return static_cast<T>(sizeof(T) == 4 ? std::ldexp(1.0, -125) : std::ldexp(1.0, -1021));
}
template <class T> T loopLimit() {
  return static_cast<T>(sizeof(T) == 4 ? std::ldexp(1.0, -23) : std::ldexp(1.0, -52));
}
bool isFixed(int n) {
  return n >= 3 && n <= 6;
}

// One object. `a` becomes what is left of it, `p` the index; `final` the number of rows p[0], p[1], ... that are final.
template <class T> bool decompose(std::vector<T>& a, std::vector<int>& p, int n, int& final) {
  auto at = [&](int i, int j) -> T& { return a[static_cast<size_t>(p[static_cast<size_t>(i)] * n + j)]; };
  p.resize(static_cast<size_t>(n));
  std::iota(p.begin(), p.end(), 0);
  for (final = 0; final < n; ++final) {
    const int k = final;
    int best = k;
    for (int i = k + 1; i < n; ++i)
      if (std::fabs(at(i, k)) > std::fabs(at(best, k)))
        best = i;
    const T pivot = std::fabs(at(best, k));
    if (!isFixed(n) && loopLimit<T>() >= pivot)
      return false;
    std::swap(p[static_cast<size_t>(k)], p[static_cast<size_t>(best)]);
    if (isFixed(n) && fixedLimit<T>() > pivot)
      return false;
    if (k == n - 1)
      continue;
    const T reciprocal = 1 / at(k, k);
    for (int i = k + 1; i < n; ++i) {
      at(i, k) *= reciprocal;
      for (int j = k + 1; j < n; ++j) {
        const T product = at(i, k) * at(k, j);
        at(i, j) = at(i, j) - product;
      }
    }
  }
  return true;
}

template <class Job> void reference(Job& job) {
  auto src = job["src"], dst = job["dst"];
  auto index = job.ints("index");
  using T = decltype(src(0, 0, 0));
  const int n = job.size("widthHeight");
  for (int k = 0; k < job.count(); ++k) {
    std::vector<T> a;
    std::vector<int> p;
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        a.push_back(src(k, i, j));
    int final = 0;
    const bool done = decompose(a, p, n, final);
    if (!done)
      job.status(k) = zelStatusSingular;
    for (int i = 0; i < n; ++i)
      index.set(k, i, p[static_cast<size_t>(i)]);
    // A failing object: the rows that are final, in the pointer layout none, of the general loop all as they are.
    const int rows = done || !isFixed(n) ? n : job.member().layout == 'P' ? 0 : final;
    for (int i = 0; i < rows; ++i)
      for (int j = 0; j < n; ++j) {
        const int row = p[static_cast<size_t>(i)];
        dst.set(k, row, j, a[static_cast<size_t>(row * n + j)]);
      }
  }
}

// Data kinds from 10 on:
// 10 permutation matrices times values    11 ties: small integers
// 12 diagonal with one pivot at a limit or beside it, rows exchanged       13 sums that cancel to such a pivot
// 14 as 10, one object of the batch singular     15 as 0, with NaN and infinities
// 16 denormal elements     17 Hilbert matrices   18 zero matrices
template <class Job> void fill(Job& job, Rng& rng, int kind) {
  if (kind < 10)
    return;
  auto src = job["src"];
  using T = decltype(src(0, 0, 0));
  const int n = job.size("widthHeight"), singular = rng.below(job.count());
  std::vector<int> order(static_cast<size_t>(n));
  std::iota(order.begin(), order.end(), 0);
  auto value = [&] { return pivotValue<T>(rng); };
  for (int k = 0; k < job.count(); ++k) {
    // Small sides take every order in turn.
    if (n <= 6) {
      if (k > 0 || rng.chance(2))
        std::next_permutation(order.begin(), order.end());
    } else {
      std::swap(order[static_cast<size_t>(rng.below(n))], order[static_cast<size_t>(rng.below(n))]);
    }
    const int step = rng.below(n), beyond = rng.within(-1, 1);
    const T limit = rng.chance(4) ? (isFixed(n) ? loopLimit<T>() : fixedLimit<T>())
                                  : (isFixed(n) ? fixedLimit<T>() : loopLimit<T>());
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j) {
        T x = 0;
        const bool pivot = order[static_cast<size_t>(i)] == j;
        switch (kind) {
        case 10:
        case 14:
          x = pivot ? value() : T(0);
          if (kind == 14 && k == singular && j == step)
            x = 0;
          break;
        case 11:
          x = static_cast<T>(rng.within(-2, 2));
          break;
        case 12:
        case 13:
          x = pivot ? (j == step ? (rng.chance(2) ? -1 : 1) * beside(limit, beyond) : value()) : T(0);
          if (kind == 13 && !pivot && j > order[static_cast<size_t>(i)])
            x = value();
          break;
        case 15:
          x = value();
          if (rng.chance(8))
            x = rng.chance(2) ? std::numeric_limits<T>::quiet_NaN() : std::numeric_limits<T>::infinity();
          break;
        case 16:
          x = static_cast<T>(rng.within(-9, 9)) * std::numeric_limits<T>::denorm_min();
          if (rng.chance(2))
            x = value() * std::numeric_limits<T>::min();
          break;
        case 17:
          x = T(1) / static_cast<T>(i + j + 1);
          break;
        default:
          break;
        }
        src.set(k, i, j, x);
      }
  }
}

Family family() {
  Family f;
  f.name = "LU decomposition";
  const auto estimate = [](const Sizes& s) { return s["widthHeight"] * s["widthHeight"] * s["count"]; };
  constexpr Limits limits = {1001, 1001, 1001, 1001, 1001};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmLUDecomp_m), "src:m index:I dst:m widthHeight",        {"NZS", nullptr, "NZH"},    "src"},
      {ZELMTEST_ARRAY(zelmLUDecomp_ma), "src:ma index:I dst:ma widthHeight count", {"NCZS", "NCZSH", "NCZSH"}, "src", estimate, limits, limits},
  };
  // clang-format on
  // The general loop takes all objects of a kernel at once.
  f.delegateOfAll = [](const Job& job) -> std::string {
    const Member& m = job.member;
    return isFixed(job.sizes.get("widthHeight")) ? ""
                                                 : m.kernelOfOne(m.layout == 'P' ? "_P_com"
                                                                 : job.unit      ? "_S_com"
                                                                                 : "_S2_com");
  };
  f.reference = both([](auto& job) { reference(job); });
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fill(job, rng, kind); });
  f.dataKinds = {0, 0, 1, 2, 3, 4, 10, 11, 12, 13, 14, 15, 16, 17, 18};
  return f;
}

const Registration registration{family()};

TEST(Results, LUDecompBlocks) {
  checkBlocks();
}

// ---- What the common suites do not reach in every run

CaseSpec spec(const Member& m, int n, int count, int kind, uint64_t seed, Spread spread = Spread::Packed) {
  CaseSpec s;
  s.id = "own";
  s.sizes = m.square(n, count);
  s.plans.assign(m.operands.size(), Plan{});
  for (Plan& plan : s.plans)
    plan.spread = spread;
  s.dataKind = kind;
  s.seed = seed;
  return s;
}

// A batch of all permutations of each side, and the failing object at every place of the first blocks.
TEST(Results, LUDecompOrdersAndFailingObjects) {
  constexpr int orders[] = {6, 24, 120, 720};
  for (const Member& m : members())
    for (int n = 3; n <= 6; ++n)
      for (Spread spread : {Spread::Packed, Spread::PaddedRows, Spread::ObjectsInside, Spread::Random}) {
        if (!m.hasCount) {
          for (uint64_t seed = 0; seed < 20; ++seed)
            ASSERT_EQ(runCase(m, spec(m, n, 1, 12 + static_cast<int>(seed % 3), seed, spread)), "");
          continue;
        }
        ASSERT_EQ(runCase(m, spec(m, n, orders[n - 3] + 1, 10, 1, spread)), "");
        for (uint64_t seed = 0; seed < 60; ++seed)
          ASSERT_EQ(
              runCase(m, spec(m, n, 1 + static_cast<int>(seed % 18), 12 + static_cast<int>(seed % 3), seed, spread)),
              "");
      }
}

// Unthreaded, the singular object of a batch at each place: the ones before it are complete, the ones behind untouched.
template <class T, class F> void failAtEachPlace(F function, int n, T pivot) {
  constexpr int most = 18;
  const auto nn = static_cast<size_t>(n * n);
  for (int count = 1; count <= most; ++count)
    for (int failing = 0; failing < count; ++failing) {
      std::vector<T> a(nn * static_cast<size_t>(count), T(0)), lu(a.size(), T(7));
      std::vector<int32_t> index(static_cast<size_t>(n * count), -5);
      for (int k = 0; k < count; ++k)
        for (int i = 0; i < n; ++i)
          a[static_cast<size_t>(k) * nn + static_cast<size_t>(i * n + n - 1 - i)] =
              k == failing && i == n / 2 ? pivot : T(1 + k);
      const int e = sizeof(T);
      ASSERT_EQ(function(a.data(), n * n * e, n * e, e, index.data(), lu.data(), n * n * e, n * e, e, n, count),
                zelStatusSingular);
      for (int k = 0; k < count; ++k)
        for (int i = 0; i < n; ++i) {
          const auto entry = static_cast<size_t>(k * n + i);
          if (k < failing) {
            ASSERT_EQ(index[entry], n - 1 - i) << n << " " << count << " " << failing;
            ASSERT_EQ(lu[static_cast<size_t>(k) * nn + static_cast<size_t>(i * n + n - 1 - i)], T(1 + k));
          } else if (k > failing) {
            ASSERT_EQ(index[entry], -5) << n << " " << count << " " << failing;
            for (int j = 0; j < n; ++j)
              ASSERT_EQ(lu[static_cast<size_t>(k) * nn + static_cast<size_t>(i * n + j)], T(7));
          }
        }
    }
}

TEST(Results, LUDecompStopsAtEachPlace) {
  for (int n = 2; n <= 7; ++n) {
    failAtEachPlace<float>(zelmLUDecomp_ma_32f, n, isFixed(n) ? 0x1.fffffep-126f : 0x1p-23f);
    failAtEachPlace<double>(zelmLUDecomp_ma_64f, n, isFixed(n) ? 0x1.fffffffffffffp-1022 : 0x1p-52);
  }
}

// A pivot at the limit and its neighbours: sides 3 to 6 accept the limit itself, all others refuse it.
template <class T, class F> void limits(F function) {
  for (int n : {1, 2, 3, 4, 5, 6, 7, 8})
    for (int step = 0; step < n; ++step)
      for (int beyond = -1; beyond <= 1; ++beyond) {
        std::vector<T> a(static_cast<size_t>(n * n), T(0)), lu = a;
        std::vector<int32_t> index(static_cast<size_t>(n));
        for (int i = 0; i < n; ++i)
          a[static_cast<size_t>(i * n + i)] = 1;
        a[static_cast<size_t>(step * n + step)] = -beside(isFixed(n) ? fixedLimit<T>() : loopLimit<T>(), beyond);
        const int e = sizeof(T);
        const bool singular = isFixed(n) ? beyond < 0 : beyond <= 0;
        EXPECT_EQ(function(a.data(), n * e, e, index.data(), lu.data(), n * e, e, n),
                  singular ? zelStatusSingular : zelStatusOk)
            << n << " " << step << " " << beyond;
      }
}

TEST(Results, LUDecompLimits) {
  limits<float>(zelmLUDecomp_m_32f);
  limits<double>(zelmLUDecomp_m_64f);
}

} // namespace
