// The two services that the library takes from its surroundings: the thread count and the cache size.
#include "zelmkernel.h"

#include <initializer_list>
#include <omp.h>
#include <unistd.h>

// The runtime's maximum, so that OMP_NUM_THREADS and omp_set_num_threads rule.
extern "C" int32_t ownGetNumThreads() {
  return omp_get_max_threads();
}

// Asks the system at each call; leaves *bytes alone if the system cannot tell.
extern "C" void zelGetMaxCacheSizeB(int32_t* bytes) {
  for (const int level :
       {_SC_LEVEL4_CACHE_SIZE, _SC_LEVEL3_CACHE_SIZE, _SC_LEVEL2_CACHE_SIZE, _SC_LEVEL1_DCACHE_SIZE}) {
    const long size = sysconf(level);
    if (size > 0) {
      *bytes = size > INT32_MAX ? INT32_MAX : static_cast<int32_t>(size);
      return;
    }
  }
}
