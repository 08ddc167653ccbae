// Objects packed into one run.
#include "large.h"

#include "../harness/job.h"
#include "../harness/run.h"

#include <sys/mman.h>
#include <unistd.h>

namespace {

using namespace zelmtest;

constexpr Orders array = {"NZCS", "NZCHS", "NZCHS"}, single = {"NZS", nullptr, "ZNH"};

Family family() {
  Family f;
  f.name = "Extract";
  // clang-format off
  f.forms = {
      {ZELMTEST_SINGLE(zelmExtract_m), "src:m dst:x width height",        single},
      {ZELMTEST_SINGLE(zelmExtract_t), "src:t dst:x width height",        single},
      {ZELMTEST_SINGLE(zelmExtract_v), "src:v dst:x len",                 single},
      {ZELMTEST_ARRAY(zelmExtract_ma), "src:ma dst:x width height count", array},
      {ZELMTEST_ARRAY(zelmExtract_ta), "src:ta dst:x width height count", array},
      {ZELMTEST_ARRAY(zelmExtract_va), "src:va dst:x len count",          array},
  };
  // clang-format on
  f.exceptions["zelmExtract_v_32f_P"] = [](Member& m) { m.order = "NZH"; };
  f.movesBits = true;
  f.hasKernels = false;
  f.shape = [](const Member&, const std::string& operand, const Sizes& s) -> Shape {
    if (operand == "src")
      return {0, 0};
    return s.has("len") ? Shape{1, s.get("len")} : Shape{s.get("height"), s.get("width")};
  };
  f.reference = both([](auto& job) {
    auto src = job["src"], dst = job["dst"];
    for (int k = 0; k < job.count(); ++k)
      for (int i = 0; i < src.rows(); ++i)
        for (int j = 0; j < src.cols(); ++j)
          dst.set(k, i, j, src(k, i, j));
  });
  return f;
}

const Registration registration{family()};

TEST(Extract, Transposed) {
  const float stored[] = {1, 2, 3, 4, 5, 6}, expected[] = {1, 4, 2, 5, 3, 6};
  float dst[6] = {};
  ASSERT_EQ(zelStatusOk, zelmExtract_t_32f(stored, 12, 4, dst, 2, 3));
  EXPECT_TRUE(std::equal(std::begin(dst), std::end(dst), expected));
}

// 8 GiB of result in a window of memory that repeats: what was written last stays.
TEST(Large, Extract_ma) {
  constexpr int side = largeSide;
  constexpr size_t window = size_t{64} << 20, elements = size_t{side} * side;
  constexpr size_t windows = (elements * sizeof(float) + window - 1) / window;
  const int file = memfd_create("window", 0);
  ASSERT_EQ(0, ftruncate(file, window));
  void* const memory = mmap(nullptr, windows * window, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  ASSERT_NE(MAP_FAILED, memory);
  auto* const bytes = static_cast<unsigned char*>(memory);
  for (size_t w = 0; w < windows; ++w)
    ASSERT_NE(MAP_FAILED,
              mmap(bytes + w * window, window, PROT_READ | PROT_WRITE, MAP_SHARED | MAP_FIXED | MAP_POPULATE, file, 0));
  // Rows of the source lie an element apart: element (i, j) is i + j + 1.
  std::vector<float> src(2 * side);
  std::iota(src.begin(), src.end(), 1.0F);
  const auto* const dst = static_cast<const float*>(memory);
  EXPECT_EQ(zelStatusOk, zelmExtract_ma_32f(src.data(), 4, 4, 4, static_cast<float*>(memory), side, side, 1));
  size_t wrong = 0;
  for (size_t e = elements - window / sizeof(float); e < elements; ++e)
    wrong += dst[e] == src[e / side + e % side] ? 0 : 1;
  EXPECT_EQ(0u, wrong);
  munmap(memory, windows * window);
  close(file);
}

} // namespace
