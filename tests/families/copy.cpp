// Arrays copied between the layouts.
#include "huge.h"
#include "large.h"

#include "../harness/job.h"
#include "../harness/run.h"

namespace {

using namespace zelmtest;

// The members of a form for each layout of the result; the orders are those by layout of the source.
#define TO(stem, Y)                                                                                                    \
  {                                                                                                                    \
    ZELMTEST_FN(stem##_32f_S##Y), ZELMTEST_FN(stem##_64f_S##Y), ZELMTEST_FN(stem##_32f_L##Y),                          \
        ZELMTEST_FN(stem##_64f_L##Y), ZELMTEST_FN(stem##_32f_P##Y), ZELMTEST_FN(stem##_64f_P##Y)                       \
  }

Family family() {
  Family f;
  f.name = "Copy";
  // clang-format off
  f.forms = {
      {TO(zelmCopy_ma, S), "src:ma dst:ma width height count", {"NZCS0",  "NZCSH0", "NZCSH0"}},
      {TO(zelmCopy_ma, L), "src:ma dst:ma width height count", {"NZCSH0", "NZCSH0", "NZCSH0"}},
      {TO(zelmCopy_ma, P), "src:ma dst:ma width height count", {"NZCSH0", "NZCSH0", "NZCH0"}},
      {TO(zelmCopy_va, S), "src:va dst:va len count",          {"NZCS0",  "NZCSH0", "NZCSH0"}},
      {TO(zelmCopy_va, L), "src:va dst:va len count",          {"NZCSH0", "NZCSH0", "NZCSH0"}},
      {TO(zelmCopy_va, P), "src:va dst:va len count",          {"NZCSH0", "NZCSH0", "NZCH0"}},
  };
  // clang-format on
  for (const char* name : {"zelmCopy_va_32f_LP", "zelmCopy_va_32f_SP"})
    f.exceptions[name] = [](Member& m) { m.order = "NZCHS0"; };
  f.movesBits = true;
  f.hasKernels = false;
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

TEST(Large, Copy_ma) {
  expectLargeMove<float>([](auto* s, auto* d, int n) { return zelmCopy_ma_32f_SS(s, 4, 4, 4, d, 4, 4, 4, n, n, 1); });
  expectLargeMove<double>([](auto* s, auto* d, int n) { return zelmCopy_ma_64f_SL(s, 8, 8, 8, &d, 0, 8, 8, n, n, 1); });
}

// Results beyond the caches are streamed.
TEST(Huge, Copy_va) {
  constexpr int len = 3, count = hugeCount<float>(len);
  const std::vector<float> src = hugeValues<float>(static_cast<size_t>(len) * static_cast<size_t>(count));
  expectHuge(src, [&](float* dst) { return zelmCopy_va_32f_SS(src.data(), 12, 4, dst, 12, 4, len, count); });
}

} // namespace
