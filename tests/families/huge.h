// Packed batches whose result is larger than any cache.
#ifndef ZELMTEST_HUGE_H
#define ZELMTEST_HUGE_H

#include <zelm.h>

#include <gtest/gtest.h>
#include <omp.h>

#include <algorithm>
#include <cstdint>
#include <vector>

namespace zelmtest {

// Of objects of `each` elements. What one of two threads writes is larger than a cache too.
template <class T> constexpr int hugeCount(int each) {
  return (100 << 20) / (each * static_cast<int>(sizeof(T))) / 32 * 32 + 5;
}

// call(dst) writes what is expected and nothing beside it, with dst on a multiple of 32 bytes, 16 bytes behind it, and
// one and three elements.
template <class T, class Call> void expectHuge(const std::vector<T>& expected, Call call) {
  constexpr size_t vector = 32 / sizeof(T);
  const size_t n = expected.size();
  std::vector<T> memory(n + 3 * vector);
  const size_t start = 2 * vector - reinterpret_cast<uintptr_t>(memory.data()) / sizeof(T) % vector;
  for (int threads : {1, 2})
    for (size_t offset : {size_t{0}, size_t{1}, size_t{3}, 16 / sizeof(T)}) {
      std::fill(memory.begin(), memory.end(), T(-1));
      T* const dst = &memory[start + offset];
      omp_set_num_threads(threads);
      const ZelStatus status = call(dst);
      omp_set_num_threads(1);
      ASSERT_EQ(zelStatusOk, status);
      const auto wrong = std::mismatch(expected.begin(), expected.end(), dst);
      ASSERT_TRUE(wrong.first == expected.end())
          << "element " << wrong.first - expected.begin() << " of " << n << " is " << *wrong.second << ", should be "
          << *wrong.first << ", offset " << offset << ", threads " << threads;
      for (T* beside = memory.data(); beside < memory.data() + memory.size(); ++beside)
        if (beside == dst)
          beside += n - 1;
        else
          ASSERT_EQ(T(-1), *beside) << "beside the result, offset " << offset;
    }
}

// call(first, count, dst) works on `count` objects from `first` on: all of them in one call, as in calls of 1000.
template <class T, class Call> void expectHugeAsInSmallCalls(int each, Call call) {
  const int count = hugeCount<T>(each);
  std::vector<T> expected(static_cast<size_t>(each) * static_cast<size_t>(count));
  for (int first = 0; first < count; first += 1000)
    ASSERT_EQ(zelStatusOk, call(first, std::min(1000, count - first), &expected[static_cast<size_t>(first * each)]));
  expectHuge(expected, [&](T* dst) { return call(0, count, dst); });
}

// Values that are no regular sequence, none of them zero.
template <class T> std::vector<T> hugeValues(size_t n) {
  std::vector<T> values(n);
  for (size_t i = 0; i < n; ++i)
    values[i] = static_cast<T>(i * 7919 % 65521 + 1) / T(3);
  return values;
}

} // namespace zelmtest

#endif
