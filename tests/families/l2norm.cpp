// Lengths of vectors.
#include "sums.h"

#include "../harness/paths.h"

namespace {

using namespace zelmtest;

uint32_t elements(const Sizes& s) {
  return s["len"] * s["count"];
}

constexpr Limits limits = {1500, 1500, 1500, 1500, 1500};

const char* sumName(const Member& m, bool unit) {
  if (m.layout == 'P' || !unit)
    return "tail first";
  return m.elem == 8 ? "norm 64" : m.formName == "v" ? "pairs 64" : "norm 32";
}

template <class Job> auto termsOf(Job& job, int k) {
  auto src = job["src"];
  std::vector<decltype(src(0, 0))> terms;
  for (int j = 0; j < src.cols(); ++j)
    terms.push_back(src(k, j) * src(k, j));
  return terms;
}
template <class T> T root(T sum) {
  return static_cast<T>(std::sqrt(static_cast<double>(sum)));
}
template <class T> void visitTerms(Typed<T>& job, const Visit<T>& visit) {
  visit(termsOf(job, 0), root<T>);
}

Family family() {
  Family f;
  f.name = "L2Norm";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmL2Norm_v), "src:v dst:r len",        {"NZS", nullptr, "NZH"},    ""},
      {ZELMTEST_ARRAY(zelmL2Norm_va), "src:va dst:r len count", {"NCZS", "NCZSH", "NCZSH"}, "", elements, limits, limits},
  };
  // clang-format on
  f.fork = Fork::Above;
  f.reference = both([](auto& job) {
    const Member& m = job.member();
    const int len = job.size("len");
    const bool inLanes = m.formName == "v" && m.layout == 'S' && job.unit() && (len < 3 || len > 6);
    for (int k = 0; k < job.count(); ++k) {
      const auto terms = termsOf(job, k);
      // A root in the element type is the same number.
      job["dst"].set(k, 0,
                     root(inLanes ? longSum(reinterpret_cast<uintptr_t>(job["src"].address()), terms)
                                  : sumOf(sumName(m, job.unit()), len, len, 0, terms)));
    }
  });
  return f;
}

const Registration registration{family()};

TEST(Results, LongVectors) {
  checkLongSums("src");
}

TEST(Results, DataTellsSumsApart) {
  checkDataTellsApart<float>(member("zelmL2Norm_va_32f"), visitTerms<float>, false);
  checkDataTellsApart<double>(member("zelmL2Norm_va_64f"), visitTerms<double>, false);
  checkDataTellsLongSumsApart<float>(member("zelmL2Norm_v_32f"), visitTerms<float>);
  checkDataTellsLongSumsApart<double>(member("zelmL2Norm_v_64f"), visitTerms<double>);
}

TEST(Results, ShortVector) {
  const float vector[] = {3, 4};
  float norm = 0;
  EXPECT_EQ(zelStatusOk, zelmL2Norm_v_32f(vector, 4, &norm, 2));
  EXPECT_EQ(5, norm);
}

TEST(Thresholds, Numbers) {
  if (!countedBuild)
    GTEST_SKIP();
  EXPECT_EQ("ownzelmL2Norm_va_64f", entered("zelmL2Norm_va_64f", 3, 500)); // 1500
  EXPECT_EQ("ownOMP_zelmL2Norm_va_64f", entered("zelmL2Norm_va_64f", 3, 501));
}

} // namespace
