// Matrices and vectors times constants.
#include "elementwise.h"
#include "huge.h"

#include "../harness/paths.h"
#include "../harness/run.h"

namespace {

using namespace zelmtest;

uint32_t matrices(const Sizes& s) {
  return 2 * s["width"] * s["height"] * s["count"];
}
uint32_t vectors(const Sizes& s) {
  return 2 * s["len"] * s["count"];
}

constexpr Limits matrix32 = {3500, 3500, 3500, 1500, 1700}, matrix64 = {3500, 3500, 3500, 3500, 1700};
constexpr Limits vector32 = {2500, 1440, 3600, 1440, 1440}, vector64 = {3600, 1440, 3600, 1440, 1440};
constexpr Limits constants = {2100, 2100, 1200, 1200, 650};

Family family() {
  Family f;
  f.name = "Mul by a constant";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmMul_mc),  "src:m val:c dst:m width height",         single, "src"},
      {ZELMTEST_SINGLE(zelmMul_tc),  "src:t val:c dst:m width height",         single, ""},
      {ZELMTEST_SINGLE(zelmMul_vc),  "src:v val:c dst:v len",                  single, "src"},
      {ZELMTEST_ARRAY(zelmMul_mac),  "src:ma val:c dst:ma width height count", array,  "src", matrices,            matrix32,  matrix64},
      {ZELMTEST_ARRAY(zelmMul_tac),  "src:ta val:c dst:ma width height count", array,  "",    matrices,            matrix32,  matrix64},
      {ZELMTEST_ARRAY(zelmMul_vac),  "src:va val:c dst:va len count",          array,  "src", vectors,             vector32,  vector64},
      {ZELMTEST_ARRAY(zelmMul_vca),  "src:v val:ca dst:va len count",          array,  "",    vectorAndConstants,  constants, constants},
      {ZELMTEST_ARRAY(zelmMul_vaca), "src:va val:ca dst:va len count",         array,  "src", vectorsAndConstants, constants, constants},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.delegate = [](const Member& m, const Sizes&, bool unit) {
    const bool matrices = m.formName == "mac" || m.formName == "tac";
    return matrices && m.layout != 'P' && !unit ? m.kernelOfOne("_S2") : "";
  };
  f.reference = both([](auto& job) {
    auto src = job["src"], val = job["val"], dst = job["dst"];
    const bool vector = job.member().formName[0] == 'v';
    const int rows = vector ? 1 : job.size("height"), cols = job.size(vector ? "len" : "width");
    for (int k = 0; k < job.count(); ++k)
      for (int i = 0; i < rows; ++i)
        for (int j = 0; j < cols; ++j)
          dst.set(k, i, j, src(k, i, j) * val(k, 0));
  });
  return f;
}

const Registration registration{family()};

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmMul_vca_32f", entered("zelmMul_vca_32f", 10, 190)); // 2100
  EXPECT_EQ("ownOMP_zelmMul_vca_32f", entered("zelmMul_vca_32f", 10, 191));
  EXPECT_EQ("ownzelmMul_mac_32f_L", entered("zelmMul_mac_32f_L", 3, 84)); // 1512
  EXPECT_EQ("ownOMP_zelmMul_mac_32f_L", entered("zelmMul_mac_32f_L", 3, 84, "srcStride2", 8));
  EXPECT_EQ("ownOMP_zelmMul_mac_32f_L", entered("zelmMul_mac_32f_L", 3, 84, "dstStride2", 8));
  EXPECT_EQ("ownzelmMul_mac_32f_LS2", entered("zelmMul_mac_32f_L", 3, 83, "srcStride2", 8));
}

TEST(Huge, Mul_mac) {
  constexpr int each = 9, object = 4 * each;
  const auto src = hugeValues<float>(static_cast<size_t>(each) * static_cast<size_t>(hugeCount<float>(each)));
  expectHugeAsInSmallCalls<float>(each, [&](int first, int count, float* dst) {
    return zelmMul_mac_32f(&src[static_cast<size_t>(first * each)], object, 12, 4, 0.7f, dst, object, 12, 4, 3, 3,
                           count);
  });
}

} // namespace
