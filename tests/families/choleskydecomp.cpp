// Cholesky decomposition.
#include "blocks.h"
#include "triangle.h"

#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace zelmtest;

uint32_t squares(const Sizes& s) {
  return s["widthHeight"] * s["widthHeight"] * s["count"];
}

constexpr Orders single = {"NZS", nullptr, "NZH"}, array = {"NCZS", "NCZSH", "NCZSH"};

// What a pivot has to exceed.
double limitOf(const Member& m, bool unit, int side) {
  if (m.layout == 'P')
    return side == 3 ? 1.1920928955078125e-7 : 0;
  if (m.name == "zelmCholeskyDecomp_ma_64f" && !unit)
    return side == 3 || side == 4 || side == 5 ? 0 : 2.220446049250313e-16;
  return 0;
}

float reciprocalRoot(float d, bool rounded) {
  return rounded ? 1.0f / std::sqrt(d) : static_cast<float>(1.0 / std::sqrt(static_cast<double>(d)));
}
double reciprocalRoot(double d, bool) {
  return 1.0 / std::sqrt(d);
}

// Objects that are positive definite (0); the same, but for some, or the only one, a pivot of which is at an edge (10).
template <class T> void fill(Typed<T>& job, Rng& rng, int kind) {
  if (kind != 0 && kind != 10)
    return;
  auto src = job["src"];
  const int n = job.size("widthHeight");
  auto unit = [&] { return static_cast<T>(rng.below(4001) - 2000) / T(2000); };
  for (int k = 0; k < job.count(); ++k) {
    for (int i = 0; i < n; ++i)
      for (int j = 0; j <= i; ++j)
        src.set(k, i, j, i == j ? T(n) + unit() : unit());
    if (kind == 0 || (job.count() > 1 && !rng.chance(9)))
      continue;
    // Row i is zero but for its pivot, which is d then.
    const int i = rng.below(n);
    const auto limit = static_cast<T>(limitOf(job.member(), job.unit(), n));
    const T inf = std::numeric_limits<T>::infinity();
    const T edges[] = {limit,
                       std::nextafter(limit, -inf),
                       std::nextafter(limit, inf),
                       std::nextafter(limit, inf),
                       static_cast<T>(0x1p-23),
                       static_cast<T>(0x1p-52),
                       std::nextafter(static_cast<T>(0x1p-52), inf),
                       T(1e-8),
                       T(1e-20),
                       std::numeric_limits<T>::min(),
                       T(-0.0),
                       T(-1),
                       inf,
                       std::numeric_limits<T>::quiet_NaN()};
    for (int j = 0; j < i; ++j)
      src.set(k, i, j, T(0));
    src.set(k, i, i, edges[rng.below(sizeof edges / sizeof *edges)]);
  }
}

Family family() {
  Family f;
  f.name = "Cholesky decomposition";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmCholeskyDecomp_m), "src:m dst:m widthHeight",          single, "src"},
      {ZELMTEST_ARRAY(zelmCholeskyDecomp_ma), "src:ma dst:ma widthHeight count",  array,  "src", squares,
       {7501, 7501, 2001, 2001, 2001}, {2001, 2001, 721, 2001, 2001}},
  };
  // clang-format on
  f.dataKinds = {0, 10, 10, 10, 1, 3};
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fill(job, rng, kind); });
  f.delegate = [](const Member& m, const Sizes& s, bool) {
    const int n = s.get("widthHeight");
    return m.formName == "ma" && m.layout == 'P' && (n < 3 || n > 6) ? m.kernelOfOne("_P") : "";
  };
  f.reference = both([](auto& job) {
    auto src = job["src"], dst = job["dst"];
    using T = decltype(src(0, 0, 0));
    const int n = job.size("widthHeight");
    const double limit = limitOf(job.member(), job.unit(), n);
    const bool rounded = job.member().layout == 'P' && (n < 3 || n > 6);
    for (int k = 0; k < job.count(); ++k) {
      for (int i = 0; i < n && job.status(k) == zelStatusOk; ++i) {
        for (int j = 0; j < i; ++j) {
          T s = src(k, i, j);
          for (int c = 0; c < j; ++c)
            s = s - dst(k, i, c) * dst(k, j, c);
          dst.set(k, i, j, s * dst(k, j, j));
        }
        T d = src(k, i, i);
        for (int c = 0; c < i; ++c)
          d = d - dst(k, i, c) * dst(k, i, c);
        if (limit >= static_cast<double>(d)) {
          job.status(k) = zelStatusNotPositiveDefinite;
          for (int j = 0; j < i; ++j)
            dst.free(k, i, j);
        } else {
          dst.set(k, i, i, reciprocalRoot(d, rounded));
        }
      }
    }
  });
  return f;
}

const Registration registration{family()};

TEST(Results, CholeskyDecompBlocks) {
  checkBlocks();
}

TEST(CholeskyTriangle, UpperElementsAreNotTouched) {
  checkUpperUntouched();
}

// One bad object at every place of a batch: those before it are complete, those behind it as they were.
TEST(CholeskyFailure, EveryPlace) {
  for (int n = 1; n <= 8; ++n)
    for (int count : {1, 2, 3, 4, 8, 9, 17, 20})
      for (int bad = 0; bad < count; ++bad)
        for (int row = 0; row < n; ++row) {
          const auto size = static_cast<size_t>(n * n);
          std::vector<float> src(size * static_cast<size_t>(count), 0.0f), dst(src.size(), -7.0f);
          for (int k = 0; k < count; ++k)
            for (int i = 0; i < n; ++i)
              src[static_cast<size_t>(k) * size + static_cast<size_t>(i * n + i)] = k == bad && i == row ? 0.0f : 16.0f;
          const int32_t stride1 = 4 * n, stride0 = stride1 * n;
          ASSERT_EQ(
              zelmCholeskyDecomp_ma_32f(src.data(), stride0, stride1, 4, dst.data(), stride0, stride1, 4, n, count),
              zelStatusNotPositiveDefinite);
          for (int k = 0; k < count; ++k)
            for (int i = 0; i < n; ++i)
              for (int j = 0; j < n; ++j) {
                const float value = dst[static_cast<size_t>(k) * size + static_cast<size_t>(i * n + j)];
                const bool done = k < bad || (k == bad && i < row);
                if (k == bad && i == row && j < i)
                  continue; // open
                ASSERT_EQ(value, !done || j > i ? -7.0f
                                 : i == j       ? 0.25f
                                                : 0.0f)
                    << n << " " << count << " " << bad << " " << k << " " << i << " " << j;
              }
        }
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmCholeskyDecomp_ma_32f", entered("zelmCholeskyDecomp_ma_32f", 5, 300)); // 7500
  EXPECT_EQ("ownOMP_zelmCholeskyDecomp_ma_32f", entered("zelmCholeskyDecomp_ma_32f", 5, 301));
  EXPECT_EQ("ownzelmCholeskyDecomp_ma_64f_L", entered("zelmCholeskyDecomp_ma_64f_L", 3, 80)); // 720
  EXPECT_EQ("ownOMP_zelmCholeskyDecomp_ma_64f_L", entered("zelmCholeskyDecomp_ma_64f_L", 3, 81));
  EXPECT_EQ("ownzelmCholeskyDecomp_ma_64f_LS2", entered("zelmCholeskyDecomp_ma_64f_L", 3, 81, "srcStride2", 16));
}

} // namespace
