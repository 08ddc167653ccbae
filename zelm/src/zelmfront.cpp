#include "zelmfront.h"

#include <cstddef>
#include <omp.h>

#ifdef __clang__
// Exported by libomp, but not declared in its header.
extern "C" void* kmpc_malloc(std::size_t bytes);
extern "C" void kmpc_free(void* block);
#else
#  include <cstdio>
#  include <cstring>
#  include <fcntl.h>
#  include <sys/single_threaded.h>
#  include <sys/stat.h>
#  include <unistd.h>
#endif

// What is worth a thread, in additions: 30 to 40 microseconds on 16-byte vectors, half of it on wider ones. A team that
// is awake costs its caller 0.7 microseconds, one that has fallen asleep 20 to 100, and which of the two it is cannot
// be known. Below two threads' worth the caller works alone: at worst it takes as many times as long as there are
// cores, if the team was awake. From there on a sleeping team makes a call at most about twice as long.
static constexpr double worthOfThread = 1e6;

extern "C" int32_t ownGetTeamSize(int32_t threads, double additions) {
  const double fed = additions / worthOfThread;
  if (fed < 2)
    return 1;
  if (fed >= threads)
    return threads;
  // There are as many shares as threads: more of these than it takes to run so many shares each would gain nothing.
  const auto most = static_cast<int32_t>(fed);
  const int32_t each = (threads + most - 1) / most;
  return (threads + each - 1) / each;
}

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
#ifdef __clang__
  kmpc_free(block);
#else
  omp_free(block, omp_default_mem_alloc);
#endif
}

// The one caller's scratch needs no block up to this size.
constexpr int32_t stackBytes = 4096;

// Contiguous and ascending parts of a whole, the first of them larger by one where it is no multiple of their number.
struct Split {
  int32_t quotient;
  int32_t remainder;
  Split(int32_t whole, int32_t parts) : quotient(whole / parts), remainder(whole % parts) {}
  int32_t first(int32_t part) const { return quotient * part + (part < remainder ? part : remainder); }
};

// Calls work from object `first` up to object `end` on the thread's part of the scratch.
ZelStatus runObjects(const Forked& forked, char* scratch, int32_t member, int32_t first, int32_t end) {
  return forked.work(forked.call, {first, end - first, member, scratch});
}

// One thread of a team of `members`. The shares follow from the team's actual size where each thread has its own.
template <class Done>
void runMember(const Forked& forked, char* scratch, int32_t member, int32_t members, const Done& done) {
  const int32_t shares = forked.team < forked.threads ? forked.threads : members;
  const Split objects(forked.count, shares);
  const Split groups(shares, members);
  const int32_t first = groups.first(member);
  const int32_t end = groups.first(member + 1);
  if constexpr (Done::merges) {
    for (int32_t share = first; share < end; ++share)
      done(runObjects(forked, scratch, member, objects.first(share), objects.first(share + 1)));
  } else {
    runObjects(forked, scratch, member, objects.first(first), objects.first(end));
  }
}

#ifdef __clang__
bool hasLostThreads() {
  return false; // libomp starts new ones
}
#else
// In the child of a process that has had a team, libgomp takes the parent's threads for its own, and waits for them for
// ever. So a process that has been forked, has had threads and is alone now starts none.
bool hasLostThreads() {
  if (__libc_single_threaded != 0)
    return false;
  struct stat tasks;
  if (stat("/proc/self/task", &tasks) != 0 || tasks.st_nlink != 3) // . and .. and one thread
    return false;
  char text[512];
  const int file = open("/proc/self/stat", O_RDONLY | O_CLOEXEC);
  const ssize_t length = read(file, text, sizeof text - 1);
  close(file);
  if (length <= 0)
    return false;
  text[length] = 0;
  const char* const name = std::strrchr(text, ')');
  unsigned flags = 0;
  constexpr unsigned forkedWithoutExec = 0x40;
  return name != nullptr && std::sscanf(name + 1, " %*c %*d %*d %*d %*d %*d %u", &flags) == 1 &&
         (flags & forkedWithoutExec) != 0;
}
#endif

template <class Done> void runTeam(const Forked& forked, char* scratch, const Done& done) {
  if (forked.team == 1 || hasLostThreads()) {
    runMember(forked, scratch, 0, 1, done);
    return;
  }
#pragma omp parallel num_threads(forked.team)
  runMember(forked, scratch, omp_get_thread_num(), omp_get_num_threads(), done);
}

template <class Done> bool runWithScratch(const Forked& forked, const Done& done) {
  if (forked.scratchBytes == 0) {
    runTeam(forked, nullptr, done);
    return true;
  }
  if (forked.team == 1 && forked.scratchBytes > 0 && forked.scratchBytes <= stackBytes) {
    alignas(std::max_align_t) char scratch[stackBytes];
    runTeam(forked, scratch, done);
    return true;
  }
  // The total is a 32-bit number; one that does not fit cannot be had.
  const int64_t total = static_cast<int64_t>(forked.team) * forked.scratchBytes;
  char* const scratch = total >= 0 && total <= INT32_MAX ? allocateScratch(static_cast<std::size_t>(total)) : nullptr;
  if (scratch == nullptr)
    return false;
  runTeam(forked, scratch, done);
  freeScratch(scratch);
  return true;
}

struct Discard {
  static constexpr bool merges = false;
};

struct Merge {
  static constexpr bool merges = true;
  ZelStatus& status;
  void operator()(ZelStatus one) const {
    if (one == zelStatusOk)
      return;
#pragma omp critical
    {
      if (status == zelStatusOk)
        status = one;
    }
  }
};

} // namespace

bool runShares(const Forked& forked) {
  return runWithScratch(forked, Discard{});
}

bool runSharesMerging(const Forked& forked, ZelStatus& status) {
  return runWithScratch(forked, Merge{status});
}

} // namespace zelm
