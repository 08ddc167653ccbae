// Eigenvalues and eigenvectors of symmetric matrices.
#include "symmetric.h"
#include "symmetricaccuracy.h"

#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

namespace {

using namespace zelmtest;

uint32_t twiceSquares(const Sizes& s) {
  const uint32_t n = s["widthHeight"];
  return ((n + n) * n + n) * s["count"];
}

template <class T> SymmetricRules<T> rulesOf(const Member& m, bool unit) {
  SymmetricRules<T> rules;
  rules.testsFirst = m.hasCount;
  rules.wideProduct = m.hasCount && m.elem == 4;
  if (m.hasCount && m.elem == 8)
    rules.product = T(0x1p-23);
  if (m.name == "zelmEigenValuesVectorsSym_ma_32f_L" && unit)
    rules.reduction = T(0x1p-52);
  return rules;
}

Family family() {
  Family f;
  f.name = "eigenvectors of symmetric matrices";
  constexpr Limits limits = {700, 700, 700, 700, 700};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmEigenValuesVectorsSym_m), "src:m buffer:b vectors:m values:e widthHeight",         {"NZS", nullptr, "NZH"}},
      {ZELMTEST_ARRAY(zelmEigenValuesVectorsSym_ma), "src:ma buffer:b vectors:ma values:e widthHeight count", {"NZCS", "NZChsHS", "NZChsHS"}, "", twiceSquares, limits, limits},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.shape = symmetricShape;
  f.dataKinds = {11, 10, 10, 10, 10, 0, 1, 2, 3, 4};
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fillSymmetric(job, rng, kind); });
  f.reference = both([](auto& job) {
    using T = decltype(job["src"](0, 0, 0));
    symmetricReference(job, true, rulesOf<T>(job.member(), job.unit()));
  });
  return f;
}

const Registration registration{family()};

template <class T> struct Solution {
  ZelStatus status;
  std::vector<T> values, vectors;
};

// One packed matrix, alone or as an array of one.
template <class T> Solution<T> solve(const std::vector<T>& a, int n, bool array) {
  std::vector<T> buffer(a.size());
  Solution<T> x{0, std::vector<T>(static_cast<size_t>(n), T(9)), std::vector<T>(a.size(), T(9))};
  const int e = sizeof(T), row = n * e, object = n * row;
  T *const b = buffer.data(), *const v = x.vectors.data(), *const w = x.values.data();
  if constexpr (sizeof(T) == 4)
    x.status = array ? zelmEigenValuesVectorsSym_ma_32f(a.data(), object, row, e, b, v, object, row, e, w, n, 1)
                     : zelmEigenValuesVectorsSym_m_32f(a.data(), row, e, b, v, row, e, w, n);
  else
    x.status = array ? zelmEigenValuesVectorsSym_ma_64f(a.data(), object, row, e, b, v, object, row, e, w, n, 1)
                     : zelmEigenValuesVectorsSym_m_64f(a.data(), row, e, b, v, row, e, w, n);
  return x;
}

template <class T>
void expectSolution(const Solution<T>& x, ZelStatus status, const std::vector<T>& values,
                    const std::vector<T>& vectors) {
  EXPECT_EQ(status, x.status);
  EXPECT_EQ(values, x.values);
  EXPECT_EQ(vectors, x.vectors);
}

template <class T> void checkNumbers() {
  using V = std::vector<T>;
  for (bool array : {false, true}) {
    expectSolution<T>(solve<T>({0}, 1, array), zelStatusOk, {0}, {1});
    // Diagonal, descending: p and q are minus 1 and 0 exchanged.
    expectSolution<T>(solve<T>({3, 0, 0, 1}, 2, array), zelStatusOk, {3, 1}, {-1, 0, 0, -1});
    expectSolution<T>(solve<T>({1, 0, 0, 3}, 2, array), zelStatusOk, {3, 1}, {0, -1, 1, 0});
    // A negative trace: ascending.
    expectSolution<T>(solve<T>({-1, 0, 0, -3}, 2, array), zelStatusOk, {-3, -1}, {0, -1, 1, 0});
    expectSolution<T>(solve<T>({1, 2, 2, 4}, 2, array), zelStatusSingular, {9, 9}, {9, 9, 9, 9});
    const V unit = {1, 0, 0, 0, 1, 0, 0, 0, 1};
    expectSolution<T>(solve<T>(unit, 3, array), zelStatusOk, {1, 1, 1}, unit);
    expectSolution<T>(solve<T>(V(9, T(0)), 3, array), zelStatusSingular, {0, 0, 0}, unit);
    expectSolution<T>(solve<T>({2, 0, 0, 0, 1, 0, 0, 0, 3}, 3, array), zelStatusOk, {3, 2, 1},
                      {0, 1, 0, 0, 0, 1, 1, 0, 0});
    EXPECT_EQ(zelStatusNoConvergence, solve<T>(V(9, std::numeric_limits<T>::quiet_NaN()), 3, array).status);
  }
  // Singular: sorted where the matrix is alone, unsorted in an array.
  const V flat = {0, 0, 0, 0, 1, 0, 0, 0, 2};
  expectSolution<T>(solve<T>(flat, 3, false), zelStatusSingular, {2, 1, 0}, {0, 0, 1, 0, 1, 0, 1, 0, 0});
  expectSolution<T>(solve<T>(flat, 3, true), zelStatusSingular, {0, 1, 2}, {1, 0, 0, 0, 1, 0, 0, 0, 1});
}

TEST(SymmetricNumbers, Vectors) {
  checkNumbers<float>();
  checkNumbers<double>();
}

// Arrays of doubles have the single precision limit of the eigenvalues' product.
TEST(SymmetricNumbers, ProductOfArrays) {
  const std::vector<double> a = {1e-3, 0, 0, 0, 1e-3, 0, 0, 0, 1e-3};
  EXPECT_EQ(zelStatusOk, solve<double>(a, 3, false).status);
  EXPECT_EQ(zelStatusSingular, solve<double>(a, 3, true).status);
  // Arrays of floats form it in double: in single precision it underflows on the way.
  const std::vector<float> small = {0x1p-80f, 0, 0, 0, 0, 0x1p-80f, 0, 0, 0, 0, 0x1p100f, 0, 0, 0, 0, 0x1p100f};
  EXPECT_EQ(zelStatusSingular, solve<float>(small, 4, false).status);
  EXPECT_EQ(zelStatusOk, solve<float>(small, 4, true).status);
}

// What the notes of the header say of poor results.
TEST(SymmetricNumbers, VectorsOfNotes) {
  // A closing step is left out: the second value is 2.618 else.
  const auto wrong = solve<double>({2, -1, 0, 0, -1, 2, -1, 0, 0, -1, 2, -1, 0, 0, -1, 2}, 4, false);
  EXPECT_EQ(zelStatusOk, wrong.status);
  EXPECT_NEAR(2.630, wrong.values[1], 5e-4);
  // The first column is taken as tridiagonal: the second value is 2.836491 else.
  EXPECT_NEAR(2.836596, static_cast<double>(solve<float>({5, 1, 3e-4f, 1, 3, 0.5f, 3e-4f, 0.5f, 2}, 3, true).values[1]),
              2e-6);
}

ZelStatus solveArray(const float* a, float* v, float* values, int n, int count) {
  std::vector<float> buffer(static_cast<size_t>(n * n));
  const int row = n * 4, object = n * row;
  return zelmEigenValuesVectorsSym_ma_32f(a, object, row, 4, buffer.data(), v, object, row, 4, values, n, count);
}
ZelStatus solveArray(const double* a, double* v, double* values, int n, int count) {
  std::vector<double> buffer(static_cast<size_t>(n * n));
  const int row = n * 8, object = n * row;
  return zelmEigenValuesVectorsSym_ma_64f(a, object, row, 8, buffer.data(), v, object, row, 8, values, n, count);
}

TEST(SymmetricAccuracy, Vectors) {
  const auto solve = [](auto... a) { return solveArray(a...); };
  checkSymmetric<float>(solve);
  checkSymmetric<double>(solve);
  checkSweeps(solve);
}

// Each stride2 alone sends the call to the kernel for any strides.
TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  const char* const name = "zelmEigenValuesVectorsSym_ma_32f";
  EXPECT_EQ("ownzelmEigenValuesVectorsSym_ma_32f", entered(name, 3, 33)); // 693
  EXPECT_EQ("ownOMP_zelmEigenValuesVectorsSym_ma_32f", entered(name, 3, 34));
  EXPECT_EQ("ownzelmEigenValuesVectorsSym_ma_32f_S2", entered(name, 3, 33, "srcStride2", 8));
  EXPECT_EQ("ownzelmEigenValuesVectorsSym_ma_32f_S2", entered(name, 3, 33, "vectorsStride2", 8));
  EXPECT_EQ("ownzelmEigenValuesVectorsSym_ma_64f_LS2",
            entered("zelmEigenValuesVectorsSym_ma_64f_L", 3, 33, "vectorsStride2", 16));
  EXPECT_EQ("ownzelmEigenValuesVectorsSym_m_64f_S2",
            entered("zelmEigenValuesVectorsSym_m_64f", 3, 1, "vectorsStride2", 16));
}

} // namespace
