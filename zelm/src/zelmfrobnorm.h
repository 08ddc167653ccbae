// Frobenius norms: roots of sums of squares. The row of a kernel names the order in which it adds them.
#pragma once

#include "zelmblock.h"
#include "zelmfrobnormsignature.h"
#include "zelmsum.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Orders that one object a lane can follow as well: square e of a row of `width` goes to sum laneOf(e, width); total()
// adds up the sums. All start from +0.0.

struct InOrder {
  static constexpr int sums = 1;
  static constexpr int laneOf(int, int) { return 0; }
  template <class L> ZELM_INLINE static L total(const L (&sum)[1]) { return sum[0]; }
};

// Elements in turn.
struct InTwoLanes {
  static constexpr int sums = 2;
  static constexpr int laneOf(int e, int) { return e % 2; }
  template <class L> ZELM_INLINE static L total(const L (&sum)[2]) { return sum[0] + sum[1]; }
};

// The elements of a row in turn.
struct InFourLanes {
  static constexpr int sums = 4;
  static constexpr int laneOf(int e, int width) { return e % width % 4; }
  template <class L> ZELM_INLINE static L total(const L (&sum)[4]) { return (sum[0] + sum[2]) + (sum[1] + sum[3]); }
};

// add(e, square) for all elements.
template <class Order, class L, class Add> ZELM_INLINE L normBy(int width, const Add& forSquares) {
  L sum[Order::sums] = {};
  forSquares([&](auto e, const L& x) ZELM_BODY {
    L& s = sum[Order::laneOf(e, width)];
    s = s + x * x;
  });
  return squareRoot(Order::total(sum));
}

template <class Order, class View, class Width, class Height>
ZELM_INLINE auto normOfOne(const View& x, Width width, Height height) {
  using T = typename View::Element;
  return normBy<Order, T>(width, [&](const auto& add) ZELM_BODY {
    ascending(Fixed<0>{}, height, [&](auto i) ZELM_BODY {
      ascending(Fixed<0>{}, width, [&](auto j) ZELM_BODY { add(product(i, width) + j, x.load(i, j)); });
    });
  });
}

template <class Order, class Objects, class Width, class Height>
ZELM_NOINLINE auto normsOfBlock(const Objects& x, Width width, Height height) {
  using L = Lanes<typename Objects::Element>;
  return normBy<Order, L>(width, [&](const auto& add) ZELM_BODY {
    if constexpr (isFixed<Width>) {
      L element[width * height];
      loadElements(x, element, width, height);
      ascending(Fixed<0>{}, product(width, height), [&](auto e) ZELM_BODY { add(e, element[e]); });
    } else {
      constexpr int most = 8;
      L element[most];
      for (int i = 0; i < height; ++i)
        for (int j = 0; j < width; j += most) {
          const int n = smaller(most, width - j);
          x.load(i, j, n, element);
          for (int e = 0; e < n; ++e)
            add(i * width + j + e, element[e]);
        }
    }
  });
}

// ---------------------------------------------------------------------------------------------------------------------
// Orders of one object by itself

template <class View> ZELM_INLINE auto rowAsVector(const View& x, int64_t i) {
  return StridedVectorView<const typename View::Element, decltype(x.columnStep)>{x.address(i, 0), x.columnStep};
}

// Four lanes. Each row, or a matrix without gaps from the first multiple of 16 bytes on, goes eight elements at a time
// into them, as two quads one after the other; what is left goes element by element into the first. So does the whole
// matrix if its elements are not at multiples of their size.
template <class View> ZELM_NOINLINE float normInLanes(const View& x, int width, int height, bool isOneRun) {
  RunningSums<float, InFourLanes::sums> sums(0);
  const auto addRun = [&sums](const auto& terms, int64_t first, int64_t end) {
    const int64_t rest = end - (end - first) % 8;
    sums.add(first, rest, terms);
    sums.addToFirst(rest, end, terms);
  };
  const int64_t untilAligned = elementsToChunk<float>(x.address(0, 0));
  if (untilAligned < 0) {
    for (int i = 0; i < height; ++i)
      sums.addToFirst(0, width, Squares{rowAsVector(x, i)});
  } else if (isOneRun) {
    const int64_t end = int64_t{width} * height;
    const int64_t lead = untilAligned < end ? untilAligned : end;
    const Squares terms{rowAsVector(x, 0)};
    sums.addToFirst(0, lead, terms);
    addRun(terms, lead, end);
  } else {
    for (int i = 0; i < height; ++i)
      addRun(Squares{rowAsVector(x, i)}, 0, width);
  }
  return squareRoot(InFourLanes::total({sums[0], sums[1], sums[2], sums[3]}));
}

// Elements in pairs, each added up before it is added; an odd last one by itself.
template <class View> ZELM_INLINE auto normInPairs(const View& x, int width, int height) {
  using T = typename View::Element;
  T sum{};
  T first{};
  bool isSecond = false;
  for (int i = 0; i < height; ++i)
    for (int j = 0; j < width; ++j) {
      const T value = x.load(i, j);
      const T square = value * value;
      if (isSecond)
        sum = sum + (first + square);
      first = square;
      isSecond = !isSecond;
    }
  return squareRoot(isSecond ? sum + first : sum);
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

// One matrix, one order.
template <class Order, class Source, class T>
ZELM_INLINE ZelStatus norm(const Source& src, Size width, Size height, const Plain<T>& dst) {
  storeResult(dst, 0, normOfOne<Order>(src.object(0, width), static_cast<int>(width), static_cast<int>(height)));
  return zelStatusOk;
}
template <class Source, class T>
ZELM_INLINE ZelStatus pairedNorm(const Source& src, Size width, Size height, const Plain<T>& dst) {
  storeResult(dst, 0, normInPairs(src.object(0, width), width, height));
  return zelStatusOk;
}

// One matrix in four lanes, squares of up to five apart: those of six take the general order. This is meant.
template <class Source> ZELM_INLINE float laneNormOf(const Source& src, int width, int height) {
  const auto x = src.object(0, width);
  if (width == height && width < 6)
    return normOfOne<InFourLanes>(x, width, height);
  return normInLanes(x, width, height, src.unit() && src.packed(width, height));
}
template <class Source>
ZELM_INLINE ZelStatus laneNorm(const Source& src, Size width, Size height, const Plain<float>& dst) {
  storeResult(dst, 0,
              src.unit() ? laneNormOf(src.template forKernel<UnitStride>(), width, height)
                         : laneNormOf(src, width, height));
  return zelStatusOk;
}

// Arrays.
template <class Order, class Source, class T, class Width, class Height>
ZELM_INLINE ZelStatus normBlocks(const Source& src, Width width, Height height, const Plain<T>& dst, Count count) {
  auto sources = matrixBlocks(src, width);
  return forBlocks<laneCount<T>, isPointerLayout<Source>>(
      count, areNeighbours(src),
      [&](auto block) ZELM_BODY {
        storeValues(dst, block, normsOfBlock<Order>(sources.at(block), width, height));
        return true;
      },
      [&](int64_t k) ZELM_BODY {
        storeResult(dst, k, normOfOne<Order>(src.object(k, width), width, height));
        return ZelStatus{zelStatusOk};
      });
}

// One order for all shapes.
template <class Order, class Source, class T>
ZELM_INLINE ZelStatus norms(const Source& src, Size width, Size height, const Plain<T>& dst, Count count) {
  return forSize(
      Sizes<3, 4, 5, 6>{}, width == height ? static_cast<int32_t>(width) : 0,
      [&](auto n) ZELM_BODY { return normBlocks<Order>(src, Fixed<n>{}, Fixed<n>{}, dst, count); },
      [&]()
          ZELM_BODY { return normBlocks<Order>(src, static_cast<int>(width), static_cast<int>(height), dst, count); });
}

// Row by row in four lanes. Rows of less than eight elements are a sum in order.
template <class Source>
ZELM_INLINE ZelStatus normsByRows(const Source& src, Size width, Size height, const Plain<float>& dst, Count count) {
  if (width < 8)
    return norms<InOrder>(src, width, height, dst, count);
  for (int32_t k = 0; k < count; ++k)
    storeResult(dst, k, normInLanes(src.object(k, width), width, height, false));
  return zelStatusOk;
}

// The same, but squares of up to five in four lanes each row.
template <class Source>
ZELM_INLINE ZelStatus laneNorms(const Source& src, Size width, Size height, const Plain<float>& dst, Count count) {
  return forSize(
      Sizes<2, 3, 4, 5>{}, width == height ? static_cast<int32_t>(width) : 0,
      [&](auto n) ZELM_BODY { return normBlocks<InFourLanes>(src, Fixed<n>{}, Fixed<n>{}, dst, count); },
      [&]() ZELM_BODY { return normsByRows(src, width, height, dst, count); });
}

} // namespace zelm
