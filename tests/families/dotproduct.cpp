// Dot products.
#include "sums.h"

#include "../harness/paths.h"

namespace {

using namespace zelmtest;

uint32_t oneArray(const Sizes& s) {
  return s["len"] * (s["count"] + 1);
}
uint32_t bothArrays(const Sizes& s) {
  return 2 * s["len"] * s["count"];
}

constexpr Orders single = {"NZS", nullptr, "NZH"}, array = {"NCZS", "NCZSH", "NCZSH"};
constexpr Limits limits32 = {5000, 2620, 2400, 2400, 2400}, limits64 = {3500, 2000, 4200, 3300, 2000};

const char* sumName(const Member& m, bool unit) {
  if (m.layout == 'P')
    return "chain";
  if (!unit)
    return "tail pair";
  return m.elem == 8 ? "dot 64" : m.formName == "vav" ? "two pairs" : "chain";
}

template <class Job> auto termsOf(Job& job, int k) {
  auto src1 = job["src1"], src2 = job["src2"];
  std::vector<decltype(src1(0, 0))> terms;
  for (int j = 0; j < src1.cols(); ++j)
    terms.push_back(src1(k, j) * src2(k, j));
  return terms;
}
template <class T> void visitTerms(Typed<T>& job, const Visit<T>& visit) {
  visit(termsOf(job, 0), [](T sum) { return sum; });
}

Family family() {
  Family f;
  f.name = "DotProduct";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmDotProduct_vv),  "src1:v src2:v dst:r len",          single, ""},
      {ZELMTEST_ARRAY(zelmDotProduct_vav),  "src1:va src2:v dst:r len count",   array,  "", oneArray,   limits32, limits64},
      {ZELMTEST_ARRAY(zelmDotProduct_vava), "src1:va src2:va dst:r len count",  array,  "", bothArrays, limits32, limits64},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.dataKinds.push_back(negativeZeros);
  f.fill = bothFill([](auto& job, Rng& rng, int kind) { fillSums(job, rng, kind); });
  f.reference = both([](auto& job) {
    const Member& m = job.member();
    const int len = job.size("len");
    const bool inLanes = m.formName == "vv" && m.layout == 'S' && job.unit() && (len < 3 || len > 6);
    for (int k = 0; k < job.count(); ++k) {
      const auto terms = termsOf(job, k);
      job["dst"].set(k, 0,
                     inLanes ? longSum(reinterpret_cast<uintptr_t>(job["src2"].address()), terms)
                             : sumOf(sumName(m, job.unit()), len, len, 0, terms));
    }
  });
  return f;
}

const Registration registration{family()};

TEST(Results, ProductsOfNegativeZeros) {
  checkNegativeZeros();
}

TEST(Results, LongVectors) {
  checkLongSums("src2");
}

TEST(Results, DataTellsSumsApart) {
  checkDataTellsApart<float>(member("zelmDotProduct_vav_32f"), visitTerms<float>);
  checkDataTellsApart<double>(member("zelmDotProduct_vav_64f"), visitTerms<double>);
  checkDataTellsLongSumsApart<float>(member("zelmDotProduct_vv_32f"), visitTerms<float>);
  checkDataTellsLongSumsApart<double>(member("zelmDotProduct_vv_64f"), visitTerms<double>);
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmDotProduct_vava_32f", entered("zelmDotProduct_vava_32f", 5, 500)); // 5000
  EXPECT_EQ("ownOMP_zelmDotProduct_vava_32f", entered("zelmDotProduct_vava_32f", 5, 501));
  EXPECT_EQ("ownOMP_zelmDotProduct_vava_32f", entered("zelmDotProduct_vava_32f", 5, 500, "src2Stride2", 8));
  EXPECT_EQ("ownzelmDotProduct_vav_64f_LS2", entered("zelmDotProduct_vav_64f_L", 10, 329, "src1Stride2", 16)); // 3300
  EXPECT_EQ("ownzelmDotProduct_vav_64f_L", entered("zelmDotProduct_vav_64f_L", 10, 419));
}

} // namespace
