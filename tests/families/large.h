// Sizes whose product does not fit 32 bits.
#ifndef ZELMTEST_LARGE_H
#define ZELMTEST_LARGE_H

#include <zelm.h>

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace zelmtest {

constexpr int largeSide = 46341;

// Rows and columns that lie an element apart, so that all of it fits little memory: element (i, j) is i + j + 1, and
// elements that share a place agree. call(src, dst, side) moves them to a result that lies in the same way.
template <class T, class Call> void expectLargeMove(Call call) {
  std::vector<T> src(2 * largeSide - 1), dst(src.size());
  std::iota(src.begin(), src.end(), T(1));
  ASSERT_EQ(zelStatusOk, call(src.data(), dst.data(), largeSide));
  EXPECT_EQ(src, dst);
}

} // namespace zelmtest

#endif
