// Eigenvalues of general matrices.
#include "francis.h"

#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

namespace {

using namespace zelmtest;

uint32_t work(const Sizes& s) {
  return s["widthHeight"] * (s["widthHeight"] + 1) * s["count"];
}

Family family() {
  Family f;
  f.name = "General eigenvalues";
  constexpr Limits limits = {251, 251, 251, 251, 251};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmEigenValues_m), "src:m valuesRe:e valuesIm:e widthHeight buffer:y",         {"NZS", nullptr, "NZH"}},
      {ZELMTEST_ARRAY(zelmEigenValues_ma), "src:ma valuesRe:e valuesIm:e widthHeight count buffer:y",  {"NZCS", "NZCHS", "NZCHS"}, "", work, limits, limits},
  };
  // clang-format on
  for (const Form& form : f.forms) // no kernels of their own for any strides
    for (const Function& function : form.functions)
      f.exceptions[function.name] = [](Member& m) { m.kernelAny = m.kernelUnit; };
  f.shape = [](const Member& m, const std::string& operand, const Sizes& s) {
    const int n = s.get("widthHeight");
    return operand == "buffer" ? Shape{1, n * (n + 5) * m.elem} : Shape{0, 0};
  };
  f.shapes = [](const Member& m) {
    std::vector<Sizes> all;
    for (int n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 13, 17})
      all.push_back(m.square(n, 1));
    return all;
  };
  f.dataKinds = {10, 0, 10, 10, 11, 12, 1, 2, 3, 4};
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fillHard(job, rng, kind); });
  f.reference = both([](auto& job) {
    auto src = job["src"], re = job["valuesRe"], im = job["valuesIm"];
    using T = decltype(src(0, 0, 0));
    const int n = job.size("widthHeight");
    for (int k = 0; k < job.count(); ++k) {
      const Francis<T> francis(n, Deflation::Absolute, [&](int i, int j) { return src(k, i, j); });
      job.status(k) = francis.status;
      for (int i = francis.known; i < n; ++i) {
        re.set(k, i, francis.re[static_cast<size_t>(i)]);
        im.set(k, i, francis.im[static_cast<size_t>(i)]);
      }
    }
  });
  return f;
}

const Registration registration{family()};

template <class T> ZelStatus values(const std::vector<T>& src, int n, std::vector<T>& re, std::vector<T>& im) {
  std::vector<T> buffer(static_cast<size_t>(n * (n + 5)));
  re.assign(static_cast<size_t>(n), T(-77));
  im.assign(static_cast<size_t>(n), T(-77));
  if constexpr (sizeof(T) == 4)
    return zelmEigenValues_m_32f(src.data(), 4 * n, 4, re.data(), im.data(), n, buffer.data());
  else
    return zelmEigenValues_m_64f(src.data(), 8 * n, 8, re.data(), im.data(), n, buffer.data());
}

TEST(EigenValuesNumbers, SmallMatrices) {
  std::vector<double> re, im;
  using Run = std::vector<double>;
  ASSERT_EQ(values({-0.0}, 1, re, im), zelStatusOk);
  EXPECT_TRUE(re[0] == 0 && std::signbit(re[0]) && im[0] == 0 && !std::signbit(im[0]));
  ASSERT_EQ(values({0, -1, 1, 0}, 2, re, im), zelStatusOk); // a right angle
  EXPECT_EQ(re, Run({0, 0}));
  EXPECT_EQ(im, Run({1, -1}));
  ASSERT_EQ(values({1, 4, 4, 1}, 2, re, im), zelStatusOk); // really 5 and -3
  EXPECT_EQ(re, Run({1, 1}));
  EXPECT_EQ(im, Run({4, -4}));
  ASSERT_EQ(values({5, 0, 0, 1, 7, 0, 1, 1, 3}, 3, re, im), zelStatusOk);
  EXPECT_EQ(re, Run({5, 7, 3}));
  EXPECT_EQ(im, Run({0, 0, 0}));
  // The cyclic exchange of three axes: the shifts find its corners only after the exceptional one.
  ASSERT_EQ(values({0, 1, 0, 0, 0, 1, 1, 0, 0}, 3, re, im), zelStatusOk);
  double sumRe = 0, largest = 0;
  for (int i = 0; i < 3; ++i) {
    sumRe += re[static_cast<size_t>(i)];
    largest = std::max(largest, std::fabs(std::hypot(re[static_cast<size_t>(i)], im[static_cast<size_t>(i)]) - 1));
  }
  EXPECT_NEAR(sumRe, 0, 1e-14);
  EXPECT_LT(largest, 1e-14);
}

// Elements below the diagonal of at most 2^-23 are dropped, whatever stands beside them.
TEST(EigenValuesNumbers, AbsoluteDeflation) {
  std::vector<float> re, im;
  const float at = 0x1p-23F, beyond = 0x1.000002p-23F;
  // M is the transpose: its subdiagonal is above the diagonal here.
  ASSERT_EQ(values<float>({1e-8F, at, 1e-8F, 2e-8F}, 2, re, im), zelStatusOk);
  EXPECT_EQ(re, std::vector<float>({1e-8F, 2e-8F}));
  ASSERT_EQ(values<float>({1e-8F, beyond, 1e-8F, 2e-8F}, 2, re, im), zelStatusOk);
  EXPECT_NE(re, std::vector<float>({1e-8F, 2e-8F}));
}

// What is known when the sweeps run out stays, and nothing else is written.
TEST(EigenValuesFailure, KnownValues) {
  const float nan = std::numeric_limits<float>::quiet_NaN();
  std::vector<float> re, im;
  // The last value is separate from the start; the rest never comes.
  ASSERT_EQ(values<float>({1, 2, nan, 0, 3, 1, 5, 0, 4, 1, 2, 0, 9, 9, 9, 6}, 4, re, im), zelStatusNoConvergence);
  EXPECT_EQ(re, std::vector<float>({-77, -77, -77, 6}));
  EXPECT_EQ(im, std::vector<float>({-77, -77, -77, 0}));
}

TEST(EigenValuesBufSize, Numbers) {
  int32_t size = -5;
  EXPECT_EQ(zelmEigenValuesGetBufSize_32f(0, nullptr), zelStatusNullPointer);
  EXPECT_EQ(zelmEigenValuesGetBufSize_64f(0, nullptr), zelStatusNullPointer);
  EXPECT_EQ(zelmEigenValuesVectorsGetBufSize_32f(-1, nullptr), zelStatusNullPointer);
  EXPECT_EQ(zelmEigenValuesVectorsGetBufSize_64f(3, nullptr), zelStatusNullPointer);
  for (int32_t bad : {0, -1, std::numeric_limits<int32_t>::min()}) {
    EXPECT_EQ(zelmEigenValuesGetBufSize_32f(bad, &size), zelStatusBadSize);
    EXPECT_EQ(zelmEigenValuesGetBufSize_64f(bad, &size), zelStatusBadSize);
    EXPECT_EQ(zelmEigenValuesVectorsGetBufSize_32f(bad, &size), zelStatusBadSize);
    EXPECT_EQ(zelmEigenValuesVectorsGetBufSize_64f(bad, &size), zelStatusBadSize);
    EXPECT_EQ(size, -5);
  }
  for (int32_t n : {1, 2, 3, 4, 5, 6, 8, 100, 13377, 30000, 46341, 65536, std::numeric_limits<int32_t>::max()}) {
    const auto u = static_cast<uint32_t>(n);
    auto check = [&](ZelStatus (*query)(int32_t, int32_t*), uint32_t expected) {
      ASSERT_EQ(query(n, &size), zelStatusOk);
      EXPECT_EQ(static_cast<uint32_t>(size), expected) << n;
    };
    check(zelmEigenValuesGetBufSize_32f, u * (u + 5) * 4);
    check(zelmEigenValuesGetBufSize_64f, u * (u + 5) * 8);
    check(zelmEigenValuesVectorsGetBufSize_32f, u * (3 * u + 5) * 4);
    check(zelmEigenValuesVectorsGetBufSize_64f, u * (3 * u + 5) * 8);
  }
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmEigenValues_ma_32f", entered("zelmEigenValues_ma_32f", 5, 8)); // 240
  EXPECT_EQ("ownOMP_zelmEigenValues_ma_32f", entered("zelmEigenValues_ma_32f", 5, 9));
  EXPECT_EQ("ownzelmEigenValues_ma_64f_P", entered("zelmEigenValues_ma_64f_P", 1, 125)); // 250
  EXPECT_EQ("ownOMP_zelmEigenValues_ma_64f_P", entered("zelmEigenValues_ma_64f_P", 1, 126));
}

// The data of these tests reach every branch of the stages.
template <class T> void reachesAllBranches(Deflation deflation) {
  using F = Francis<T>;
  Rng rng(3);
  bool taken[F::BranchCount] = {};
  for (int round = 0; round < 20000; ++round) {
    const int n = rng.within(1, 9);
    std::vector<T> a(static_cast<size_t>(n * n));
    hardMatrix<T>(round % hardKinds, n, rng, [&](int i, int j, T value) { a[static_cast<size_t>(i * n + j)] = value; });
    const F francis(n, deflation, [&](int i, int j) { return a[static_cast<size_t>(i * n + j)]; });
    for (int b = 0; b < F::BranchCount; ++b)
      taken[b] = taken[b] || francis.taken[b];
  }
  // A block of two is met right after its subdiagonal element was found to be more than negligible, which is more than
  // tiny: what a value leaves of the budget is at least one search for the next.
  for (int b = 0; b < F::BranchCount; ++b)
    EXPECT_TRUE(taken[b] || b == F::SmallC || (b == F::ColumnSum && deflation == Deflation::Absolute)) << b;
}
TEST(EigenValuesData, ReachesAllBranches) {
  reachesAllBranches<float>(Deflation::Absolute);
  reachesAllBranches<double>(Deflation::Absolute);
  reachesAllBranches<float>(Deflation::Relative);
  reachesAllBranches<double>(Deflation::Relative);
  reachesAllBranches<double>(Deflation::RelativeSingleShifts);
}

} // namespace
