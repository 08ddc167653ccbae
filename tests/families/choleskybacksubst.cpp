// Solution of systems with a Cholesky factor.
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
    auto src1 = job["src1"];
    using T = decltype(src1(0, 0, 0));
    const int n = job.size("widthHeight");
    for (int k = 0; kind == 0 && k < (job.member().name.find("mava") != std::string::npos ? job.count() : 1); ++k)
      for (int i = 0; i < n; ++i)
        for (int j = 0; j < n; ++j)
          src1.set(k, i, j,
                   j > i    ? std::numeric_limits<T>::quiet_NaN()
                   : i == j ? T(0.5) + T(rng.below(1000)) / T(1001)
                            : T(rng.below(2001) - 1000) / T(1003 * n));
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

// Systems A x = b solved by decomposition and back substitution, judged by their backward error
// max|b - A x| / (max row sum of |A| * max|x| + max|b|), in units of the type's epsilon.
template <class T, class Decompose, class Solve>
double backwardError(int n, const std::vector<double>& matrices, int count, Decompose decompose, Solve solve) {
  const auto size = static_cast<size_t>(n * n);
  std::vector<T> a(matrices.begin(), matrices.end()), factor(a.size()), b(static_cast<size_t>(n * count)), x(b.size());
  for (size_t i = 0; i < b.size(); ++i)
    b[i] = T(1) / static_cast<T>(i % 7 + 1) - T(0.3);
  EXPECT_EQ(decompose(a.data(), factor.data(), n, count), zelStatusOk);
  EXPECT_EQ(solve(factor.data(), b.data(), x.data(), n, count), zelStatusOk);
  double worst = 0;
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
      residual = std::max(residual, std::fabs(r));
      norm = std::max(norm, sum);
      xs = std::max(xs, std::fabs(static_cast<long double>(xk[i])));
      bs = std::max(bs, std::fabs(static_cast<long double>(bk[i])));
    }
    worst = std::max(worst, static_cast<double>(residual / (norm * xs + bs)));
  }
  return worst / static_cast<double>(std::numeric_limits<T>::epsilon());
}

double error32(int n, const std::vector<double>& a, int count) {
  return backwardError<float>(
      n, a, count,
      [](const float* s, float* d, int m, int c) {
        return zelmCholeskyDecomp_ma_32f(s, 4 * m * m, 4 * m, 4, d, 4 * m * m, 4 * m, 4, m, c);
      },
      [](const float* s, const float* b, float* x, int m, int c) {
        return zelmCholeskyBackSubst_mava_32f(s, 4 * m * m, 4 * m, 4, b, 4 * m, 4, x, 4 * m, 4, m, c);
      });
}
double error64(int n, const std::vector<double>& a, int count) {
  return backwardError<double>(
      n, a, count,
      [](const double* s, double* d, int m, int c) {
        return zelmCholeskyDecomp_ma_64f(s, 8 * m * m, 8 * m, 8, d, 8 * m * m, 8 * m, 8, m, c);
      },
      [](const double* s, const double* b, double* x, int m, int c) {
        return zelmCholeskyBackSubst_mava_64f(s, 8 * m * m, 8 * m, 8, b, 8 * m, 8, x, 8 * m, 8, m, c);
      });
}

// Positive definite with eigenvalues from 1 down to 1 / condition: a product of reflections around a diagonal.
std::vector<double> definite(int n, int count, double condition) {
  Rng rng(static_cast<uint64_t>(n));
  std::vector<double> all;
  for (int k = 0; k < count; ++k) {
    std::vector<double> a(static_cast<size_t>(n * n), 0.0), v(static_cast<size_t>(n));
    auto at = [&](int i, int j) -> double& { return a[static_cast<size_t>(i * n + j)]; };
    for (int i = 0; i < n; ++i)
      at(i, i) = std::pow(condition, n == 1 ? 0.0 : -static_cast<double>(i) / (n - 1));
    for (int turn = 0; turn < 3; ++turn) {
      double w = 0;
      for (double& x : v) {
        x = static_cast<double>(rng.below(2001) - 1000) + 0.5;
        w += x * x;
      }
      for (bool columns : {false, true})
        for (int i = 0; i < n; ++i) {
          double s = 0;
          for (int j = 0; j < n; ++j)
            s += (columns ? at(j, i) : at(i, j)) * v[static_cast<size_t>(j)];
          for (int j = 0; j < n; ++j)
            (columns ? at(j, i) : at(i, j)) -= 2 * s / w * v[static_cast<size_t>(j)];
        }
    }
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < i; ++j)
        at(i, j) = at(j, i);
    all.insert(all.end(), a.begin(), a.end());
  }
  return all;
}

TEST(CholeskyResidual, RandomSystems) {
  for (int n : {1, 2, 3, 4, 5, 6, 7, 12, 20}) {
    const std::vector<double> a = definite(n, 200, 1e4);
    EXPECT_LT(error32(n, a, 200), 4) << n;
    EXPECT_LT(error64(n, a, 200), 4) << n;
  }
}

TEST(CholeskyResidual, HilbertMatrices) {
  for (int n = 2; n <= 10; ++n) {
    std::vector<double> a;
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        a.push_back(1.0 / (i + j + 1));
    EXPECT_LT(error64(n, a, 1), 4) << n;
    if (n <= 5) { // beyond, a matrix rounded to single is not definite any more
      EXPECT_LT(error32(n, a, 1), 4) << n;
    }
  }
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmCholeskyBackSubst_mava_64f_P", entered("zelmCholeskyBackSubst_mava_64f_P", 3, 136)); // 2040
  EXPECT_EQ("ownOMP_zelmCholeskyBackSubst_mava_64f_P", entered("zelmCholeskyBackSubst_mava_64f_P", 3, 137));
  EXPECT_EQ("ownOMP_zelmCholeskyBackSubst_mava_32f_P", entered("zelmCholeskyBackSubst_mava_32f_P", 3, 136));
}

} // namespace
