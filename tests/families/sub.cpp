// Differences of matrices, and of vectors and constants.
#include "elementwise.h"
#include "huge.h"

#include "../harness/paths.h"
#include "../harness/run.h"

#include <cmath>
#include <functional>
#include <set>

namespace {

using namespace zelmtest;

uint32_t withoutLength(const Sizes& s) {
  return 2 * s["count"] + 1;
}

Family matrices() {
  Family f;
  f.name = "Sub on matrices";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmSub_mm),  "src1:m src2:m dst:m width height",          single,   "src1 src2"},
      {ZELMTEST_SINGLE(zelmSub_mt),  "src1:m src2:t dst:m width height",          single,   "src1"},
      {ZELMTEST_SINGLE(zelmSub_tm),  "src1:t src2:m dst:m width height",          single,   "src2"},
      {ZELMTEST_SINGLE(zelmSub_tt),  "src1:t src2:t dst:m width height",          single,   ""},
      {ZELMTEST_ARRAY(zelmSub_mam),  "src1:ma src2:m dst:ma width height count",  sizeLast, "src1",      oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_mat),  "src1:ma src2:t dst:ma width height count",  array,    "src1",      oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_tam),  "src1:ta src2:m dst:ma width height count",  array,    "",          oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_tat),  "src1:ta src2:t dst:ma width height count",  array,    "",          oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_mma),  "src1:m src2:ma dst:ma width height count",  sizeLast, "src2",      oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_mta),  "src1:m src2:ta dst:ma width height count",  array,    "",          oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_tma),  "src1:t src2:ma dst:ma width height count",  array,    "src2",      oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_tta),  "src1:t src2:ta dst:ma width height count",  array,    "",          oneArray,  matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_mama), "src1:ma src2:ma dst:ma width height count", array,    "src1 src2", allArrays, matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_mata), "src1:ma src2:ta dst:ma width height count", array,    "src1",      allArrays, matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_tama), "src1:ta src2:ma dst:ma width height count", array,    "src2",      allArrays, matrices32, matrices64},
      {ZELMTEST_ARRAY(zelmSub_tata), "src1:ta src2:ta dst:ma width height count", array,    "",          allArrays, matrices32, matrices64},
  };
  // clang-format on
  f.delegate = [](const Member& m, const Sizes&, bool unit) -> std::string {
    if (m.layout != 'L' || m.formName == "mata")
      return "";
    if (!unit)
      return m.kernelOfOne("_S2");
    static const std::set<std::string> of32 = {"mat", "tata"}, of64 = {"mam", "mat", "mma", "tma", "mama", "tama"};
    return (m.elem == 4 ? of32 : of64).count(m.formName) > 0 ? m.kernelOfOne("") : "";
  };
  f.reference = ofMatrices(std::minus<>{});
  return f;
}

Family vectors() {
  Family f;
  f.name = "Sub on vectors and constants";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmSub_vv),  "src1:v src2:v dst:v len",          single,    "src1 src2"},
      {ZELMTEST_SINGLE(zelmSub_vc),  "src1:v src2:c dst:v len",          single,    "src1"},
      {ZELMTEST_SINGLE(zelmSub_cv),  "src1:v src2:c dst:v len",          single,    "src1"},
      {ZELMTEST_ARRAY(zelmSub_vav),  "src1:va src2:v dst:va len count",  countLast, "src1",      oneArrayOfVectors,   vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmSub_vva),  "src1:v src2:va dst:va len count",  array,     "src2",      oneArrayOfVectors,   vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmSub_vava), "src1:va src2:va dst:va len count", array,     "src1 src2", arraysOfVectors,     vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmSub_vac),  "src1:va src2:c dst:va len count",  array,     "src1",      oneArrayOfVectors,   vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmSub_vca),  "src1:v src2:ca dst:va len count",  array,     "",          vectorAndConstants,  vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmSub_vaca), "src1:va src2:ca dst:va len count", array,     "src1",      vectorsAndConstants, vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmSub_cva),  "src1:va src2:c dst:va len count",  array,     "src1",      withoutLength,       vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmSub_cav),  "src1:v src2:ca dst:va len count",  array,     "",          vectorAndConstants,  vectors32, vectors64},
      {ZELMTEST_ARRAY(zelmSub_cava), "src1:va src2:ca dst:va len count", array,     "src1",      vectorsAndConstants, vectors32, vectors64},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.exceptions = {{"zelmSub_cav_32f_P",
                   [](Member& m) {
                     m.omitted = {"src1Shift", "dstShift"};
                   }},
                  {"zelmSub_vva_64f_P", [](Member& m) { m.front = ""; }}};
  f.delegate = delegateOfVectors;
  f.reference = ofVectors(std::minus<>{});
  return f;
}

const Registration onMatrices{matrices()}, onVectors{vectors()};

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmSub_cva_32f", entered("zelmSub_cva_32f", 1000, 2399));
  EXPECT_EQ("ownOMP_zelmSub_cva_32f", entered("zelmSub_cva_32f", 1000, 2400)); // 4801
  EXPECT_EQ("ownOMP_zelmSub_vac_32f", entered("zelmSub_vac_32f", 1000, 2400));
  EXPECT_EQ("ownOMP_zelmSub_vac_32f", entered("zelmSub_vac_32f", 1000, 3));
  EXPECT_EQ("ownzelmSub_vva_64f_P", entered("zelmSub_vva_64f_P", 1000, 1000));
  EXPECT_EQ("ownOMP_zelmSub_vva_32f_P", entered("zelmSub_vva_32f_P", 1000, 1000));
}

// One call with the same arguments, both ways round; differences of equal elements are +0.
TEST(Results, OrderOfTheSubtraction) {
  const float src[] = {1, 3, 0, -0.0f};
  float dst[4];
  for (float val : {3.0f, 0.0f, -0.0f}) {
    ASSERT_EQ(zelStatusOk, zelmSub_vc_32f(src, 4, val, dst, 4, 4));
    for (int j = 0; j < 4; ++j)
      EXPECT_TRUE(dst[j] == src[j] - val && std::signbit(dst[j]) == std::signbit(src[j] - val));
    ASSERT_EQ(zelStatusOk, zelmSub_cv_32f(src, 4, val, dst, 4, 4));
    for (int j = 0; j < 4; ++j)
      EXPECT_TRUE(dst[j] == val - src[j] && std::signbit(dst[j]) == std::signbit(val - src[j]));
  }
}

TEST(Results, UntestedShifts) {
  checkUntestedShifts<float>(std::minus<>{}, [](auto* src, int shift, auto* constants, auto* dst) {
    return zelmSub_cav_32f_P(src, shift, constants, 4, dst, shift, 4, 3, 2);
  });
}

TEST(Huge, Sub) {
  const std::vector<float> a = hugeValues<float>(static_cast<size_t>(hugeCount<float>(9)) * 9);
  expectHugeAsInSmallCalls<float>(9, [&](int first, int count, float* dst) {
    return zelmSub_mma_32f(a.data(), 12, 4, &a[static_cast<size_t>(first) * 9], 36, 12, 4, dst, 36, 12, 4, 3, 3, count);
  });
  expectHugeAsInSmallCalls<float>(6, [&](int first, int count, float* dst) {
    return zelmSub_cava_32f(&a[static_cast<size_t>(first) * 6], 24, 4, &a[static_cast<size_t>(first)], 4, dst, 24, 4, 6,
                            count);
  });
}

} // namespace
