// Eigenvalues of symmetric matrices.
#include "symmetric.h"
#include "symmetricaccuracy.h"

#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

namespace {

using namespace zelmtest;

uint32_t nearlySquares(const Sizes& s) {
  return s["widthHeight"] * (s["widthHeight"] + 1) * s["count"];
}

Family family() {
  Family f;
  f.name = "eigenvalues of symmetric matrices";
  constexpr Limits limits = {1001, 1001, 1001, 1001, 1001};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmEigenValuesSym_m), "src:m buffer:b values:e widthHeight",        {"NZS", nullptr, "NZH"}},
      {ZELMTEST_ARRAY(zelmEigenValuesSym_ma), "src:ma buffer:b values:e widthHeight count", {"NZCS", "NZCHS", "NZCHS"}, "", nearlySquares, limits, limits},
  };
  // clang-format on
  f.shape = symmetricShape;
  f.dataKinds = {11, 10, 10, 10, 10, 0, 1, 2, 3, 4};
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fillSymmetric(job, rng, kind); });
  f.reference = both([](auto& job) {
    using T = decltype(job["src"](0, 0, 0));
    SymmetricRules<T> rules;
    if (job.member().name == "zelmEigenValuesSym_ma_32f" && job.unit())
      rules.determinant = T(0x1p-52);
    symmetricReference(job, false, rules);
  });
  return f;
}

const Registration registration{family()};

// One packed matrix.
template <class T> ZelStatus valuesOf(const std::vector<T>& a, std::vector<T>& values, int n) {
  std::vector<T> buffer(a.size());
  const int e = sizeof(T);
  if constexpr (sizeof(T) == 4)
    return zelmEigenValuesSym_m_32f(a.data(), n * e, e, buffer.data(), values.data(), n);
  else
    return zelmEigenValuesSym_m_64f(a.data(), n * e, e, buffer.data(), values.data(), n);
}

template <class T> void checkNumbers() {
  std::vector<T> one(1, T(9)), two(2, T(9)), three(3, T(9));
  EXPECT_EQ(zelStatusOk, valuesOf<T>({0}, one, 1));
  EXPECT_EQ(T(0), one[0]);
  EXPECT_EQ(zelStatusOk, valuesOf<T>({2, 1, 77, 2}, two, 2)); // row 1, column 0 is not looked at
  EXPECT_EQ(T(3), two[0]);
  EXPECT_EQ(T(1), two[1]);
  EXPECT_EQ(zelStatusOk, valuesOf<T>({-1, 0, 0, -3}, two, 2)); // the trace is negative
  EXPECT_EQ(T(-3), two[0]);
  EXPECT_EQ(T(-1), two[1]);
  EXPECT_EQ(zelStatusOk, valuesOf<T>({0, 2, 2, 0}, two, 2));
  EXPECT_EQ(T(2), two[0]);
  EXPECT_EQ(T(-2), two[1]);
  two = {9, 9};
  EXPECT_EQ(zelStatusSingular, valuesOf<T>({1, 2, 2, 4}, two, 2));
  EXPECT_EQ(T(9), two[0]);
  EXPECT_EQ(T(9), two[1]);
  EXPECT_EQ(zelStatusSingular, valuesOf<T>(std::vector<T>(9, T(0)), three, 3));
  EXPECT_EQ(zelStatusOk, valuesOf<T>({1, 0, 0, 0, 1, 0, 0, 0, 1}, three, 3));
  EXPECT_EQ((std::vector<T>{1, 1, 1}), three);
  // A product below the limit fails however regular the matrix is, and leaves the values unsorted.
  const T x = static_cast<T>(sizeof(T) == 4 ? 1e-3 : 1e-6);
  EXPECT_EQ(zelStatusSingular, valuesOf<T>({x, 0, 0, 0, 2 * x, 0, 0, 0, 3 * x}, three, 3));
  EXPECT_EQ((std::vector<T>{x, 2 * x, 3 * x}), three);
  EXPECT_EQ(zelStatusNoConvergence, valuesOf<T>(std::vector<T>(9, std::numeric_limits<T>::quiet_NaN()), three, 3));
}

TEST(SymmetricNumbers, Values) {
  checkNumbers<float>();
  checkNumbers<double>();
}

// What the notes of the header say of poor results.
template <class T> void checkNotes() {
  std::vector<T> three(3), four(4);
  // A zero on the diagonal is met at the end of a block: the product is zero, the matrix is regular.
  EXPECT_EQ(zelStatusSingular, valuesOf<T>({1, 0, 0, 0, 0, 1, 0, 1, 0}, three, 3));
  for (const int i : {0, 1, 2})
    EXPECT_NEAR(i == 1 ? -1 : 1, static_cast<double>(three[static_cast<size_t>(i)]), 1e-6);
  // A closing step is left out, and the values are wrong.
  EXPECT_EQ(zelStatusOk, valuesOf<T>({2, -1, 0, 0, -1, 2, -1, 0, 0, -1, 2, -1, 0, 0, -1, 2}, four, 4));
  const double wrong[] = {3.751, 2.498, 1.370, 0.381};
  for (int i = 0; i < 4; ++i)
    EXPECT_NEAR(wrong[i], static_cast<double>(four[static_cast<size_t>(i)]), 5e-4);
}

TEST(SymmetricNumbers, Notes) {
  checkNotes<float>();
  checkNotes<double>();
  std::vector<double> three(3);
  EXPECT_EQ(zelStatusOk, valuesOf<double>({1, 1, 1, 1, 1, 1, 1, 1, 0}, three, 3));
  EXPECT_NEAR(0, three[1], 1e-15);
}

// The contiguous 32f array kernel takes determinants that its siblings do not.
TEST(SymmetricNumbers, DeterminantOfPairs) {
  const float a[2][2] = {{0x1p-15f, 0}, {0, 0x1p-15f}};
  const float wide[2][2][2] = {{{0x1p-15f, 0}, {0, 0}}, {{0, 0}, {0x1p-15f, 0}}};
  const float* const list[] = {&a[0][0]};
  const float* const positions[] = {&a[0][0], &a[0][1], &a[1][0], &a[1][1]};
  float buffer[4], values[2] = {9, 9};
  EXPECT_EQ(zelStatusSingular, zelmEigenValuesSym_m_32f(&a[0][0], 8, 4, buffer, values, 2));
  EXPECT_EQ(zelStatusSingular, zelmEigenValuesSym_ma_32f(&wide[0][0][0], 32, 16, 8, buffer, values, 2, 1));
  EXPECT_EQ(zelStatusSingular, zelmEigenValuesSym_ma_32f_L(list, 0, 8, 4, buffer, values, 2, 1));
  EXPECT_EQ(zelStatusSingular, zelmEigenValuesSym_ma_32f_P(positions, 0, 4, buffer, values, 2, 1));
  EXPECT_EQ(9.0f, values[0]);
  EXPECT_EQ(zelStatusOk, zelmEigenValuesSym_ma_32f(&a[0][0], 16, 8, 4, buffer, values, 2, 1));
  EXPECT_EQ(0x1p-15f, values[0]);
}

ZelStatus valuesOfArray(const float* a, float*, float* values, int n, int count) {
  std::vector<float> buffer(static_cast<size_t>(n * n));
  return zelmEigenValuesSym_ma_32f(a, n * n * 4, n * 4, 4, buffer.data(), values, n, count);
}
ZelStatus valuesOfArray(const double* a, double*, double* values, int n, int count) {
  std::vector<double> buffer(static_cast<size_t>(n * n));
  return zelmEigenValuesSym_ma_64f(a, n * n * 8, n * 8, 8, buffer.data(), values, n, count);
}

TEST(SymmetricAccuracy, Values) {
  const auto solve = [](auto... a) { return valuesOfArray(a...); };
  checkSymmetric<float>(solve);
  checkSymmetric<double>(solve);
  checkSweeps(solve);
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmEigenValuesSym_ma_32f", entered("zelmEigenValuesSym_ma_32f", 3, 83)); // 996
  EXPECT_EQ("ownOMP_zelmEigenValuesSym_ma_32f", entered("zelmEigenValuesSym_ma_32f", 3, 84));
  EXPECT_EQ("ownzelmEigenValuesSym_ma_64f_P", entered("zelmEigenValuesSym_ma_64f_P", 4, 50)); // 1000
  EXPECT_EQ("ownOMP_zelmEigenValuesSym_ma_64f_P", entered("zelmEigenValuesSym_ma_64f_P", 4, 51));
  EXPECT_EQ("ownzelmEigenValuesSym_ma_64f_LS2", entered("zelmEigenValuesSym_ma_64f_L", 3, 83, "srcStride2", 16));
}

} // namespace
