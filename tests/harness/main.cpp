// ZELMTEST_COUNTED tells whether the program's library reports entries.
#include "paths.h"
#include "run.h"

#include <gtest/gtest.h>
#include <omp.h>
#include <xmmintrin.h>

#include <dlfcn.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace zelmtest {
const bool countedBuild = ZELMTEST_COUNTED != 0;
void registerChecks();
size_t ranCases();
} // namespace zelmtest

int main(int argc, char** argv) {
  // Read before anything else: loading the library has not changed how arithmetic works.
  const unsigned control = _mm_getcsr() & 0xffc0u;
  testing::InitGoogleTest(&argc, argv);
  if (control != 0x1f80u) {
    std::printf("control register at start: %#x\n", control);
    return 1;
  }
  if (Dl_info library; !zelmtest::countedBuild && dladdr(reinterpret_cast<void*>(zelmGetLibVersion), &library) != 0 &&
                       std::strstr(library.dli_fname, "glibc-hwcaps") == nullptr)
    std::printf("no wider library for this processor: what runs is the one for all processors once more\n");
  omp_set_max_active_levels(1);
  omp_set_num_threads(1);
  zelmtest::installCrashReport();
  zelmtest::registerChecks();
  const int result = RUN_ALL_TESTS();
  // What looks at nothing has not passed.
  if (testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
    std::printf("no test has been run\n");
    return 1;
  }
  if (std::getenv("ZELM_REPLAY") != nullptr && zelmtest::ranCases() == 0) {
    std::printf("no such case: ZELM_REPLAY=%s\n", std::getenv("ZELM_REPLAY"));
    return 1;
  }
  return result;
}
