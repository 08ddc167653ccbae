// The homogeneous transform of points.
#include "huge.h"

#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <cmath>
#include <cstring>
#include <limits>

namespace {

using namespace zelmtest;

constexpr float infinity = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr double limit = 1.1754943508222875e-38;
constexpr float large = 3.4028235e38f;

uint32_t work(const Sizes& s) {
  return 6 * s["count"] + 16;
}

// One point; true if it could be divided.
template <class Matrix> bool transform(const Matrix& a, const float* x, float* result) {
  float y[4];
  for (int r = 0; r < 4; ++r) {
    float sum = a(r, 0) * x[0];
    sum = sum + a(r, 3);
    sum = sum + a(r, 1) * x[1];
    y[r] = sum + a(r, 2) * x[2];
  }
  if (!(std::fabs(static_cast<double>(y[3])) > limit)) {
    for (int i = 0; i < 3; ++i)
      result[i] = large;
    return false;
  }
  const float reciprocal = 1.0f / y[3];
  for (int i = 0; i < 3; ++i)
    result[i] = y[i] * reciprocal;
  return true;
}

// Values of w about the limit: what fails stands in the second half.
const float goodW[] = {std::nextafter(static_cast<float>(limit), 1.0f),
                       -std::nextafter(static_cast<float>(limit), 1.0f),
                       -1.0e-30f,
                       1.0f,
                       infinity,
                       -infinity,
                       large};
const float badW[] = {static_cast<float>(limit),
                      -static_cast<float>(limit),
                      std::nextafter(static_cast<float>(limit), 0.0f),
                      0.0f,
                      -0.0f,
                      nan,
                      -1.0e-45f};

Family family() {
  Family f;
  f.name = "AffineTransform3DH";
  f.forms = {{{ZELMTEST_FN(zelmAffineTransform3DH_mva_32f)},
              "src1:m src2:va dst:va count",
              {"NCS", nullptr, nullptr},
              "",
              work,
              {800, 800, 0, 0, 0}}};
  f.fork = Fork::Above;
  f.stopsAtFailure = false;
  f.shape = [](const Member&, const std::string& operand, const Sizes&) {
    return operand == "src1" ? Shape{4, 4} : Shape{1, 3};
  };
  // Dense data half of the time with a w that is the third coordinate of the point, about the limit.
  f.dataKinds = {0, 0, 5, 5, 5, 1, 2, 3, 4};
  f.fill.single = [](Typed<float>& job, Rng& rng, int kind) {
    if (kind != 5)
      return;
    auto a = job["src1"], x = job["src2"];
    for (int r = 0; r < 4; ++r)
      for (int c = 0; c < 4; ++c)
        a.set(0, r, c, r == 3 ? (c == 2 ? 1.0f : 0.0f) : static_cast<float>(rng.within(-1000, 1000)) / 64.0f);
    const bool all = rng.chance(2);
    for (int k = 0; k < job.count(); ++k) {
      x.set(k, 0, static_cast<float>(rng.within(-1000, 1000)) / 32.0f);
      x.set(k, 1, static_cast<float>(rng.within(-1000, 1000)) / 16.0f);
      x.set(k, 2, rng.chance(all ? 2 : 20) ? badW[rng.below(7)] : goodW[rng.below(7)]);
    }
  };
  f.reference.single = [](Typed<float>& job) {
    auto a = job["src1"], x = job["src2"], dst = job["dst"];
    for (int k = 0; k < job.count(); ++k) {
      const float point[3] = {x(k, 0), x(k, 1), x(k, 2)};
      float result[3];
      if (!transform([&](int r, int c) { return a(0, r, c); }, point, result))
        job.status(k) = zelStatusDivideByZero;
      for (int i = 0; i < 3; ++i)
        dst.set(k, i, result[i]);
    }
  };
  return f;
}

const Registration registration{family()};

// A bad point in every place of a batch: the status says so, and the other points are as they are without it.
TEST(Results, BadPoint) {
  const float matrix[16] = {2, 0, 0, 1, 0, 3, 0, 2, 0, 0, 4, 3, 0, 0, 1, 0};
  for (int count : {1, 2, 4, 7, 8, 9, 19}) {
    for (int bad = -1; bad < count; ++bad)
      for (float w : badW) {
        std::vector<float> x(static_cast<size_t>(3 * count), 1.5f), y(x.size(), 7.0f);
        if (bad >= 0)
          x[static_cast<size_t>(3 * bad + 2)] = w;
        EXPECT_EQ(zelmAffineTransform3DH_mva_32f(matrix, 16, 4, x.data(), 12, 4, y.data(), 12, 4, count),
                  bad < 0 ? zelStatusOk : zelStatusDivideByZero)
            << count << " points, bad " << bad << ", w " << w;
        for (int k = 0; k < count; ++k)
          for (int i = 0; i < 3; ++i) {
            const float sums[3] = {4.0f, 6.5f, 9.0f};
            EXPECT_EQ(y[static_cast<size_t>(3 * k + i)], k == bad ? large : sums[i] * (1.0f / 1.5f));
          }
      }
  }
}

TEST(Results, GoodLimits) {
  const float matrix[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 1, 0};
  for (float w : goodW) {
    const float x[3] = {0.0f, 0.0f, w};
    float y[3];
    EXPECT_EQ(zelmAffineTransform3DH_mva_32f(matrix, 16, 4, x, 12, 4, y, 12, 4, 1), zelStatusOk) << w;
  }
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmAffineTransform3DH_mva_32f", entered("zelmAffineTransform3DH_mva_32f", 0, 130)); // 796
  EXPECT_EQ("ownOMP_zelmAffineTransform3DH_mva_32f", entered("zelmAffineTransform3DH_mva_32f", 0, 131));
}

TEST(Huge, AffineTransform) {
  const float matrix[16] = {2, 1, 0, 1, 0, 3, 1, 2, 1, 0, 4, 3, 0.25f, 0, 1, 0.5f};
  const auto x = hugeValues<float>(3 * static_cast<size_t>(hugeCount<float>(3)));
  expectHugeAsInSmallCalls<float>(3, [&](int first, int count, float* dst) {
    return zelmAffineTransform3DH_mva_32f(matrix, 16, 4, &x[static_cast<size_t>(first * 3)], 12, 4, dst, 12, 4, count);
  });
}

// One bad point of a result that goes past the caches: before the first whole vector, in the midst of them, behind
// them.
TEST(Huge, BadPoint) {
  const float matrix[16] = {2, 0, 0, 1, 0, 3, 0, 2, 0, 0, 4, 3, 0, 0, 1, 0};
  const int count = hugeCount<float>(3);
  std::vector<float> x(3 * static_cast<size_t>(count), 1.5f), y(x.size() + 1);
  for (int threads : {1, 3})
    for (int bad : {0, count / 2, count - 1}) {
      const auto at = static_cast<size_t>(3 * bad);
      x[at + 2] = 0;
      omp_set_num_threads(threads);
      EXPECT_EQ(zelmAffineTransform3DH_mva_32f(matrix, 16, 4, x.data(), 12, 4, &y[1], 12, 4, count),
                zelStatusDivideByZero)
          << "point " << bad << " threads " << threads;
      omp_set_num_threads(1);
      EXPECT_EQ(y[1 + at], large);
      EXPECT_EQ(y[bad == 0 ? 4 : 1], 4.0f * (1.0f / 1.5f));
      x[at + 2] = 1.5f;
    }
}

} // namespace
