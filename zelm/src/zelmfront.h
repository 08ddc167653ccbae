// The parallel fronts: who runs which of a call's objects.
//
// The objects are split into shares, contiguous and ascending, one for each of n threads. How many threads run them
// depends on the work: all n, each its share; fewer, each some neighbouring shares one after the other; or the caller
// alone, all of them, and then nobody is woken. A failing share stops and the others go on, whoever runs them, so that
// what a failure leaves does not depend on the work.
#pragma once

#include "zelmframe.h"

// How many of `threads` threads a call feeds that is worth so many additions: from 1 to threads.
extern "C" int32_t ownGetTeamSize(int32_t threads, double additions);

namespace zelm {

// One share of a front's work; `call` is what the front wants done.
using ShareFunction = ZelStatus (*)(const void* call, const Share& share);

struct Forked {
  int32_t threads;      // as many as there are shares
  int32_t team;         // those that the work feeds: 1 to threads
  int32_t count;        // of the objects, at least as many as threads
  int32_t scratchBytes; // for each thread of the team
  ShareFunction work;
  const void* call;
};

// Calls work(call, share) until every object is done. Returns false if the scratch cannot be had; nothing has been done
// then. Kernels that cannot fail get neighbouring shares in one call, and their statuses are discarded.
bool runShares(const Forked& forked);
// Kernels that can fail get each share as a call of its own; the first failure to arrive is stored to status.
bool runSharesMerging(const Forked& forked, ZelStatus& status);

struct Discards {
  static bool run(const Forked& forked, ZelStatus&) { return runShares(forked); }
};
struct Merges {
  static bool run(const Forked& forked, ZelStatus& status) { return runSharesMerging(forked, status); }
};

// `kernel(a...)` runs the kernel of the branch on any share of the arguments; the call is worth so many additions.
template <class Statuses, class Kernel, class... A>
inline ZelStatus fork(Kernel kernel, double additions, const A&... a) {
  const int32_t threads = ownGetNumThreads();
  const int32_t count = countOf(a...);
  if (threads < 2 || count < threads)
    return kernel(a...);
  const auto share = [&](const Share& part) { return kernel(a.advanced(part)...); };
  const ShareFunction work = [](const void* call, const Share& part) {
    return (*static_cast<decltype(&share)>(call))(part);
  };
  const Forked forked{threads, ownGetTeamSize(threads, additions), count, (a.scratch() + ... + 0), work, &share};
  ZelStatus status = zelStatusOk;
  // Without scratch the front falls back on the unthreaded kernel and the caller's buffer.
  return Statuses::run(forked, status) ? status : kernel(a...);
}

// Lanes hold half as many doubles.
template <class T, class Work, class... A> inline double workOf(const Work& work, const A&... a) {
  return estimateOf(work, a...) * (sizeof(T) / sizeof(float));
}
// Strides other than the element size make little of it where the arithmetic outweighs loads and stores.
template <class Work, class = void> inline constexpr double scattered = 1;
template <class Work> inline constexpr double scattered<Work, std::void_t<decltype(Work::scattered)>> = Work::scattered;

// Standard and list layout.
template <class Statuses, class T, class Work, class Unit, class Any, class... A>
inline ZelStatus front(const Work& work, Unit unitKernel, Any anyKernel, const A&... a) {
  const double additions = workOf<T>(work, a...);
  if (unitStrides(a...))
    return fork<Statuses>([unitKernel](const auto&... b) { return callUnit(unitKernel, b...); }, additions, a...);
  return fork<Statuses>([anyKernel](const auto&... b) { return anyKernel(b...); }, scattered<Work> * additions, a...);
}

// Pointer layout.
template <class Statuses, class T, class Work, class Kernel, class... A>
inline ZelStatus frontPointer(const Work& work, Kernel kernel, const A&... a) {
  return fork<Statuses>([kernel](const auto&... b) { return kernel(b...); }, workOf<T>(work, a...), a...);
}

} // namespace zelm

// Rows of fronts. STATUSES is Merges for the families whose kernels can fail, Discards for the others. What a call is
// worth stands beside the signature, as ZELM_WORK(SIG).
#define FRONT(FRONT_NAME, SIG, Y, T, STATUSES, UNIT_KERNEL, ANY_KERNEL)                                                \
  namespace zelm {                                                                                                     \
  struct SIG##_Work;                                                                                                   \
  }                                                                                                                    \
  ZELM_DECLARE(UNIT_KERNEL, SIG, Y, UNIT, T);                                                                          \
  ZELM_DECLARE(ANY_KERNEL, SIG, Y, ANY, T);                                                                            \
  extern "C" ZelStatus FRONT_NAME(SIG(ANY, Y, T)) {                                                                    \
    return zelm::front<zelm::STATUSES, T>(zelm::workFor<zelm::SIG##_Work>, UNIT_KERNEL, ANY_KERNEL, SIG(NAME, Y, T));  \
  }

#define FRONT_POINTER(FRONT_NAME, SIG, Y, T, STATUSES, KERNEL)                                                         \
  namespace zelm {                                                                                                     \
  struct SIG##_Work;                                                                                                   \
  }                                                                                                                    \
  ZELM_DECLARE(KERNEL, SIG, Y, ANY, T);                                                                                \
  extern "C" ZelStatus FRONT_NAME(SIG(ANY, Y, T)) {                                                                    \
    return zelm::frontPointer<zelm::STATUSES, T>(zelm::workFor<zelm::SIG##_Work>, KERNEL, SIG(NAME, Y, T));            \
  }
