// How many instructions a call executes: a measure of work that is the same in every run.
#ifndef ZELMTEST_STEPS_H
#define ZELMTEST_STEPS_H

#include <csignal>
#include <cstdint>

namespace zelmtest {

// While one of these lives, the processor traps behind every instruction of this thread.
class Steps {
public:
  explicit Steps(uint64_t& count) : count_(count) {
    struct sigaction action = {};
    action.sa_handler = [](int) { ++taken; };
    sigaction(SIGTRAP, &action, &before_);
    taken = 0;
    // The flags are saved below what the compiler keeps under the stack pointer.
    asm volatile("lea -128(%%rsp), %%rsp; pushfq; orq $0x100, (%%rsp); popfq; lea 128(%%rsp), %%rsp" ::
                     : "memory", "cc");
  }
  Steps(const Steps&) = delete;
  Steps& operator=(const Steps&) = delete;
  ~Steps() {
    asm volatile("lea -128(%%rsp), %%rsp; pushfq; andq $~0x100, (%%rsp); popfq; lea 128(%%rsp), %%rsp" ::
                     : "memory", "cc");
    sigaction(SIGTRAP, &before_, nullptr);
    count_ = taken;
  }

private:
  static inline volatile uint64_t taken = 0;
  uint64_t& count_;
  struct sigaction before_ = {};
};

} // namespace zelmtest

#endif
