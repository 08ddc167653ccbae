// QR decomposition.
#include "tall.h"

#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace zelmtest;

uint32_t twice(const Sizes& s) {
  return s["width"] * s["height"] * 2 * s["count"];
}

// Matrices with a column that is at an edge of its test when its turn comes (kind 10).
template <class T> void fill(Typed<T>& job, Rng& rng, int kind) {
  if (kind != 10)
    return;
  auto src = job["src"];
  const int width = job.size("width"), height = job.size("height");
  for (int k = 0; k < job.count(); ++k) {
    if (job.count() > 1 && !rng.chance(9))
      continue;
    // The columns before column c are those of the identity: their reflections change signs in their own rows only.
    const int c = rng.below(width);
    for (int j = 0; j <= c; ++j)
      for (int i = 0; i < height; ++i)
        src.set(k, i, j, T(i == j && j < c));
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    // In single precision two elements of 2^-12 have the limit 2^-23 as sum of squares, in double one of 2^-26 has.
    const T x = static_cast<T>(sizeof(T) == 4 ? 0x1p-12 : 0x1p-26);
    const T y = sizeof(T) == 4 ? x : T(0);
    const T z = sizeof(T) == 4 ? y : x;
    const T edges[][2] = {{x, y},
                          {std::nextafter(x, T(0)), sizeof(T) == 4 ? std::nextafter(y, T(0)) : T(0)},
                          {std::nextafter(z, T(0)), y},
                          {std::nextafter(z, T(1)), y},
                          {T(0), T(0)},
                          {T(-0.0), T(3)},
                          {T(0), T(-2)},
                          {nan, T(1)},
                          {T(1), nan},
                          {inf, T(1)},
                          {T(-3), T(4)},
                          {std::numeric_limits<T>::max(), T(1)},
                          {std::numeric_limits<T>::denorm_min(), T(1e-9)}};
    const auto& edge = edges[rng.below(sizeof edges / sizeof *edges)];
    src.set(k, c, c, edge[0]);
    if (c + 1 < height)
      src.set(k, height - 1, c, edge[1]);
  }
}

Family family() {
  Family f;
  f.name = "QR decomposition";
  constexpr Limits limits = {2801, 2801, 1801, 1801, 1801};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmQRDecomp_m), "src:m buffer:b dst:m width height",          {"NZSM", nullptr, "NZHM"},     "src"},
      {ZELMTEST_ARRAY(zelmQRDecomp_ma), "src:ma buffer:b dst:ma width height count",  {"NCZSM", "NCZSHM", "NCZSHM"}, "src", twice, limits, limits},
  };
  // clang-format on
  f.agrees = [](const Member&, const Sizes& s) { return s.get("width") <= s.get("height"); };
  f.shape = [](const Member&, const std::string& operand, const Sizes& s) {
    return operand == "buffer" ? Shape{1, s.get("height")} : Shape{0, 0};
  };
  f.shapes = tallShapes;
  f.dataKinds = {0, 10, 10, 10, 1, 3};
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fill(job, rng, kind); });
  f.reference = both([](auto& job) {
    auto src = job["src"], dst = job["dst"];
    using T = decltype(src(0, 0, 0));
    const int width = job.size("width"), height = job.size("height");
    const double limit = sizeof(T) == 4 ? 1.1920928955078125e-7 : 2.220446049250313e-16;
    for (int k = 0; k < job.count(); ++k) {
      for (int i = 0; i < height; ++i)
        for (int j = 0; j < width; ++j)
          dst.set(k, i, j, src(k, i, j));
      for (int c = 0; c < (width < height ? width : width - 1); ++c) {
        T norm2 = 0;
        for (int i = c; i < height; ++i)
          norm2 = norm2 + dst(k, i, c) * dst(k, i, c);
        if (limit > std::fabs(static_cast<double>(norm2))) {
          job.status(k) = zelStatusDivideByZero;
          break;
        }
        const T norm = static_cast<T>(std::sqrt(static_cast<double>(norm2)));
        const T a = dst(k, c, c);
        const T p = a + (a > 0 ? norm : -norm);
        const T r = T(1) / p;
        std::vector<T> v(static_cast<size_t>(height));
        v[static_cast<size_t>(c)] = 1;
        T w = 1;
        for (int i = c + 1; i < height; ++i) {
          T& x = v[static_cast<size_t>(i)];
          x = dst(k, i, c) * r;
          w = w + x * x;
        }
        const T beta = T(-2) / w;
        for (int j = c; j < width; ++j) {
          T s = dst(k, c, j);
          for (int i = c + 1; i < height; ++i)
            s = s + dst(k, i, j) * v[static_cast<size_t>(i)];
          s = s * beta;
          for (int i = c; i < height; ++i)
            dst.set(k, i, j, v[static_cast<size_t>(i)] * s + dst(k, i, j));
        }
        for (int i = c + 1; i < height; ++i)
          dst.set(k, i, c, v[static_cast<size_t>(i)]);
      }
    }
  });
  return f;
}

const Registration registration{family()};

TEST(QRNumbers, SmallMatrices) {
  const float column[] = {3, 4};
  float buffer[2], dst[4] = {9, 9, 9, 9};
  ASSERT_EQ(zelmQRDecomp_m_32f(column, 4, 4, buffer, dst, 4, 4, 1, 2), zelStatusOk);
  EXPECT_EQ(dst[0], -5.0f);
  EXPECT_EQ(dst[1], 0.5f);
  const float zeros[4] = {};
  EXPECT_EQ(zelmQRDecomp_m_32f(zeros, 4, 4, buffer, dst, 4, 4, 1, 2), zelStatusDivideByZero);
  EXPECT_EQ(zelmQRDecomp_m_32f(zeros, 8, 4, buffer, dst, 8, 4, 2, 2), zelStatusDivideByZero);
  EXPECT_EQ(zelmQRDecomp_m_32f(zeros, 4, 4, buffer, dst, 4, 4, 1, 1), zelStatusOk);
  const float leading[] = {0, 2};
  ASSERT_EQ(zelmQRDecomp_m_32f(leading, 4, 4, buffer, dst, 4, 4, 1, 2), zelStatusOk);
  EXPECT_EQ(dst[0], 2.0f); // the negative sign was used
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmQRDecomp_ma_32f", entered("zelmQRDecomp_ma_32f", 4, 87)); // 2784
  EXPECT_EQ("ownOMP_zelmQRDecomp_ma_32f", entered("zelmQRDecomp_ma_32f", 4, 88));
  EXPECT_EQ("ownzelmQRDecomp_ma_32f_L", entered("zelmQRDecomp_ma_32f_L", 4, 56)); // 1792
  EXPECT_EQ("ownOMP_zelmQRDecomp_ma_32f_L", entered("zelmQRDecomp_ma_32f_L", 4, 57));
}

} // namespace
