// Sums of matrices, and of vectors and constants.
#include "elementwise.h"
#include "huge.h"

#include "../harness/paths.h"
#include "../harness/run.h"

#include <cstring>
#include <functional>

namespace {

using namespace zelmtest;

Family matrices() {
  Family f;
  f.name = "Add on matrices";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmAdd_mm),  "src1:m src2:m dst:m width height",           single,   "src1 src2"},
      {ZELMTEST_SINGLE(zelmAdd_tm),  "src1:t src2:m dst:m width height",           single,   "src2"},
      {ZELMTEST_SINGLE(zelmAdd_tt),  "src1:t src2:t dst:m width height",           single,   ""},
      {ZELMTEST_ARRAY(zelmAdd_mam),  "src1:ma src2:m dst:ma width height count",   sizeLast, "src1",      oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmAdd_mat),  "src1:ma src2:t dst:ma width height count",   array,    "src1",      oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmAdd_tam),  "src1:ta src2:m dst:ma width height count",   array,    "",          oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmAdd_tat),  "src1:ta src2:t dst:ma width height count",   array,    "",          oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmAdd_mama), "src1:ma src2:ma dst:ma width height count",  array,    "src1 src2", allArrays, matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmAdd_tama), "src1:ta src2:ma dst:ma width height count",  array,    "src2",      allArrays, matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmAdd_tata), "src1:ta src2:ta dst:ma width height count",  array,    "",          allArrays, matrices32, matrices64},
  };
  // clang-format on
  // Add has no mt that mat could call.
  f.delegate = [](const Member& m, const Sizes&, bool unit) -> std::string {
    if (m.layout != 'L' || m.formName == "mat")
      return "";
    if (unit)
      return m.elem == 8 && (m.formName == "mam" || m.formName == "mama") ? m.kernelOfOne("") : "";
    return m.kernelOfOne("_S2");
  };
  f.reference = ofMatrices(std::plus<>{});
  return f;
}

Family vectors() {
  Family f;
  f.name = "Add on vectors and constants";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmAdd_vv),  "src1:v src2:v dst:v len",          single,    "src1 src2"},
      {ZELMTEST_SINGLE(zelmAdd_vc),  "src1:v src2:c dst:v len",          single,    "src1"},
      {ZELMTEST_ARRAY(zelmAdd_vav),  "src1:va src2:v dst:va len count",  countLast, "src1",      oneArrayOfVectors,   vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmAdd_vava), "src1:va src2:va dst:va len count", array,     "src1 src2", arraysOfVectors,     vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmAdd_vac),  "src1:va src2:c dst:va len count",  array,     "src1",      oneArrayOfVectors,   vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmAdd_vca),  "src1:v src2:ca dst:va len count",  array,     "",          vectorAndConstants,  vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmAdd_vaca), "src1:va src2:ca dst:va len count", array,     "src1",      vectorsAndConstants, vectors32, vectors64},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.exceptions = {{"zelmAdd_vca_64f_P",
                   [](Member& m) {
                     m.omitted = {"src1Shift", "dstShift"};
                   }},
                  {"zelmAdd_vaca_32f_P", [](Member& m) { m.omitted = {"src1Stride0"}; }}};
  f.delegate = delegateOfVectors;
  f.reference = ofVectors(std::plus<>{});
  return f;
}

const Registration onMatrices{matrices()}, onVectors{vectors()};

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmAdd_mam_32f", entered("zelmAdd_mam_32f", 3, 111));
  EXPECT_EQ("ownOMP_zelmAdd_mam_32f", entered("zelmAdd_mam_32f", 3, 111, "src1Stride2", 8));
  EXPECT_EQ("ownOMP_zelmAdd_mam_64f", entered("zelmAdd_mam_64f", 3, 111));
  EXPECT_EQ("ownzelmAdd_mam_64f_S2", entered("zelmAdd_mam_64f", 3, 110, "src1Stride2", 16));
  EXPECT_EQ("ownzelmAdd_mama_32f_L", entered("zelmAdd_mama_32f_L", 4, 41));
  EXPECT_EQ("ownOMP_zelmAdd_mama_32f_L", entered("zelmAdd_mama_32f_L", 4, 42));
  EXPECT_EQ("ownzelmAdd_mama_32f_LS2", entered("zelmAdd_mama_32f_L", 4, 41, "src1Stride2", 12));
  EXPECT_EQ("ownzelmAdd_mama_32f_P", entered("zelmAdd_mama_32f_P", 1000, 1000));     // 3e9 is negative
  EXPECT_EQ("ownOMP_zelmAdd_mama_32f_P", entered("zelmAdd_mama_32f_P", 1000, 1500)); // 4.5e9 is positive again
  EXPECT_EQ("ownOMP_zelmAdd_vca_32f", entered("zelmAdd_vca_32f", 100, 47));          // 4847
  EXPECT_EQ("ownzelmAdd_vava_32f", entered("zelmAdd_vava_32f", 4, 400));             // 4800 is not above 4800
  EXPECT_EQ("ownzelmAdd_vac_64f", entered("zelmAdd_vac_64f", 3, 232));               // 1395
  EXPECT_EQ("ownOMP_zelmAdd_vac_64f", entered("zelmAdd_vac_64f", 3, 233));
  EXPECT_EQ("ownOMP_zelmAdd_vac_64f", entered("zelmAdd_vac_64f", 3, 233, "dstStride2", 16));
  EXPECT_EQ("ownzelmAdd_vaca_32f_L", entered("zelmAdd_vaca_32f_L", 3, 357)); // 2499
  EXPECT_EQ("ownOMP_zelmAdd_vaca_32f_L", entered("zelmAdd_vaca_32f_L", 3, 358));
}

template <class T, class Call> void huge(int arrays, Call call) {
  constexpr int each = 9, count = hugeCount<T>(each);
  constexpr auto n = static_cast<size_t>(each) * static_cast<size_t>(count);
  const std::vector<T> a = hugeValues<T>(n), b = hugeValues<T>(arrays == 2 ? n : each);
  std::vector<T> expected(n);
  for (size_t i = 0; i < n; ++i)
    expected[i] = a[i] + b[i % b.size()];
  expectHuge(expected, [&](T* dst) { return call(a.data(), b.data(), dst, 3 * static_cast<int>(sizeof(T)), count); });
}

TEST(Huge, Add_mam) {
  huge<float>(1, [](auto* a, auto* b, auto* d, int row, int count) {
    return zelmAdd_mam_32f(a, 3 * row, row, 4, b, row, 4, d, 3 * row, row, 4, 3, 3, count);
  });
  huge<double>(1, [](auto* a, auto* b, auto* d, int row, int count) {
    return zelmAdd_mam_64f(a, 3 * row, row, 8, b, row, 8, d, 3 * row, row, 8, 3, 3, count);
  });
}

TEST(Huge, Add_mama) {
  huge<float>(2, [](auto* a, auto* b, auto* d, int row, int count) {
    return zelmAdd_mama_32f(a, 3 * row, row, 4, b, 3 * row, row, 4, d, 3 * row, row, 4, 3, 3, count);
  });
  huge<double>(2, [](auto* a, auto* b, auto* d, int row, int count) {
    return zelmAdd_mama_64f(a, 3 * row, row, 8, b, 3 * row, row, 8, d, 3 * row, row, 8, 3, 3, count);
  });
}

TEST(Results, UntestedShifts) {
  checkUntestedShifts<double>(std::plus<>{}, [](auto* src, int shift, auto* constants, auto* dst) {
    return zelmAdd_vca_64f_P(src, shift, constants, 8, dst, shift, 8, 3, 2);
  });
}

TEST(Results, UntestedStride) {
  const float given[] = {1, 2, 3, 4, 5, 6, 7, 8, 9}, constants[] = {10, 20, 30};
  for (int stride : {0, 4, -4, 3, -5, 8}) {
    const float* src[] = {given + 3, given + 4};
    float result[6];
    float* dst[] = {result, result + 3};
    ASSERT_EQ(zelStatusOk, zelmAdd_vaca_32f_P(src, 0, stride, constants, 4, dst, 0, 4, 2, 3));
    for (int k = 0; k < 3; ++k)
      for (int j = 0; j < 2; ++j) {
        float element;
        std::memcpy(&element, reinterpret_cast<const char*>(src[j]) + k * stride, sizeof element);
        ASSERT_EQ(element + constants[k], result[3 * j + k]) << "stride " << stride;
      }
  }
}

TEST(Huge, Add_vectors) {
  const std::vector<float> a = hugeValues<float>(static_cast<size_t>(hugeCount<float>(3)) * 3);
  expectHugeAsInSmallCalls<float>(3, [&](int first, int count, float* dst) {
    return zelmAdd_vav_32f(&a[static_cast<size_t>(first) * 3], 12, 4, a.data(), 4, dst, 12, 4, 3, count);
  });
  expectHugeAsInSmallCalls<float>(3, [&](int first, int count, float* dst) {
    return zelmAdd_vaca_32f(&a[static_cast<size_t>(first) * 3], 12, 4, &a[static_cast<size_t>(first)], 4, dst, 12, 4, 3,
                            count);
  });
  const std::vector<double> b = hugeValues<double>(static_cast<size_t>(hugeCount<double>(5)));
  expectHugeAsInSmallCalls<double>(5, [&](int first, int count, double* dst) {
    return zelmAdd_vca_64f(b.data(), 8, &b[static_cast<size_t>(first)], 8, dst, 40, 8, 5, count);
  });
}

// Positions whose result is larger than any cache.
TEST(Huge, Add_positions) {
  const int count = hugeCount<float>(1);
  const std::vector<float> a = hugeValues<float>(static_cast<size_t>(count));
  std::vector<float> expected(a.size());
  for (size_t i = 0; i < a.size(); ++i)
    expected[i] = a[i] + 0.75f;
  expectHuge(expected, [&](float* dst) {
    const float* list = a.data();
    return zelmAdd_vac_32f_P(&list, 0, 4, 0.75f, &dst, 0, 4, 1, count);
  });
}

} // namespace
