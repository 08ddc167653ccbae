// Add on matrices: dst(i, j) = src1(i, j) + src2(i, j).
#pragma once

#include "zelmelementwise.h"
#include "zelmframe.h"

namespace zelm {

struct Plus {
  template <class V> ZELM_INLINE V operator()(V a, V b) const { return a + b; }
};

// Single objects.
template <int... N, class A, class B, class D>
ZELM_INLINE ZelStatus addMatrices(Sizes<N...> sizes, const A& src1, const B& src2, const D& dst, int32_t width,
                                  int32_t height) {
  return combineObjects(sizes, Plus{}, src1, src2, dst, width, height, 1);
}

// Batches.
template <int... N, class A, class B, class D>
ZELM_INLINE ZelStatus addMatrices(Sizes<N...> sizes, const A& src1, const B& src2, const D& dst, int32_t width,
                                  int32_t height, int32_t count) {
  return combineObjects(sizes, Plus{}, src1, src2, dst, width, height, count);
}

// Pointer layout: one code for all sizes.
struct AnySize {};
template <class A, class B, class D>
inline ZelStatus addPositions(AnySize, const A& src1, const B& src2, const D& dst, int32_t width, int32_t height,
                              int32_t count = 1) {
  return combinePositions(Plus{}, src1, src2, dst, width, height, count);
}

// ---------------------------------------------------------------------------------------------------------------------
// Work estimates

// One array as source: width * height * (2 * count + 1).
struct OneArray {
  template <class A, class B, class D>
  static Wrapping of(const A&, const B&, const D&, Size width, Size height, Count count) {
    return Wrapping(width) * height * (Wrapping(2) * count + 1);
  }
};

// Two arrays as sources: 3 * width * height * count.
struct TwoArrays {
  template <class A, class B, class D>
  static Wrapping of(const A&, const B&, const D&, Size width, Size height, Count count) {
    return Wrapping(3) * width * height * count;
  }
};

} // namespace zelm
