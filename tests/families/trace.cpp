// Traces.
#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace zelmtest;

Family family() {
  Family f;
  f.name = "Trace";
  const auto estimate = [](const Sizes& s) { return s["widthHeight"] * s["count"]; };
  constexpr Limits limits = {3601, 3601, 3601, 3601, 3601};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmTrace_m), "src:m widthHeight dst:r",        {"NZS", nullptr, "NZH"}},
      {ZELMTEST_ARRAY(zelmTrace_ma), "src:ma widthHeight dst:r count", {"NCZS", "NCZSH", "NCZSH"}, "", estimate, limits, limits},
  };
  // clang-format on
  f.reference = both([](auto& job) {
    auto src = job["src"], dst = job["dst"];
    using T = decltype(src(0, 0, 0));
    const int n = job.size("widthHeight");
    for (int k = 0; k < job.count(); ++k) {
      // Sides 3 to 6 start with the first two elements, so that a negative zero may come out; all others with +0.
      const bool fromZero = n < 3 || n > 6;
      T sum = fromZero ? T(0) : src(k, 0, 0);
      for (int i = fromZero ? 0 : 1; i < n; ++i)
        sum = sum + src(k, i, i);
      dst.set(k, 0, sum);
    }
  });
  return f;
}

const Registration registration{family()};

TEST(Trace, SignOfZero) {
  for (int n = 1; n <= 8; ++n) {
    const std::vector<double> a(static_cast<size_t>(n * n), -0.0);
    double trace = 7;
    ASSERT_EQ(zelmTrace_m_64f(a.data(), n * 8, 8, n, &trace), zelStatusOk);
    EXPECT_EQ(trace, 0);
    EXPECT_EQ(std::signbit(trace), n >= 3 && n <= 6) << n;
  }
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmTrace_ma_32f", entered("zelmTrace_ma_32f", 6, 600)); // 3600
  EXPECT_EQ("ownOMP_zelmTrace_ma_32f", entered("zelmTrace_ma_32f", 6, 601));
}

} // namespace
