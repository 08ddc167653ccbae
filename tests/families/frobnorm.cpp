// Frobenius norms.
#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace zelmtest;

// The squares of an object in their order, with the sum that each goes to; square(i, j) is one of them.
template <class T, class F> struct Summation {
  const Member& member;
  bool unit;
  int width, height;
  F square;
  T sum[4] = {};

  void add(int lane, int i, int j) { sum[lane] = sum[lane] + square(i, j); }

  T inOrder(int lanes) {
    for (int i = 0; i < height; ++i)
      for (int j = 0; j < width; ++j)
        add((i * width + j) % lanes, i, j);
    return lanes == 2 ? sum[0] + sum[1] : sum[0];
  }
  T inPairs() {
    const int n = width * height;
    for (int e = 0; e < n; e += 2) {
      const T first = square(e / width, e % width);
      const T both = e + 1 < n ? first + square((e + 1) / width, (e + 1) % width) : first;
      sum[0] = sum[0] + both;
    }
    return sum[0];
  }
  T quads() {
    const T even = sum[0] + sum[2], odd = sum[1] + sum[3];
    return even + odd;
  }
  T smallSquare() {
    for (int i = 0; i < height; ++i)
      for (int j = 0; j < width; ++j)
        add(j % 4, i, j);
    return quads();
  }
  // Eights of a row into four sums, what is left into the first.
  T byRows() {
    for (int i = 0; i < height; ++i)
      for (int j = 0; j < width; ++j)
        add(j < width / 8 * 8 ? j % 4 : 0, i, j);
    return quads();
  }
  // The same for all elements from a multiple of 16 bytes on.
  T asRun(uintptr_t address) {
    const int lead = static_cast<int>((16 - address % 16) % 16 / 4), n = width * height;
    for (int e = 0; e < n; ++e)
      add(e >= lead && e < lead + (n - lead) / 8 * 8 ? (e - lead) % 4 : 0, e / width, e % width);
    return quads();
  }
};

template <class Job> void reference(Job& job) {
  auto src = job["src"], dst = job["dst"];
  using T = decltype(src(0, 0, 0));
  const Member& m = job.member();
  const int width = job.size("width"), height = job.size("height");
  for (int k = 0; k < job.count(); ++k) {
    const auto square = [&](int i, int j) -> T { return src(k, i, j) * src(k, i, j); };
    Summation<T, decltype(square)> s{m, job.unit(), width, height, square};
    const bool small = width == height && width < 6;
    T total;
    if (m.name == "zelmFrobNorm_m_32f_P")
      total = s.inPairs();
    else if (m.layout == 'P' || (m.elem == 8 && (!m.hasCount || m.layout == 'L' || !job.unit())))
      total = s.inOrder(1);
    else if (m.elem == 8)
      total = s.inOrder(2);
    else if (small && (!m.hasCount || (m.layout == 'S' && job.unit())))
      total = s.smallSquare();
    else if (reinterpret_cast<uintptr_t>(src.address()) % 4 != 0) // all into the first sum
      total = s.inOrder(1);
    else if (!m.hasCount && job.unit() && src.stride1() == 4 * width)
      total = s.asRun(reinterpret_cast<uintptr_t>(src.address()));
    else
      total = s.byRows();
    dst.set(k, 0, std::sqrt(total));
  }
}

Family family() {
  Family f;
  f.name = "Frobenius norm";
  const auto estimate = [](const Sizes& s) { return s["width"] * s["height"] * s["count"]; };
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmFrobNorm_m), "src:m width height dst:r",        {"NZS", nullptr, "NZH"}},
      {ZELMTEST_ARRAY(zelmFrobNorm_ma), "src:ma width height dst:r count", {"NCZS", "NCZSH", "NCZSH"}, "", estimate,
       {2501, 1801, 1601, 1601, 1501}, {1801, 1501, 1601, 1601, 2501}},
  };
  // clang-format on
  for (const char* name : {"zelmFrobNorm_m_32f", "zelmFrobNorm_m_64f"})
    f.exceptions[name] = [](Member& m) { m.kernelAny = m.kernelUnit; };
  f.shapes = [](const Member& m) {
    std::vector<Sizes> all;
    constexpr int shapes[][2] = {{1, 1},  {2, 2},  {3, 3},  {4, 4},  {5, 5},  {6, 6},  {7, 7},  {8, 8},
                                 {9, 9},  {1, 5},  {5, 1},  {2, 3},  {3, 4},  {6, 5},  {7, 12}, {8, 3},
                                 {12, 2}, {15, 4}, {16, 2}, {17, 5}, {1, 33}, {33, 1}, {24, 3}, {3, 19}};
    for (auto [width, height] : shapes) {
      Sizes s = m.square(1, 1);
      s.set("width", width);
      s.set("height", height);
      all.push_back(s);
    }
    return all;
  };
  f.reference = both([](auto& job) { reference(job); });
  return f;
}

const Registration registration{family()};

// Elements that are not at multiples of their size: all go into the first sum, but for small squares.
TEST(FrobNorm, UnalignedElements) {
  Rng rng(1);
  for (int n : {2, 5, 6, 9, 20}) {
    std::vector<float> values;
    for (int e = 0; e < n * n; ++e)
      values.push_back(static_cast<float>(rng.within(1, 1 << 20)) * 0x1p-10f);
    std::vector<unsigned char> bytes(values.size() * 4 + 16);
    float inOrder = 0, lanes[4] = {};
    for (size_t e = 0; e < values.size(); ++e) {
      const float square = values[e] * values[e];
      inOrder = inOrder + square;
      float& lane = lanes[e % static_cast<size_t>(n) % 4];
      lane = lane + square;
    }
    const float even = lanes[0] + lanes[2], odd = lanes[1] + lanes[3];
    for (size_t offset = 0; offset < 16; ++offset) {
      unsigned char* at = &bytes[offset];
      if (reinterpret_cast<uintptr_t>(at) % 4 == 0)
        continue;
      std::memcpy(at, values.data(), values.size() * 4);
      float norm = 0;
      ASSERT_EQ(zelmFrobNorm_m_32f(reinterpret_cast<float*>(at), n * 4, 4, n, n, &norm), zelStatusOk);
      EXPECT_EQ(norm, std::sqrt(n < 6 ? even + odd : inOrder)) << n << " " << offset;
    }
  }
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmFrobNorm_ma_32f_P", entered("zelmFrobNorm_ma_32f_P", 5, 60)); // 1500
  EXPECT_EQ("ownOMP_zelmFrobNorm_ma_32f_P", entered("zelmFrobNorm_ma_32f_P", 5, 61));
  EXPECT_EQ("ownzelmFrobNorm_ma_64f_P", entered("zelmFrobNorm_ma_64f_P", 5, 100)); // 2500
  EXPECT_EQ("ownOMP_zelmFrobNorm_ma_64f_P", entered("zelmFrobNorm_ma_64f_P", 5, 101));
}

} // namespace
