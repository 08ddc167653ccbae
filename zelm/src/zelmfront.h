// The parallel fronts: one share of the objects for each thread.
#pragma once

#include "zelmframe.h"

namespace zelm {

// One share of a front's work; `call` is what the front wants done.
using ShareFunction = ZelStatus (*)(const void* call, const Share& share);

// Forks: splits count objects over the team, contiguous and ascending, and calls work(call, share) on each thread.
// Each of `threads` threads has scratchBytes of the front's block. Returns false if the block cannot be had; nothing
// has been done then. Kernels that cannot fail need no merge: their statuses are discarded.
bool runOnTeam(int32_t threads, int32_t count, int32_t scratchBytes, ShareFunction work, const void* call);
// The same for kernels that can fail: the first failure to arrive is stored to status.
bool runOnTeamMerging(int32_t threads, int32_t count, int32_t scratchBytes, ShareFunction work, const void* call,
                      ZelStatus& status);

struct Discards {
  static bool run(int32_t threads, int32_t count, int32_t scratchBytes, ShareFunction work, const void* call,
                  ZelStatus&) {
    return runOnTeam(threads, count, scratchBytes, work, call);
  }
};
struct Merges {
  static bool run(int32_t threads, int32_t count, int32_t scratchBytes, ShareFunction work, const void* call,
                  ZelStatus& status) {
    return runOnTeamMerging(threads, count, scratchBytes, work, call, status);
  }
};

template <class... A> constexpr int32_t countOf(const A&... a) {
  int32_t count = 0;
  const auto look = [&count](const auto& argument) {
    if constexpr (std::is_same_v<std::decay_t<decltype(argument)>, Count>)
      count = argument;
  };
  (look(a), ...);
  return count;
}

// `kernel(a...)` runs the kernel of the branch on any share of the arguments.
template <class Statuses, class Kernel, class... A> inline ZelStatus fork(Kernel kernel, const A&... a) {
  const int32_t threads = ownGetNumThreads();
  const int32_t count = countOf(a...);
  if (threads < 2 || count < threads)
    return kernel(a...);
  const auto share = [&](const Share& part) { return kernel(a.advanced(part)...); };
  const ShareFunction work = [](const void* call, const Share& part) {
    return (*static_cast<decltype(&share)>(call))(part);
  };
  ZelStatus status = zelStatusOk;
  // Without the block the front falls back on the unthreaded kernel and the caller's buffer.
  return Statuses::run(threads, count, (a.scratch() + ... + 0), work, &share, status) ? status : kernel(a...);
}

// Standard and list layout.
template <class Statuses, class Unit, class Any, class... A>
inline ZelStatus front(Unit unitKernel, Any anyKernel, const A&... a) {
  if (unitStrides(a...))
    return fork<Statuses>([unitKernel](const auto&... b) { return callUnit(unitKernel, b...); }, a...);
  return fork<Statuses>([anyKernel](const auto&... b) { return anyKernel(b...); }, a...);
}

// Pointer layout.
template <class Statuses, class Kernel, class... A> inline ZelStatus frontPointer(Kernel kernel, const A&... a) {
  return fork<Statuses>([kernel](const auto&... b) { return kernel(b...); }, a...);
}

} // namespace zelm

// Rows of fronts. STATUSES is Merges for the families whose kernels can fail, Discards for the others.
#define FRONT(FRONT_NAME, SIG, T, STATUSES, UNIT_KERNEL, ANY_KERNEL)                                                   \
  ZELM_DECLARE(UNIT_KERNEL, SIG, UNIT, T);                                                                             \
  ZELM_DECLARE(ANY_KERNEL, SIG, ANY, T);                                                                               \
  extern "C" ZelStatus FRONT_NAME(SIG(ANY, T)) {                                                                       \
    return zelm::front<zelm::STATUSES>(UNIT_KERNEL, ANY_KERNEL, SIG(NAME, T));                                         \
  }

#define FRONT_POINTER(FRONT_NAME, SIG, T, STATUSES, KERNEL)                                                            \
  ZELM_DECLARE(KERNEL, SIG, ANY, T);                                                                                   \
  extern "C" ZelStatus FRONT_NAME(SIG(ANY, T)) {                                                                       \
    return zelm::frontPointer<zelm::STATUSES>(KERNEL, SIG(NAME, T));                                                   \
  }
