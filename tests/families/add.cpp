// Sums of matrices.
#include "../harness/job.h"

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

} // namespace
