// Scaled sums of vectors: Saxpy and LComb.
#include "elementwise.h"

#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace zelmtest;

constexpr Limits saxpy32 = {3000, 2000, 1500, 1000, 1200}, saxpy64 = {3000, 1200, 1000, 1000, 1200};
constexpr Limits saxpyVva32 = {3000, 2000, 1500, 1500, 1200}; // list, any stride2: as with unit strides
constexpr Limits lcomb32 = {4500, 4500, 4500, 3750, 4500}, lcomb64 = {4500, 4500, 4500, 4500, 4500};

Family saxpy() {
  Family f;
  f.name = "Saxpy";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmSaxpy_vv),  "src1:v val:c src2:v dst:v len",          single, "src1 src2"},
      {ZELMTEST_ARRAY(zelmSaxpy_vav),  "src1:va val:c src2:v dst:va len count",  array,  "src1",      oneArrayOfVectors, saxpy32,    saxpy64},
      {ZELMTEST_ARRAY(zelmSaxpy_vva),  "src1:v val:c src2:va dst:va len count",  array,  "src2",      oneArrayOfVectors, saxpyVva32, saxpy64},
      {ZELMTEST_ARRAY(zelmSaxpy_vava), "src1:va val:c src2:va dst:va len count", array,  "src1 src2", arraysOfVectors,   saxpy32,    saxpy64},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.reference = both([](auto& job) {
    auto src1 = job["src1"], val = job["val"], src2 = job["src2"], dst = job["dst"];
    for (int k = 0; k < job.count(); ++k)
      for (int j = 0; j < job.size("len"); ++j)
        dst.set(k, j, src1(k, j) * val(0, 0) + src2(k, j));
  });
  return f;
}

Family lcomb() {
  Family f;
  f.name = "LComb";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmLComb_vv),  "src1:v val1:c src2:v val2:c dst:v len",          single, "src1 src2"},
      {ZELMTEST_ARRAY(zelmLComb_vav),  "src1:va val1:c src2:v val2:c dst:va len count",  array,  "src1",      oneArrayOfVectors, lcomb32, lcomb64},
      {ZELMTEST_ARRAY(zelmLComb_vava), "src1:va val1:c src2:va val2:c dst:va len count", array,  "src1 src2", arraysOfVectors,   lcomb32, lcomb64},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.reference = both([](auto& job) {
    auto src1 = job["src1"], val1 = job["val1"], src2 = job["src2"], val2 = job["val2"], dst = job["dst"];
    for (int k = 0; k < job.count(); ++k)
      for (int j = 0; j < job.size("len"); ++j)
        dst.set(k, j, src1(k, j) * val1(0, 0) + src2(k, j) * val2(0, 0));
  });
  return f;
}

const Registration registrations[] = {Registration(saxpy()), Registration(lcomb())};

TEST(Results, FactorOfZero) {
  const float src1[] = {1}, src2[] = {std::numeric_limits<float>::quiet_NaN()};
  float dst[] = {1};
  EXPECT_EQ(zelStatusOk, zelmLComb_vv_32f(src1, 4, 2, src2, 4, 0, dst, 4, 1));
  EXPECT_TRUE(std::isnan(dst[0]));
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownOMP_zelmSaxpy_vav_32f", entered("zelmSaxpy_vav_32f", 100, 15)); // 3100
  EXPECT_EQ("ownzelmSaxpy_vav_32f", entered("zelmSaxpy_vav_32f", 100, 14));     // 2900
  EXPECT_EQ("ownOMP_zelmSaxpy_vav_32f", entered("zelmSaxpy_vav_32f", 100, 14, "src2Stride2", 8));
  EXPECT_EQ("ownzelmSaxpy_vva_32f_LS2", entered("zelmSaxpy_vva_32f_L", 16, 37, "src1Stride2", 8)); // 1200
  EXPECT_EQ("ownOMP_zelmSaxpy_vav_32f_L", entered("zelmSaxpy_vav_32f_L", 16, 37, "src1Stride2", 8));
  EXPECT_EQ("ownzelmLComb_vava_32f_L", entered("zelmLComb_vava_32f_L", 5, 300)); // 4500
  EXPECT_EQ("ownOMP_zelmLComb_vava_32f_L", entered("zelmLComb_vava_32f_L", 5, 251, "dstStride2", 8));
}

} // namespace
