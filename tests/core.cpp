// What the library takes from its surroundings: functions that are hidden in the shared library.
#include <gtest/gtest.h>
#include <omp.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <limits>

extern "C" int32_t ownGetNumThreads();
extern "C" void zelGetMaxCacheSizeB(int32_t* bytes);

namespace {

TEST(Core, ThreadsAreTheRuntimes) {
  EXPECT_EQ(omp_get_max_threads(), ownGetNumThreads());
  for (int threads : {1, 2, 7, 3}) {
    omp_set_num_threads(threads);
    EXPECT_EQ(threads, ownGetNumThreads());
  }
}

TEST(Core, LargestCache) {
  const long largest = std::max({sysconf(_SC_LEVEL1_DCACHE_SIZE), sysconf(_SC_LEVEL2_CACHE_SIZE),
                                 sysconf(_SC_LEVEL3_CACHE_SIZE), sysconf(_SC_LEVEL4_CACHE_SIZE)});
  for (int32_t before : {0, 12345}) {
    int32_t bytes = before;
    zelGetMaxCacheSizeB(&bytes);
    if (largest > 0)
      EXPECT_EQ(std::min<long>(largest, std::numeric_limits<int32_t>::max()), bytes);
    else
      EXPECT_EQ(before, bytes) << "the system cannot tell";
  }
}

} // namespace
