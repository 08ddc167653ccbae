// ZELMTEST_COUNTED tells whether the program's library reports entries.
#include "paths.h"
#include "run.h"

#include <gtest/gtest.h>
#include <omp.h>
#include <xmmintrin.h>

#include <cstdio>

namespace zelmtest {
const bool countedBuild = ZELMTEST_COUNTED != 0;
void registerChecks();
} // namespace zelmtest

int main(int argc, char** argv) {
  // Read before anything else: loading the library has not changed how arithmetic works.
  const unsigned control = _mm_getcsr() & 0xffc0u;
  testing::InitGoogleTest(&argc, argv);
  if (control != 0x1f80u) {
    std::printf("control register at start: %#x\n", control);
    return 1;
  }
  omp_set_max_active_levels(1);
  omp_set_num_threads(1);
  zelmtest::installCrashReport();
  zelmtest::registerChecks();
  return RUN_ALL_TESTS();
}
