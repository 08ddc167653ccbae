// Element-wise work on matrices: dst(i, j) = op(src1(i, j), src2(i, j)) for a family's op.
//
// Each result element depends on one element of each source, so loops run in whatever order is fastest. In place works
// wherever a source is untransposed and lies exactly where dst does.
#pragma once

#include "zelmtile.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Runs: elements that lie one behind the other, on vectors. Each vector is read just before it is written: processors
// take loads and stores best in turns.

// dst[e] = op(a[e], b[e]) for elements e from `first` on, whole vectors only; returns the first element not done.
template <class T, bool Stream, class Op>
ZELM_INLINE int64_t runVectors(Op op, char* dst, const char* a, const char* b, int64_t first, int64_t n) {
  constexpr int64_t W = laneCount<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  int64_t e = first;
  for (; e + 4 * W <= n; e += 4 * W) {
    ZELM_UNROLL
    for (int u = 0; u < 4; ++u) {
      const int64_t at = (e + u * W) * E;
      putLanes<Stream>(dst + at, op(loadLanes<T>(a + at), loadLanes<T>(b + at)));
    }
  }
  for (; e + W <= n; e += W)
    putLanes<Stream>(dst + e * E, op(loadLanes<T>(a + e * E), loadLanes<T>(b + e * E)));
  return e;
}

template <class T, class Op>
ZELM_INLINE void runElements(Op op, char* dst, const char* a, const char* b, int64_t first, int64_t end) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  for (int64_t e = first; e < end; ++e)
    storeElement<T>(dst + e * E, op(loadElement<T>(a + e * E), loadElement<T>(b + e * E)));
}

// dst[e] = op(a[e], b[e]) for n elements.
template <class T, class Op> inline void runPair(Op op, char* dst, const char* a, const char* b, int64_t n) {
  int64_t e = 0;
  if (isStreamed<T>(dst, n, a, b)) {
    const int64_t lead = elementsToAlignment<T>(dst);
    runElements<T>(op, dst, a, b, 0, lead);
    e = runVectors<T, true>(op, dst, a, b, lead, n);
    _mm_sfence();
  } else {
    e = runVectors<T, false>(op, dst, a, b, 0, n);
  }
  runElements<T>(op, dst, a, b, e, n);
}

// How many vectors it takes until the period of an operand begins with a vector again, at least four.
template <class T> constexpr int periodVectors(int period) {
  int vectors = 4;
  while (vectors * laneCount<T> % period != 0)
    ++vectors;
  return vectors;
}

template <int Period, class T, bool Stream, class Op>
ZELM_INLINE int64_t runPeriodVectors(Op op, char* dst, const char* a, const char* window, int64_t n) {
  constexpr int W = laneCount<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  constexpr int vectors = periodVectors<T>(Period);
  const auto inPeriod = [window](int v) __attribute__((always_inline)) {
    return loadLanes<T>(window + v * W % Period * E);
  };
  // Where they leave room for others, the period's vectors stay in registers.
  constexpr bool held = vectors <= 12;
  [[maybe_unused]] Lanes<T> period[vectors];
  if constexpr (held) {
    ZELM_UNROLL
    for (int v = 0; v < vectors; ++v)
      period[v] = inPeriod(v);
  }
  int64_t e = 0;
  for (; e + vectors * W <= n; e += vectors * W) {
    ZELM_UNROLL
    for (int v = 0; v < vectors; ++v) {
      const int64_t at = (e + v * W) * E;
      putLanes<Stream>(dst + at, op(loadLanes<T>(a + at), held ? period[v] : inPeriod(v)));
    }
  }
  for (; e + W <= n; e += W)
    putLanes<Stream>(dst + e * E, op(loadLanes<T>(a + e * E), loadLanes<T>(window + e % Period * E)));
  return e;
}

// dst[e] = op(a[e], b[e % Period]) for n elements.
template <int Period, class T, class Op>
inline void runPeriod(Op op, char* dst, const char* a, const char* b, int64_t n) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  static_assert(Period >= laneCount<T>);
  // The period with its first elements once more, so that a vector can be read from any place of it.
  char window[Period * sizeof(T) + vectorBytes];
  int64_t done = 0;
  if (isStreamed<T>(dst, n, a)) {
    // Streamed vectors start where dst is aligned, which is somewhere inside the period.
    const int64_t lead = elementsToAlignment<T>(dst);
    runElements<T>(op, dst, a, b, 0, lead);
    for (int64_t e = 0; e < Period + laneCount<T>; ++e)
      storeElement<T>(window + e * E, loadElement<T>(b + (lead + e) % Period * E));
    done = lead + runPeriodVectors<Period, T, true>(op, dst + lead * E, a + lead * E, window, n - lead);
    _mm_sfence();
  } else {
    std::memcpy(window, b, Period * sizeof(T));
    std::memcpy(window + Period * sizeof(T), b, vectorBytes);
    done = runPeriodVectors<Period, T, false>(op, dst, a, window, n);
  }
  for (; done < n; ++done)
    storeElement<T>(dst + done * E, op(loadElement<T>(a + done * E), loadElement<T>(b + done % Period * E)));
}

// ---------------------------------------------------------------------------------------------------------------------
// One object of a fixed size, in registers

template <int Bytes> struct FixedStep {
  constexpr operator int64_t() const { return Bytes; }
};

// A W by W block of lanes, one vector a row.
template <class T, int W> struct SquareBlock { Lanes<T, W> row[W]; };

// The W by W block of a view at (i, j), one row of the operation a vector: an operand whose columns are contiguous is
// loaded by these and transposed.
template <int W, class View> ZELM_INLINE auto loadBlock(const View& x, int64_t i, int64_t j) {
  using T = typename View::Element;
  SquareBlock<T, W> block;
  ZELM_UNROLL
  for (int r = 0; r < W; ++r)
    block.row[r] = loadLanes<T, W>(View::unitRows ? x.address(i + r, j) : x.address(i, j + r));
  if constexpr (!View::unitRows)
    transposeSquare<T>(block.row);
  return block;
}

// W neighbours of row i from column j on.
template <int W, class View> ZELM_INLINE auto loadRow(const View& x, int64_t i, int64_t j) {
  using T = typename View::Element;
  if constexpr (View::unitRows) {
    return loadLanes<T, W>(x.address(i, j));
  } else {
    Lanes<T, W> v;
    ZELM_UNROLL
    for (int c = 0; c < W; ++c)
      v[c] = x.load(i, j + c);
    return v;
  }
}

// dst = op(a, b) on rows by columns elements at (i, j), in blocks of W and, at the edges, smaller ones. The elements of
// each operand are neighbours along rows or along columns.
template <int W, int Rows, int Columns, class Op, class D, class A, class B>
ZELM_INLINE void combineRegion(Op op, const D& dst, const A& a, const B& b, int64_t i, int64_t j) {
  if constexpr (Rows > 0 && Columns > 0) {
    if constexpr (W == 1) {
      ZELM_UNROLL
      for (int r = 0; r < Rows; ++r) {
        ZELM_UNROLL
        for (int c = 0; c < Columns; ++c)
          dst.store(i + r, j + c, op(a.load(i + r, j + c), b.load(i + r, j + c)));
      }
    } else if constexpr (Columns < W) {
      combineRegion<W / 2, Rows, Columns>(op, dst, a, b, i, j);
    } else if constexpr (Columns > W) {
      combineRegion<W, Rows, W>(op, dst, a, b, i, j);
      combineRegion<W, Rows, Columns - W>(op, dst, a, b, i, j + W);
    } else if constexpr (A::unitRows && B::unitRows) {
      ZELM_UNROLL
      for (int r = 0; r < Rows; ++r)
        storeLanes(dst.address(i + r, j), op(loadRow<W>(a, i + r, j), loadRow<W>(b, i + r, j)));
    } else if constexpr (Rows >= W) {
      const auto blockA = loadBlock<W>(a, i, j);
      const auto blockB = loadBlock<W>(b, i, j);
      ZELM_UNROLL
      for (int r = 0; r < W; ++r)
        storeLanes(dst.address(i + r, j), op(blockA.row[r], blockB.row[r]));
      combineRegion<W, Rows - W, Columns>(op, dst, a, b, i + W, j);
    } else if constexpr (Rows >= W / 2 && W > 2) {
      combineRegion<W / 2, Rows, Columns>(op, dst, a, b, i, j);
    } else {
      ZELM_UNROLL
      for (int r = 0; r < Rows; ++r)
        storeLanes(dst.address(i + r, j), op(loadRow<W>(a, i + r, j), loadRow<W>(b, i + r, j)));
    }
  }
}

template <int N, class Op, class D, class A, class B>
ZELM_INLINE void combineFixed(Op op, const D& dst, const A& a, const B& b) {
  if constexpr (D::unitRows && (A::unitRows || A::unitColumns) && (B::unitRows || B::unitColumns))
    combineRegion<(laneCount<typename D::Element> < 4 ? laneCount<typename D::Element> : 4), N, N>(op, dst, a, b, 0, 0);
  else
    combineRegion<1, N, N>(op, dst, a, b, 0, 0);
}

// Whether a packed object of side N is transposed as a whole rather than in blocks.
template <class T, int N> constexpr bool transposesWhole = N == 3 || (N == 4 && sizeof(T) == 4 && vectorBytes == 32);

// dst = op(transposition of a, b), packed objects of side N.
template <int N, class T, class Op> ZELM_INLINE void combineWhole(Op op, char* dst, const char* a, const char* b) {
  constexpr auto E = static_cast<int>(sizeof(T));
  constexpr int W = laneCount<T>;
  if constexpr (N == 4) {
    auto upper = loadLanes<T>(a);
    auto lower = loadLanes<T>(a + 8 * E);
    upper = __builtin_shufflevector(upper, upper, 0, 4, 2, 6, 1, 5, 3, 7);
    lower = __builtin_shufflevector(lower, lower, 0, 4, 2, 6, 1, 5, 3, 7);
    const auto first = op(__builtin_shufflevector(upper, lower, 0, 1, 8, 9, 4, 5, 12, 13), loadLanes<T>(b));
    const auto second = op(__builtin_shufflevector(upper, lower, 2, 3, 10, 11, 6, 7, 14, 15), loadLanes<T>(b + 8 * E));
    storeLanes(dst, first);
    storeLanes(dst + 8 * E, second);
  } else {
    // Elements in the order 0 3 6 1 4 7 2 5 8.
    const T last = op(loadElement<T>(a + 8 * E), loadElement<T>(b + 8 * E));
    if constexpr (W == 8) {
      const auto v = loadLanes<T>(a);
      storeLanes(dst, op(__builtin_shufflevector(v, v, 0, 3, 6, 1, 4, 7, 2, 5), loadLanes<T>(b)));
    } else if constexpr (W == 4 && sizeof(T) == 8) {
      // Wide vectors from pairs: few shuffles go from half to half.
      const auto pair = [a](int i, int j) __attribute__((always_inline)) {
        return Lanes<T, 2>{loadElement<T>(a + i * E), loadElement<T>(a + j * E)};
      };
      const auto quad = [](const Lanes<T, 2>& low, const Lanes<T, 2>& high) __attribute__((always_inline)) {
        return __builtin_shufflevector(low, high, 0, 1, 2, 3);
      };
      const auto first = op(quad(pair(0, 3), pair(6, 1)), loadLanes<T>(b));
      const auto second = op(quad(pair(4, 7), pair(2, 5)), loadLanes<T>(b + 4 * E));
      storeLanes(dst, first);
      storeLanes(dst + 4 * E, second);
    } else if constexpr (W == 4) {
      const auto v0123 = loadLanes<T>(a);
      const auto v3456 = loadLanes<T>(a + 3 * E);
      const auto v5678 = loadLanes<T>(a + 5 * E);
      const auto v6611 = __builtin_shufflevector(v3456, v0123, 3, 3, 5, 5);
      const auto v4477 = __builtin_shufflevector(v3456, v5678, 1, 1, 6, 6);
      const auto v2255 = __builtin_shufflevector(v0123, v3456, 2, 2, 6, 6);
      const auto first = op(__builtin_shufflevector(v0123, v6611, 0, 3, 4, 6), loadLanes<T>(b));
      const auto second = op(__builtin_shufflevector(v4477, v2255, 0, 2, 4, 6), loadLanes<T>(b + 4 * E));
      storeLanes(dst, first);
      storeLanes(dst + 4 * E, second);
    } else {
      const auto v01 = loadLanes<T>(a);
      const auto v23 = loadLanes<T>(a + 2 * E);
      const auto v45 = loadLanes<T>(a + 4 * E);
      const auto v67 = loadLanes<T>(a + 6 * E);
      const auto first = op(__builtin_shufflevector(v01, v23, 0, 3), loadLanes<T>(b));
      const auto second = op(__builtin_shufflevector(v67, v01, 0, 3), loadLanes<T>(b + 2 * E));
      const auto third = op(__builtin_shufflevector(v45, v67, 0, 3), loadLanes<T>(b + 4 * E));
      const auto fourth = op(__builtin_shufflevector(v23, v45, 0, 3), loadLanes<T>(b + 6 * E));
      storeLanes(dst, first);
      storeLanes(dst + 2 * E, second);
      storeLanes(dst + 4 * E, third);
      storeLanes(dst + 6 * E, fourth);
    }
    storeElement(dst + 8 * E, last);
  }
}

// One object of any size.
template <class Op, class D, class A, class B>
inline void combineGeneral(Op op, const D& dst, const A& a, const B& b, int32_t width, int32_t height) {
  using T = typename D::Element;
  for (int32_t i = 0; i < height; ++i) {
    if constexpr (D::unitRows && A::unitRows && B::unitRows) {
      runPair<T>(op, dst.address(i, 0), a.address(i, 0), b.address(i, 0), width);
    } else {
      for (int32_t j = 0; j < width; ++j)
        dst.store(i, j, op(a.load(i, j), b.load(i, j)));
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Batches

// Object k of an operand of width by height elements as the operation sees them.
template <class Operand> ZELM_INLINE auto objectOf(const Operand& x, int64_t k, int32_t width, int32_t height) {
  return x.object(k, isTransposed<Operand> ? height : width);
}

template <class> constexpr bool isUnitStandard = false;
template <class T> constexpr bool isUnitStandard<Matrix<T, UnitStride>> = true;
template <class T> constexpr bool isUnitStandard<Matrices<T, UnitStride>> = true;
template <class> constexpr bool isTransposedUnitStandard = false;
template <class Operand> constexpr bool isTransposedUnitStandard<Transposed<Operand>> = isUnitStandard<Operand>;

// A single source of width by height elements without gaps, for a batch.
template <class T, int N> struct LocalMatrix {
  alignas(vectorBytes) T element[N * N];
  template <class View> ZELM_INLINE explicit LocalMatrix(const View& x) {
    ZELM_UNROLL
    for (int i = 0; i < N; ++i) {
      ZELM_UNROLL
      for (int j = 0; j < N; ++j)
        element[i * N + j] = x.load(i, j);
    }
  }
  ZELM_INLINE auto view() const {
    return StridedMatrixView<const T, FixedStep<N* static_cast<int>(sizeof(T))>, UnitStep<const T>>{
        reinterpret_cast<const char*>(element), {}, {}};
  }
};

template <class Operand> ZELM_INLINE auto bytesOf(const Operand& x) {
  return reinterpret_cast<Byte<std::remove_pointer_t<decltype(x.pointer)>>*>(x.pointer);
}

// Standard and list layout, all objects, side N; src2 is an array, or there is one object.
template <int N, class Op, class A, class B, class D>
ZELM_INLINE void combineArraysFixed(Op op, const A& src1, const B& src2, const D& dst, int32_t count) {
  using T = typename D::Element;
  if constexpr (transposesWhole<T, N> && isTransposedUnitStandard<A> && isUnitStandard<B> && isUnitStandard<D>) {
    constexpr int64_t bytes = N * N * static_cast<int>(sizeof(T));
    if (src1.packed(N, N) && src2.packed(N, N) && dst.packed(N, N)) {
      for (int32_t k = 0; k < count; ++k)
        combineWhole<N, T>(op, bytesOf(dst) + k * bytes, bytesOf(src1) + k * bytes, bytesOf(src2) + k * bytes);
      return;
    }
  }
  for (int32_t k = 0; k < count; ++k)
    combineFixed<N>(op, objectOf(dst, k, N, N), objectOf(src1, k, N, N), objectOf(src2, k, N, N));
}

// Standard and list layout, all objects, side N; src2 is one matrix, which is read once.
template <int N, class Op, class A, class B, class D>
ZELM_INLINE void combineSingleFixed(Op op, const A& src1, const B& src2, const D& dst, int32_t count) {
  using T = typename D::Element;
  [[maybe_unused]] constexpr int64_t bytes = N * N * static_cast<int>(sizeof(T));
  if constexpr (isUnitStandard<A> && isUnitStandard<B> && isUnitStandard<D>) {
    if (src1.packed(N, N) && src2.packed(N, N) && dst.packed(N, N)) {
      runPeriod<N * N, T>(op, bytesOf(dst), bytesOf(src1), bytesOf(src2), static_cast<int64_t>(N * N) * count);
      return;
    }
  }
  const LocalMatrix<T, N> local(objectOf(src2, 0, N, N));
  if constexpr (isUnitStandard<A> && isUnitStandard<D>) {
    if (src1.packed(N, N) && dst.packed(N, N) && count >= laneCount<T>) {
      runPeriod<N * N, T>(op, bytesOf(dst), bytesOf(src1), local.view().origin, static_cast<int64_t>(N * N) * count);
      return;
    }
  } else if constexpr (transposesWhole<T, N> && isTransposedUnitStandard<A> && isUnitStandard<D>) {
    if (src1.packed(N, N) && dst.packed(N, N)) {
      for (int32_t k = 0; k < count; ++k)
        combineWhole<N, T>(op, bytesOf(dst) + k * bytes, bytesOf(src1) + k * bytes, local.view().origin);
      return;
    }
  }
  for (int32_t k = 0; k < count; ++k)
    combineFixed<N>(op, objectOf(dst, k, N, N), objectOf(src1, k, N, N), local.view());
}

// Standard and list layout.
template <int... N, class Op, class A, class B, class D>
ZELM_INLINE ZelStatus combineObjects(Sizes<N...> sizes, Op op, const A& src1, const B& src2, const D& dst,
                                     int32_t width, int32_t height, int32_t count) {
  using T = typename D::Element;
  constexpr bool arrays = B::isArray || !D::isArray;
  // Operands without any gaps are one run of elements.
  if constexpr (arrays && isUnitStandard<A> && isUnitStandard<B> && isUnitStandard<D>) {
    if (src1.packed(width, height) && src2.packed(width, height) && dst.packed(width, height)) {
      runPair<T>(op, bytesOf(dst), bytesOf(src1), bytesOf(src2), static_cast<int64_t>(width) * height * count);
      return zelStatusOk;
    }
  }
  return forSize(
      sizes, width == height ? width : 0,
      [&](auto side) {
        if constexpr (arrays)
          combineArraysFixed<side>(op, src1, src2, dst, count);
        else
          combineSingleFixed<side>(op, src1, src2, dst, count);
        return zelStatusOk;
      },
      [&] {
        for (int32_t k = 0; k < count; ++k)
          combineGeneral(op, objectOf(dst, k, width, height), objectOf(src1, k, width, height),
                         objectOf(src2, k, width, height), width, height);
        return zelStatusOk;
      });
}

// Elements at one position of n objects: the addresses and the distances from object to object.
template <class T, class Op>
ZELM_INLINE void combinePosition(Op op, char* dst, int64_t dstStep, const char* a, int64_t aStep, const char* b,
                                 int64_t bStep, int64_t n) {
  for (int64_t k = 0; k < n; ++k)
    storeElement<T>(dst + k * dstStep, op(loadElement<T>(a + k * aStep), loadElement<T>(b + k * bStep)));
}

// The same for neighbours, whole vectors of objects: the steps are an element, but that a single b has none.
template <class T, bool SingleB, class Op>
ZELM_INLINE void combineNeighbours(Op op, char* dst, const char* a, const char* b, int64_t n) {
  if constexpr (SingleB) {
    const T constant = loadElement<T>(b);
    constexpr auto E = static_cast<int64_t>(sizeof(T));
    constexpr int64_t W = laneCount<T>;
    const auto lanes = splat<Lanes<T>>(constant);
    int64_t k = 0;
    for (; k + W <= n; k += W)
      storeLanes(dst + k * E, op(loadLanes<T>(a + k * E), lanes));
    for (; k < n; ++k)
      storeElement<T>(dst + k * E, op(loadElement<T>(a + k * E), constant));
  } else {
    runElements<T>(op, dst, a, b, runVectors<T, false>(op, dst, a, b, 0, n), n);
  }
}

// Pointer layout: a tile of neighbouring objects is walked position by position, so that few streams are open at a
// time. Any size needs the same code.
template <class Op, class A, class B, class D>
inline ZelStatus combinePositions(Op op, const A& src1, const B& src2, const D& dst, int32_t width, int32_t height,
                                  int32_t count) {
  using T = typename D::Element;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  const int64_t aStep = src1.objectStride();
  const int64_t bStep = src2.objectStride();
  const int64_t dStep = dst.objectStride();
  const bool neighbours = dStep == E && aStep == E && (bStep == E || !B::isArray);
  // A tile of neighbours is a kilobyte at each position; one of scattered elements keeps their cache lines at hand.
  const int64_t tile = neighbours ? 1024 / E : 32;
  for (int64_t k = 0; k < count; k += tile) {
    const int64_t n = count - k < tile ? count - k : tile;
    const auto a = objectOf(src1, k, width, height);
    const auto b = objectOf(src2, k, width, height);
    const auto d = objectOf(dst, k, width, height);
    for (int32_t i = 0; i < height; ++i)
      for (int32_t j = 0; j < width; ++j) {
        if (neighbours)
          combineNeighbours<T, !B::isArray>(op, d.address(i, j), a.address(i, j), b.address(i, j), n);
        else
          combinePosition<T>(op, d.address(i, j), dStep, a.address(i, j), aStep, b.address(i, j), bStep, n);
      }
  }
  return zelStatusOk;
}

} // namespace zelm
