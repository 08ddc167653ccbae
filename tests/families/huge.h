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

// call(dst) writes what is expected and nothing beside it, with dst on a multiple of 32 bytes, 16 bytes behind it, one
// and three elements, and one and two bytes.
template <class T, class Call> void expectHuge(const std::vector<T>& expected, Call call) {
  static constexpr unsigned char beside = 0xa5;
  const auto* const right = reinterpret_cast<const unsigned char*>(expected.data());
  const size_t n = expected.size() * sizeof(T);
  std::vector<unsigned char> memory(n + 128);
  const size_t start = 64 - reinterpret_cast<uintptr_t>(memory.data()) % 32;
  const auto check = [&](size_t offset, int threads) {
    std::fill(memory.begin(), memory.end(), beside);
    unsigned char* const dst = &memory[start + offset];
    omp_set_num_threads(threads);
    const ZelStatus status = call(reinterpret_cast<T*>(dst));
    omp_set_num_threads(1);
    ASSERT_EQ(zelStatusOk, status);
    const auto wrong = static_cast<size_t>(std::mismatch(right, right + n, dst).first - right);
    ASSERT_EQ(wrong, n) << "byte " << wrong % sizeof(T) << " of element " << wrong / sizeof(T) << " of "
                        << expected.size() << ", offset " << offset << ", threads " << threads;
    const auto isUntouched = [](unsigned char byte) { return byte == beside; };
    ASSERT_TRUE(std::all_of(memory.data(), dst, isUntouched) &&
                std::all_of(dst + n, memory.data() + memory.size(), isUntouched))
        << "beside the result, offset " << offset;
  };
  for (int threads : {1, 2})
    for (size_t offset : {size_t{0}, sizeof(T), 3 * sizeof(T), size_t{16}})
      check(offset, threads);
  check(1, 1);
  check(2, 2);
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
