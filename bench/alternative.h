// What the frame and the alternatives share. The alternatives are compiled three times with different flags, so this
// header stays small: it brings no library code of its own into those objects.
#pragma once

#include <cstddef>

namespace bench {

// The operands of one case in memory: sources in their order, then results. Every contender of the case gets the same.
struct Block {
  void* at[6];
  int count; // objects in each array operand
};

enum class Role {
  library,     // the numerator of the ratios
  alternative, // the fastest of these in the same build is the denominator of "best"
  contiguous,  // one loop over the same bytes, the denominator of "contiguous"
  other        // timed and shown, and used by the case's own ratios only
};

// Work on the block `repetitions` times.
using Run = void (*)(const Block& block, long repetitions);

// One row of an alternative's table. `key` is the name of the cases that it takes part in: family/form/type/size.
struct Row {
  const char* key;
  const char* who;
  Role role;
  Run run;
};

struct Table {
  const Row* rows;
  std::size_t count;
};

// Between two repetitions: everything in memory may have changed, nothing may be reused or left out.
inline void clobber() {
  asm volatile("" ::: "memory");
}

template <void (*pass)(const Block&)> void repeat(const Block& block, long repetitions) {
  for (; repetitions > 0; --repetitions) {
    pass(block);
    clobber();
  }
}

template <class T> const T* source(const Block& block, int operand) {
  return static_cast<const T*>(block.at[operand]);
}

template <class T> T* result(const Block& block, int operand) {
  return static_cast<T*>(block.at[operand]);
}

} // namespace bench

// The head of the one function that a file of alternatives exports; its name comes from the build, which makes every
// other symbol of the object local.
#define BENCH_ALTERNATIVES extern "C" bench::Table BENCH_TABLE()
