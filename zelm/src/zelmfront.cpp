#include "zelmfront.h"

#include <cstddef>
#include <omp.h>

#ifdef __clang__
// Exported by libomp, but not declared in its header.
extern "C" void* kmpc_malloc(std::size_t bytes);
extern "C" void kmpc_free(void* block);
#endif

namespace zelm {
namespace {

// The runtime's allocator: kmpc_malloc is libomp's, libgomp has the OpenMP one.
char* allocateScratch(std::size_t bytes) {
#ifdef __clang__
  return static_cast<char*>(kmpc_malloc(bytes));
#else
  return static_cast<char*>(omp_alloc(bytes, omp_default_mem_alloc));
#endif
}

void freeScratch(char* block) {
  if (block == nullptr)
    return;
#ifdef __clang__
  kmpc_free(block);
#else
  omp_free(block, omp_default_mem_alloc);
#endif
}

// What the threads of a team share.
struct Team {
  int32_t quotient;
  int32_t remainder;
};

// The shares follow from the team's actual size: the first `remainder` threads carry one object more.
Share shareOf(const Team& team, int32_t thread, char* scratch) {
  const int64_t q = team.quotient;
  const int64_t r = team.remainder;
  const int64_t t = thread;
  if (t < r)
    return {(q + 1) * t, team.quotient + 1, thread, scratch};
  return {(q + 1) * r + q * (t - r), team.quotient, thread, scratch};
}

template <class Done>
bool runTeam(int32_t threads, int32_t count, int32_t scratchBytes, ShareFunction work, const void* call,
             const Done& done) {
  char* scratch = nullptr;
  if (scratchBytes != 0) {
    // The total is a 32-bit number; one that does not fit cannot be had.
    const auto total = static_cast<int32_t>(static_cast<uint32_t>(threads) * static_cast<uint32_t>(scratchBytes));
    const bool fits = static_cast<int64_t>(threads) * scratchBytes == total;
    scratch = fits ? allocateScratch(static_cast<std::size_t>(total)) : nullptr;
    if (scratch == nullptr)
      return false;
  }
  Team team{0, 0};
#pragma omp parallel num_threads(ownGetNumThreads())
  {
#pragma omp master
    {
      const int32_t size = omp_get_num_threads();
      team = {count / size, count % size};
    }
#pragma omp barrier
    done(work(call, shareOf(team, omp_get_thread_num(), scratch)));
  }
  freeScratch(scratch);
  return true;
}

} // namespace

bool runOnTeam(int32_t threads, int32_t count, int32_t scratchBytes, ShareFunction work, const void* call) {
  return runTeam(threads, count, scratchBytes, work, call, [](ZelStatus) {});
}

bool runOnTeamMerging(int32_t threads, int32_t count, int32_t scratchBytes, ShareFunction work, const void* call,
                      ZelStatus& status) {
  return runTeam(threads, count, scratchBytes, work, call, [&status](ZelStatus one) {
#pragma omp critical
    {
      if (status == zelStatusOk)
        status = one;
    }
  });
}

} // namespace zelm
