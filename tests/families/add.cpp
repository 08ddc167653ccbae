// Sums of matrices.
#include "../harness/job.h"
#include "../harness/paths.h"
#include "../harness/run.h"

#include <gtest/gtest.h>

#include <numeric>
#include <omp.h>

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

// Single calls and what they enter first, as plain numbers.
TEST(Entries, Add) {
  if (!countedBuild)
    GTEST_SKIP();
  struct {
    const char* member;
    int32_t width, height, count, src1Stride2;
    const char* entered;
  } const calls[] = {
      {"zelmAdd_mam_32f", 3, 3, 111, 4, "ownzelmAdd_mam_32f"},
      {"zelmAdd_mam_32f", 3, 3, 111, 8, "ownOMP_zelmAdd_mam_32f"},
      {"zelmAdd_mam_64f", 3, 3, 111, 8, "ownOMP_zelmAdd_mam_64f"},
      {"zelmAdd_mam_64f", 3, 3, 110, 16, "ownzelmAdd_mam_64f_S2"},
      {"zelmAdd_mama_32f_L", 4, 4, 41, 4, "ownzelmAdd_mama_32f_L"},
      {"zelmAdd_mama_32f_L", 4, 4, 42, 4, "ownOMP_zelmAdd_mama_32f_L"},
      {"zelmAdd_mama_32f_L", 4, 4, 41, 12, "ownzelmAdd_mama_32f_LS2"},
      {"zelmAdd_mama_32f_P", 1000, 1000, 1000, 0, "ownzelmAdd_mama_32f_P"},     // 3e9 is negative
      {"zelmAdd_mama_32f_P", 1000, 1000, 1500, 0, "ownOMP_zelmAdd_mama_32f_P"}, // 4.5e9 is positive again
  };
  for (const auto& call : calls) {
    const Member& m = member(call.member);
    Sizes sizes = m.square(call.width, call.count);
    sizes.set("height", call.height);
    std::vector<Slot> slots = wildSlots(m, sizes);
    for (size_t i = 0; i < slots.size(); ++i)
      if (m.arguments[i].name == "src1Stride2")
        slots[i].integer = call.src1Stride2;
    EXPECT_EQ(call.entered, probe(m, slots)) << call.member << sizes.text();
  }
}

// Packed batches whose result is larger than any cache, with dst at every offset from a vector.
template <class T, class Call> void huge(int arrays, Call call) {
  constexpr int side = 3, count = (100 << 20) / static_cast<int>(side * side * sizeof(T)) + 5;
  constexpr size_t each = side * side, n = each * static_cast<size_t>(count);
  omp_set_num_threads(1);
  std::vector<T> a(n), b(arrays == 2 ? n : each), result(n + 16);
  std::iota(a.begin(), a.end(), T(1) / 3);
  std::iota(b.begin(), b.end(), T(7));
  for (size_t offset : {size_t{0}, size_t{1}, size_t{3}}) {
    std::fill(result.begin(), result.end(), T(-1));
    ASSERT_EQ(zelStatusOk, call(a.data(), b.data(), &result[offset], side * static_cast<int>(sizeof(T)), count));
    for (size_t i = 0; i < result.size(); ++i) {
      T expected = i < offset || i >= offset + n ? T(-1) : a[i - offset] + b[(i - offset) % b.size()];
      ASSERT_EQ(expected, result[i]) << "element " << i << " at offset " << offset;
    }
  }
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
