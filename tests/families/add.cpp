// Sums of matrices.
#include "huge.h"

#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

namespace {

using namespace zelmtest;

uint32_t oneArray(const Sizes& s) {
  return s["width"] * s["height"] * (2 * s["count"] + 1);
}
uint32_t allArrays(const Sizes& s) {
  return 3 * s["width"] * s["height"] * s["count"];
}

constexpr Orders single = {"NZS", nullptr, "NZH"}, array = {"NCZS", "NCZSH", "NCZSH"};
constexpr Limits limits32 = {3000, 2000, 2000, 2000, 2000}, limits64 = {2000, 2000, 2000, 2000, 2000};

Family family() {
  Family f;
  f.name = "Add on matrices";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmAdd_mm),  "src1:m src2:m dst:m width height",           single, "src1 src2"},
      {ZELMTEST_SINGLE(zelmAdd_tm),  "src1:t src2:m dst:m width height",           single, "src2"},
      {ZELMTEST_SINGLE(zelmAdd_tt),  "src1:t src2:t dst:m width height",           single, ""},
      // The size test of the standard layout comes last.
      {ZELMTEST_ARRAY(zelmAdd_mam),  "src1:ma src2:m dst:ma width height count",   {"NCSZ", "NCZSH", "NCZSH"},
                                                                                          "src1",      oneArray,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmAdd_mat),  "src1:ma src2:t dst:ma width height count",   array, "src1",      oneArray,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmAdd_tam),  "src1:ta src2:m dst:ma width height count",   array, "",          oneArray,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmAdd_tat),  "src1:ta src2:t dst:ma width height count",   array, "",          oneArray,  limits32, limits64},
      {ZELMTEST_ARRAY(zelmAdd_mama), "src1:ma src2:ma dst:ma width height count",  array, "src1 src2", allArrays, limits32, limits64},
      {ZELMTEST_ARRAY(zelmAdd_tama), "src1:ta src2:ma dst:ma width height count",  array, "src2",      allArrays, limits32, limits64},
      {ZELMTEST_ARRAY(zelmAdd_tata), "src1:ta src2:ta dst:ma width height count",  array, "",          allArrays, limits32, limits64},
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
  f.reference = both([](auto& job) {
    auto src1 = job["src1"], src2 = job["src2"], dst = job["dst"];
    for (int k = 0; k < job.count(); ++k)
      for (int i = 0; i < job.size("height"); ++i)
        for (int j = 0; j < job.size("width"); ++j)
          dst.set(k, i, j, src1(k, i, j) + src2(k, i, j));
  });
  return f;
}

const Registration registration{family()};

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

} // namespace
