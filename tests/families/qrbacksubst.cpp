// Solution of systems with a QR-decomposed matrix.
#include "blocks.h"
#include "systems.h"
#include "tall.h"

#include "../harness/job.h"
#include "../harness/paths.h"

#include <dlfcn.h>
#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <limits>

// The runtime's allocators, so that a front's block can be refused.
namespace {
std::atomic<bool> refuses{false};
std::atomic<int> asked{0};
void* allocated(const char* name, std::size_t bytes, std::size_t allocator) {
  ++asked;
  if (refuses)
    return nullptr;
  using Allocate = void* (*)(std::size_t, std::size_t);
  return reinterpret_cast<Allocate>(dlsym(RTLD_NEXT, name))(bytes, allocator);
}
} // namespace
extern "C" {
__attribute__((visibility("default"))) void* zelmtestOmpAlloc(std::size_t bytes,
                                                              std::size_t allocator) asm("omp_alloc");
__attribute__((visibility("default"))) void* zelmtestKmpcMalloc(std::size_t bytes) asm("kmpc_malloc");
void* zelmtestOmpAlloc(std::size_t bytes, std::size_t allocator) {
  return allocated("omp_alloc", bytes, allocator);
}
void* zelmtestKmpcMalloc(std::size_t bytes) {
  return allocated("kmpc_malloc", bytes, 0);
}
}

namespace {

using namespace zelmtest;

uint32_t oneMatrix(const Sizes& s) {
  return s["width"] * s["height"] + (s["width"] + s["height"]) * s["count"];
}
uint32_t matrixEach(const Sizes& s) {
  return (s["width"] * (s["height"] + 1) + s["height"]) * s["count"];
}

Family family() {
  Family f;
  f.name = "QR back substitution";
  constexpr Limits limits = {2801, 2801, 1801, 1801, 1801};
  constexpr Orders array = {"NCZSM", "NCZSHM", "NCZSHM"};
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmQRBackSubst_mv),  "src1:m buffer:b src2:v dst:v width height",           {"NZSM", nullptr, "NZHM"}, "src2"},
      {ZELMTEST_ARRAY(zelmQRBackSubst_mva),  "src1:m buffer:b src2:va dst:va width height count",   array, "src2", oneMatrix,  limits, limits},
      {ZELMTEST_ARRAY(zelmQRBackSubst_mava), "src1:ma buffer:b src2:va dst:va width height count",  array, "src2", matrixEach, limits, limits},
  };
  // clang-format on
  f.agrees = [](const Member&, const Sizes& s) { return s.get("width") <= s.get("height"); };
  f.shape = [](const Member&, const std::string& operand, const Sizes& s) {
    if (operand == "src1")
      return Shape{0, 0};
    return Shape{1, s.get(operand == "dst" ? "width" : "height")};
  };
  f.shapes = tallShapes;
  // Reflections of moderate size, so that large systems stay finite. Kind 20: what is summed is all -0.0; the last row
  // alone has signs that keep the right-hand side at -0.0 above it through every reflection.
  f.fill = bothFill([](auto& job, Rng& rng, int kind) {
    auto src1 = job["src1"], src2 = job["src2"];
    using T = decltype(src1(0, 0, 0));
    const int width = job.size("width"), height = job.size("height");
    const bool asItIs = kind > 0 && kind < 5 && rng.chance(16);
    for (int k = 0; !asItIs && k < (job.member().formName == "mava" ? job.count() : 1); ++k)
      for (int i = 0; i < height; ++i)
        for (int j = 0; j < width; ++j)
          if (kind == 0)
            src1.set(k, i, j, i == j ? T(1) + T(rng.below(1000)) / T(1001) : T(rng.below(2001) - 1000) / T(1003));
          else if (kind == 20)
            src1.set(k, i, j, i == height - 1 && (j == 0 || i == j) ? T(-1) : T(rng.within(1, 3)));
          else
            src1.set(k, i, j, moderate(src1(k, i, j), i == j, rng));
    for (int k = 0; !asItIs && k < job.count(); ++k)
      for (int i = 0; i < height; ++i)
        src2.set(k, i, kind == 20 ? -T(0) : moderate(src2(k, i), false, rng));
  });
  f.dataKinds = {0, 0, 1, 2, 3, 4, 20};
  f.reference = both([](auto& job) {
    auto src1 = job["src1"], src2 = job["src2"], dst = job["dst"];
    using T = decltype(src1(0, 0, 0));
    const int width = job.size("width"), height = job.size("height");
    auto buffer = job["buffer"];
    for (int i = 0; width == height && width >= 3 && width <= 6 && i < height; ++i)
      buffer.set(0, i, buffer(0, i)); // not used
    for (int k = 0; k < job.count(); ++k) {
      std::vector<T> c;
      for (int i = 0; i < height; ++i)
        c.push_back(src2(k, i));
      auto at = [&](int i) -> T& { return c[static_cast<size_t>(i)]; };
      for (int j = 0; j < (width < height ? width : width - 1); ++j) {
        T w = 1, s = at(j);
        for (int i = j + 1; i < height; ++i) {
          const T l = src1(k, i, j);
          w = w + l * l;
          s = s + at(i) * l;
        }
        s = s * (T(-2) / w);
        at(j) = at(j) + s;
        for (int i = j + 1; i < height; ++i)
          at(i) = src1(k, i, j) * s + at(i);
      }
      dst.set(k, width - 1, at(width - 1) / src1(k, width - 1, width - 1));
      for (int i = width - 2; i >= 0; --i) {
        T t = 0;
        for (int j = i + 1; j < width; ++j)
          t = t + src1(k, i, j) * dst(k, j);
        dst.set(k, i, (at(i) - t) / src1(k, i, i));
      }
    }
  });
  return f;
}

const Registration registration{family()};

TEST(Results, QRBackSubstBlocks) {
  checkBlocks();
}

TEST(Results, QRBackSubstDataAreNumbers) {
  expectNumbers<float>(member("zelmQRBackSubst_mava_32f"));
  expectNumbers<double>(member("zelmQRBackSubst_mava_64f"));
}

// An address that nobody may read or write.
float* wild() {
  return reinterpret_cast<float*>(uintptr_t{64});
}

template <class T> struct BatchOf {
  int width, height, count;
  std::vector<T> a, b, x;
  BatchOf(int w, int h, int n) : width(w), height(h), count(n) {
    Rng rng(static_cast<uint64_t>(w * 1000 + h));
    a.resize(static_cast<size_t>(w * h * n));
    b.resize(static_cast<size_t>(h * n));
    for (T& e : a)
      e = static_cast<T>(rng.below(2001) - 1000) / T(500);
    for (T& e : b)
      e = static_cast<T>(rng.below(2001) - 1000) / T(500);
    x.assign(static_cast<size_t>(w * n), T(-7));
  }
  ZelStatus decompose(T* buffer) {
    constexpr int e = sizeof(T);
    const auto call = [&](auto f) {
      return f(a.data(), e * width * height, e * width, e, buffer, a.data(), e * width * height, e * width, e, width,
               height, count);
    };
    if constexpr (e == 4)
      return call(zelmQRDecomp_ma_32f);
    else
      return call(zelmQRDecomp_ma_64f);
  }
  ZelStatus solve(T* buffer) {
    constexpr int e = sizeof(T);
    const auto call = [&](auto f) {
      return f(a.data(), e * width * height, e * width, e, buffer, b.data(), e * height, e, x.data(), e * width, e,
               width, height, count);
    };
    if constexpr (e == 4)
      return call(zelmQRBackSubst_mava_32f);
    else
      return call(zelmQRBackSubst_mava_64f);
  }
  ZelStatus solveOne(float* buffer) {
    return zelmQRBackSubst_mva_32f(a.data(), 4 * width, 4, buffer, b.data(), 4 * height, 4, x.data(), 4 * width, 4,
                                   width, height, count);
  }
};
using Batch = BatchOf<float>;

TEST(QRBuffer, SmallSquaresDoWithout) {
  for (int n : {3, 4, 5, 6})
    for (int count : {1, 2, 7, 8, 9}) {
      Batch batch(n, n, count);
      std::vector<float> buffer(static_cast<size_t>(n));
      ASSERT_EQ(batch.decompose(buffer.data()), zelStatusOk);
      EXPECT_EQ(batch.solve(wild()), zelStatusOk);
      EXPECT_EQ(batch.solveOne(wild()), zelStatusOk);
      EXPECT_EQ(zelmQRBackSubst_mv_32f(batch.a.data(), 4 * n, 4, wild(), batch.b.data(), 4, batch.x.data(), 4, n, n),
                zelStatusOk);
    }
}

// A front brings its own block; where that cannot be had, the caller's buffer serves, without threads.
TEST(QRBuffer, FrontsBlock) {
  omp_set_num_threads(3);
  for (auto [width, height] : {std::pair{3, 6}, {10, 14}, {7, 7}}) {
    Batch threaded(width, height, 133), alone(width, height, 133), refused(width, height, 133);
    std::vector<float> buffer(static_cast<size_t>(height));
    asked = 0;
    ASSERT_EQ(threaded.decompose(wild()), zelStatusOk);
    ASSERT_EQ(threaded.solve(wild()), zelStatusOk);
    if (countedBuild) {
      EXPECT_EQ(asked, 2);
    }
    refuses = true;
    clearEntries();
    EXPECT_EQ(refused.decompose(buffer.data()), zelStatusOk);
    EXPECT_EQ(refused.solve(buffer.data()), zelStatusOk);
    const std::vector<std::string> entered = entries();
    refuses = false;
    if (countedBuild) {
      EXPECT_EQ(entered, (std::vector<std::string>{"ownOMP_zelmQRDecomp_ma_32f", "ownzelmQRDecomp_ma_32f",
                                                   "ownOMP_zelmQRBackSubst_mava_32f", "ownzelmQRBackSubst_mava_32f"}));
    }
    omp_set_num_threads(1);
    ASSERT_EQ(alone.decompose(buffer.data()), zelStatusOk);
    ASSERT_EQ(alone.solve(buffer.data()), zelStatusOk);
    omp_set_num_threads(3);
    EXPECT_EQ(threaded.x, alone.x);
    EXPECT_EQ(refused.x, alone.x);
  }
  omp_set_num_threads(1);
}

// Backward error of square systems; of tall ones, how far the residual is from being orthogonal to the columns, which
// is what makes a solution that of least squares. Both in units of epsilon.
template <class T> void checkRandomSystems() {
  constexpr int pairs[][2] = {{1, 1},   {2, 2}, {3, 3}, {4, 4}, {5, 5},  {6, 6},  {9, 9},
                              {14, 14}, {1, 4}, {3, 6}, {4, 5}, {6, 12}, {6, 30}, {9, 20}};
  for (const auto& [width, height] : pairs) {
    BatchOf<T> batch(width, height, 100);
    for (size_t e = 0; e < batch.a.size(); ++e) // columns of very different length: condition about 10^4
      batch.a[e] *=
          static_cast<T>(std::pow(10.0, -4.0 * static_cast<double>(e % static_cast<size_t>(width)) / width)) * T(100);
    const std::vector<T> a = batch.a;
    std::vector<T> buffer(static_cast<size_t>(height));
    ASSERT_EQ(batch.decompose(buffer.data()), zelStatusOk);
    ASSERT_EQ(batch.solve(buffer.data()), zelStatusOk);
    double worst = 0;
    for (int k = 0; k < batch.count; ++k) {
      const T *ak = &a[static_cast<size_t>(k * width * height)], *bk = &batch.b[static_cast<size_t>(k * height)],
              *xk = &batch.x[static_cast<size_t>(k * width)];
      std::vector<long double> r;
      long double length = 0;
      for (int i = 0; i < height; ++i) {
        long double sum = bk[i], size = std::fabs(sum);
        for (int j = 0; j < width; ++j) {
          sum -= static_cast<long double>(ak[i * width + j]) * xk[j];
          size += std::fabs(static_cast<long double>(ak[i * width + j]) * xk[j]);
        }
        r.push_back(sum);
        length += size * size;
      }
      if (width == height) {
        for (long double e : r)
          worst = std::max(worst, static_cast<double>(std::fabs(e) / std::sqrt(length)));
        continue;
      }
      for (int j = 0; j < width; ++j) {
        long double product = 0, column = 0;
        for (int i = 0; i < height; ++i) {
          product += ak[i * width + j] * r[static_cast<size_t>(i)];
          column += static_cast<long double>(ak[i * width + j]) * ak[i * width + j];
        }
        worst = std::max(worst, static_cast<double>(std::fabs(product) / std::sqrt(column * length)));
      }
    }
    EXPECT_LT(worst / static_cast<double>(std::numeric_limits<T>::epsilon()), 8) << width << " " << height;
  }
}

TEST(QRResidual, RandomSystems) {
  checkRandomSystems<float>();
  checkRandomSystems<double>();
}

TEST(QRResidual, HilbertMatrices) {
  for (int n = 2; n <= 8; ++n) {
    const auto size = static_cast<size_t>(n);
    std::vector<double> a(size * size), factor(a.size()), b(size, 1.0), x(size), buffer(size);
    for (int i = 0; i < n; ++i)
      for (int j = 0; j < n; ++j)
        a[static_cast<size_t>(i * n + j)] = 1.0 / (i + j + 1);
    ASSERT_EQ(zelmQRDecomp_m_64f(a.data(), 8 * n, 8, buffer.data(), factor.data(), 8 * n, 8, n, n), zelStatusOk) << n;
    ASSERT_EQ(zelmQRBackSubst_mv_64f(factor.data(), 8 * n, 8, buffer.data(), b.data(), 8, x.data(), 8, n, n),
              zelStatusOk);
    for (int i = 0; i < n; ++i) {
      long double r = 1, sum = 1;
      for (int j = 0; j < n; ++j) {
        r -= static_cast<long double>(a[static_cast<size_t>(i * n + j)]) * x[static_cast<size_t>(j)];
        sum += std::fabs(a[static_cast<size_t>(i * n + j)] * x[static_cast<size_t>(j)]);
      }
      EXPECT_LT(static_cast<double>(std::fabs(r) / sum), 8 * std::numeric_limits<double>::epsilon()) << n << " " << i;
    }
  }
}

// Scaled so that no column of the usual kinds is as short as the limit of its test; `little` is below it.
template <class T, class D, class S> void kinds(D decompose, S solve, Scales scales) {
  constexpr int e = sizeof(T);
  std::vector<T> buffer(10);
  const auto factor = [&](const T* a, T* qr, int n, int count) {
    return decompose(a, n * n * e, n * e, e, buffer.data(), qr, n * n * e, n * e, e, n, n, count);
  };
  const auto substitute = [&](const T* qr, const T* b, T* x, int n, int count) {
    return solve(qr, n * n * e, n * e, e, buffer.data(), b, n * e, e, x, n * e, e, n, n, count);
  };
  // The last column of a square matrix is not tested.
  checkKinds<T>({Kind::Diagonal, Kind::Upper, Kind::Lower, Kind::Random, Kind::FirstColumnZero, Kind::LastColumnZero,
                 Kind::HalfOfColumnsZero, Kind::Ill, Kind::Worse, Kind::Little, Kind::Great},
                false, scales, factor, substitute, [](Kind kind, int n) {
                  return kind == Kind::FirstColumnZero || kind == Kind::Little ||
                                 (kind == Kind::HalfOfColumnsZero && n >= 4)
                             ? zelStatusDivideByZero
                             : zelStatusOk;
                });
  Rng rng(3);
  for (int n = 1; n <= 10; ++n) {
    std::vector<double> all;
    for (int k = 0; k < 100; ++k)
      for (double x : conditioned(n, 1e4, rng))
        all.push_back(x * scales.usual);
    const Outcome outcome = solveBatch<T>(n, all, 100, factor, substitute);
    EXPECT_EQ(outcome.status, zelStatusOk) << n;
    EXPECT_LT(outcome.error, 3) << n;
  }
}

TEST(QRResidual, Kinds) {
  kinds<float>(zelmQRDecomp_ma_32f, zelmQRBackSubst_mava_32f, {0x1p30, 0x1p-14, 0x1p60});
  kinds<double>(zelmQRDecomp_ma_64f, zelmQRBackSubst_mava_64f, {0x1p60, 0x1p-30, 0x1p500});
}

} // namespace
