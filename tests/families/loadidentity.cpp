// Identity matrices.
#include "large.h"

#include "../harness/job.h"
#include "../harness/run.h"

namespace {

using namespace zelmtest;

Family family() {
  Family f;
  f.name = "LoadIdentity";
  f.forms = {{ZELMTEST_ARRAY(zelmLoadIdentity_ma), "dst:ma width height count", {"NZCS0", "NZCSH0", "NZCH0"}}};
  f.exceptions["zelmLoadIdentity_ma_32f_P"] = [](Member& m) { m.order = "NZHC0"; };
  f.movesBits = true; // a zero is +0.0
  f.hasKernels = false;
  f.reference = both([](auto& job) {
    auto dst = job["dst"];
    for (int k = 0; k < job.count(); ++k)
      for (int i = 0; i < job.size("height"); ++i)
        for (int j = 0; j < job.size("width"); ++j)
          dst.set(k, i, j, i == j ? 1 : 0);
  });
  return f;
}

const Registration registration{family()};

// Rows an element apart, written in ascending order: what is left is the first element of each row, and the last row.
TEST(Large, LoadIdentity_ma) {
  std::vector<float> dst(2 * largeSide - 1, -1.0F), expected(dst.size());
  expected.front() = expected.back() = 1;
  ASSERT_EQ(zelStatusOk, zelmLoadIdentity_ma_32f(dst.data(), 4, 4, 4, largeSide, largeSide, 1));
  EXPECT_EQ(expected, dst);
}

} // namespace
