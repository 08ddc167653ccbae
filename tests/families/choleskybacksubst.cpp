// Solution of systems with a Cholesky factor.
#include "blocks.h"
#include "systems.h"
#include "triangle.h"

#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace zelmtest;

uint32_t oneFactor(const Sizes& s) {
  return (2 * s["count"] + s["widthHeight"]) * s["widthHeight"];
}
uint32_t factorEach(const Sizes& s) {
  return (s["widthHeight"] + 2) * s["widthHeight"] * s["count"];
}

Family family() {
  Family f;
  f.name = "Cholesky back substitution";
  constexpr Orders array = {"NCZS", "NCZSH", "NCZSH"};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmCholeskyBackSubst_mv),  "src1:m src2:v dst:v widthHeight",           {"NZS", nullptr, "NZH"}, "src2"},
      // The list layout tests size and count last.
      {ZELMTEST_ARRAY(zelmCholeskyBackSubst_mva),  "src1:m src2:va dst:va widthHeight count",   {"NCZS", "NSHZC", "NCZSH"}, "src2", oneFactor,
       {1201, 1201, 721, 721, 721}, {721, 721, 721, 721, 721}},
      {ZELMTEST_ARRAY(zelmCholeskyBackSubst_mava), "src1:ma src2:va dst:va widthHeight count",  array, "src2", factorEach,
       {2051, 1701, 1701, 1701, 1701}, {1701, 1701, 1701, 1701, 2051}},
  };
  // clang-format on
  f.shape = [](const Member&, const std::string& operand, const Sizes& s) {
    const int n = s.get("widthHeight");
    return operand == "src1" ? Shape{n, n} : Shape{1, n};
  };
  // Factors as a decomposition leaves them, so that large systems stay finite.
  f.fill = bothFill([](auto& job, Rng& rng, int kind) {
    auto src1 = job["src1"], src2 = job["src2"];
    using T = decltype(src1(0, 0, 0));
    const int n = job.size("widthHeight");
    const bool asItIs = kind != 0 && rng.chance(16);
    for (int k = 0; !asItIs && k < (job.member().formName == "mava" ? job.count() : 1); ++k)
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
          src1.set(k, i, j,
                   j > i       ? std::numeric_limits<T>::quiet_NaN()
                   : kind != 0 ? moderate(src1(k, i, j), false, rng)
                   : i == j    ? T(0.5) + T(rng.below(1000)) / T(1001)
                               : T(rng.below(2001) - 1000) / T(1003 * n));
    for (int k = 0; !asItIs && k < job.count(); ++k)
      for (int i = 0; i < n; ++i)
        src2.set(k, i, moderate(src2(k, i), false, rng));
  });
  f.reference = both([](auto& job) {
    auto src1 = job["src1"], src2 = job["src2"], dst = job["dst"];
    using T = decltype(src1(0, 0, 0));
    const int n = job.size("widthHeight");
    for (int k = 0; k < job.count(); ++k) {
      for (int i = 0; i < n; ++i) {
        T y = src2(k, i);
        for (int j = 0; j < i; ++j)
          y = y - src1(k, i, j) * dst(k, j);
        dst.set(k, i, y * src1(k, i, i));
      }
      for (int i = n - 1; i >= 0; --i) {
        T x = dst(k, i);
        for (int j = n - 1; j > i; --j)
          x = x - src1(k, j, i) * dst(k, j);
        dst.set(k, i, x * src1(k, i, i));
      }
    }
  });
  return f;
}

const Registration registration{family()};

TEST(Results, CholeskyBackSubstBlocks) {
  checkBlocks();
}

TEST(Results, CholeskyBackSubstDataAreNumbers) {
  expectNumbers<float>(member("zelmCholeskyBackSubst_mava_32f"));
  expectNumbers<double>(member("zelmCholeskyBackSubst_mava_64f"));
}

const auto decompose32 = [](const float* s, float* d, int n, int count) {
  return zelmCholeskyDecomp_ma_32f(s, 4 * n * n, 4 * n, 4, d, 4 * n * n, 4 * n, 4, n, count);
};
const auto decompose64 = [](const double* s, double* d, int n, int count) {
  return zelmCholeskyDecomp_ma_64f(s, 8 * n * n, 8 * n, 8, d, 8 * n * n, 8 * n, 8, n, count);
};
const auto solve32 = [](const float* s, const float* b, float* x, int n, int count) {
  return zelmCholeskyBackSubst_mava_32f(s, 4 * n * n, 4 * n, 4, b, 4 * n, 4, x, 4 * n, 4, n, count);
};
const auto solve64 = [](const double* s, const double* b, double* x, int n, int count) {
  return zelmCholeskyBackSubst_mava_64f(s, 8 * n * n, 8 * n, 8, b, 8 * n, 8, x, 8 * n, 8, n, count);
};

void expectSolved32(int n, const std::vector<double>& a, int count) {
  const Outcome outcome = solveBatch<float>(n, a, count, decompose32, solve32);
  EXPECT_EQ(outcome.status, zelStatusOk) << n;
  EXPECT_LT(outcome.error, 4) << n;
}
void expectSolved64(int n, const std::vector<double>& a, int count) {
  const Outcome outcome = solveBatch<double>(n, a, count, decompose64, solve64);
  EXPECT_EQ(outcome.status, zelStatusOk) << n;
  EXPECT_LT(outcome.error, 4) << n;
}

TEST(CholeskyResidual, Kinds) {
  const auto kinds = {
      Kind::Diagonal, Kind::Random, Kind::FirstColumnZero, Kind::LastColumnZero, Kind::HalfOfColumnsZero,
      Kind::Ill,      Kind::Worse,  Kind::Little,          Kind::Great};
  const auto expected = [](Kind kind, int) { return hasZeros(kind) ? zelStatusNotPositiveDefinite : zelStatusOk; };
  checkKinds<float>(kinds, true, {1, 0x1p-100, 0x1p100}, decompose32, solve32, expected);
  checkKinds<double>(kinds, true, {1, 0x1p-900, 0x1p900}, decompose64, solve64, expected);
}

TEST(CholeskyResidual, RandomSystems) {
  for (int n : {1, 2, 3, 4, 5, 6, 7, 12, 20}) {
    Rng rng(static_cast<uint64_t>(n));
    std::vector<double> all;
    for (int k = 0; k < 200; ++k) {
      const std::vector<double> a = conditioned(n, 1e4, rng, true);
      all.insert(all.end(), a.begin(), a.end());
    }
    expectSolved32(n, all, 200);
    expectSolved64(n, all, 200);
  }
}

TEST(CholeskyResidual, HilbertMatrices) {
  for (int n = 2; n <= 10; ++n) {
    std::vector<double> a;
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        a.push_back(1.0 / (i + j + 1));
    expectSolved64(n, a, 1);
    if (n <= 5) { // beyond, a matrix rounded to single is not definite any more
      expectSolved32(n, a, 1);
    }
  }
}

TEST(CholeskyTriangle, UpperElementsAreNotTouched) {
  checkUpperUntouched();
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmCholeskyBackSubst_mava_64f_P", entered("zelmCholeskyBackSubst_mava_64f_P", 3, 136)); // 2040
  EXPECT_EQ("ownOMP_zelmCholeskyBackSubst_mava_64f_P", entered("zelmCholeskyBackSubst_mava_64f_P", 3, 137));
  EXPECT_EQ("ownOMP_zelmCholeskyBackSubst_mava_32f_P", entered("zelmCholeskyBackSubst_mava_32f_P", 3, 136));
}

} // namespace
