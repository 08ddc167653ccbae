// Cross products.
#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using namespace zelmtest;

// Vectors, not elements.
uint32_t oneArray(const Sizes& s) {
  return 2 * s["count"] + 1;
}
uint32_t allArrays(const Sizes& s) {
  return 3 * s["count"];
}

// The count of vav is tested behind the strides, in the list layout behind the shifts.
constexpr Orders single = {"NS", nullptr, "NH"}, array = {"NCS", "NCSH", "NCSH"}, vav = {"NSC", "NSHC", "NSCH"};
constexpr Limits limits = {3000, 3000, 3000, 3000, 3000};

Family family() {
  Family f;
  f.name = "CrossProduct";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmCrossProduct_vv),  "src1:v src2:v dst:v",           single, ""},
      {ZELMTEST_ARRAY(zelmCrossProduct_vav),  "src1:va src2:v dst:va count",   vav,    "", oneArray,  limits, limits},
      {ZELMTEST_ARRAY(zelmCrossProduct_vva),  "src1:v src2:va dst:va count",   array,  "", oneArray,  limits, limits},
      {ZELMTEST_ARRAY(zelmCrossProduct_vava), "src1:va src2:va dst:va count",  array,  "", allArrays, limits, limits},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.shape = [](const Member&, const std::string&, const Sizes&) { return Shape{1, 3}; };
  f.exceptions = {{"zelmCrossProduct_vva_64f_P", [](Member& m) { m.front = ""; }}};
  f.reference = both([](auto& job) {
    auto a = job["src1"], b = job["src2"], dst = job["dst"];
    for (int k = 0; k < job.count(); ++k) {
      dst.set(k, 0, a(k, 1) * b(k, 2) - a(k, 2) * b(k, 1));
      dst.set(k, 1, a(k, 2) * b(k, 0) - a(k, 0) * b(k, 2));
      dst.set(k, 2, a(k, 0) * b(k, 1) - a(k, 1) * b(k, 0));
    }
  });
  return f;
}

const Registration registration{family()};

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmCrossProduct_vava_32f", entered("zelmCrossProduct_vava_32f", 3, 1000)); // 3000
  EXPECT_EQ("ownOMP_zelmCrossProduct_vava_32f", entered("zelmCrossProduct_vava_32f", 3, 1001));
  EXPECT_EQ("ownzelmCrossProduct_vav_32f_S2", entered("zelmCrossProduct_vav_32f", 3, 1499, "dstStride2", 8));
  EXPECT_EQ("ownOMP_zelmCrossProduct_vav_32f", entered("zelmCrossProduct_vav_32f", 3, 1500, "dstStride2", 8)); // 3001
  EXPECT_EQ("ownOMP_zelmCrossProduct_vva_32f_P", entered("zelmCrossProduct_vva_32f_P", 3, 1500));
  EXPECT_EQ("ownzelmCrossProduct_vva_64f_P", entered("zelmCrossProduct_vva_64f_P", 3, 1500));
}

TEST(Results, VectorByItself) {
  const double vector[] = {1, -2, 3};
  double product[] = {1, 1, 1};
  EXPECT_EQ(zelStatusOk, zelmCrossProduct_vv_64f(vector, 8, vector, 8, product, 8));
  for (double element : product)
    EXPECT_TRUE(element == 0 && !std::signbit(element));
}

} // namespace
