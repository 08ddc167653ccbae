// Mul, matrix by matrix: dst(i, j) is the sum of src1(i, k) * src2(k, j) over ascending k.
//
// Each result element is one running sum in the element type, whatever the path: vectors run over result columns or
// over objects. The straight-line sizes start the sum from the first product, the general loop from +0.0, which shows
// in the sign of a zero alone.
#pragma once

#include "zelmmulsignature.h"
#include "zelmproduct.h"
#include "zelmtriples.h"

namespace zelm {

// sum[v] = a(0) * b(0, v) + a(1) * b(1, v) + ..., from the left, for the V columns of a row.
template <int N, int V, class L, class A, class B> ZELM_INLINE void sumProducts(L (&sum)[V], const A& a, const B& b) {
  ZELM_UNROLL
  for (int v = 0; v < V; ++v) {
    sum[v] = a(0) * b(0, v);
    ZELM_UNROLL
    for (int k = 1; k < N; ++k)
      sum[v] = sum[v] + a(k) * b(k, v);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Straight-line sizes whose rows are runs, or whose columns are

template <bool first, bool second> struct Which {
  static constexpr bool src1 = first;
  static constexpr bool src2 = second;
};

// Side N; which of the factors are transposed, and which are single ones in a batch. The rows of all operands are runs,
// as stored. (zelmmul_rows.h)
template <class T, int N, class Transposed12, class Single>
void multiplyUnit(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst, int64_t count,
                  int64_t whole);

// An operand whose columns are runs is the transposition of one whose rows are; where the result's columns are, the
// factors of the transposed product change places. Each sum stays what it is. Whether all operands have runs.
template <class T, int N, class Transposed12, class Single>
bool multiplyRuns(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                  const Count& count) {
  const auto hasRuns = [](const auto& x) { return x.unitRows() || x.unitColumns(); };
  if (!hasRuns(src1) || !hasRuns(src2) || !hasRuns(dst))
    return false;
  if (!dst.unitRows())
    return multiplyRuns<T, N, Which<Transposed12::src2, Transposed12::src1>, Which<Single::src2, Single::src1>>(
        src2.transposed(), src1.transposed(), dst.transposed(), count);
  const auto multiplyStored = [&](auto turned1, auto turned2) {
    multiplyUnit<T, N, Which<Transposed12::src1 != turned1, Transposed12::src2 != turned2>, Single>(
        turned1 ? src1.transposed() : src1, turned2 ? src2.transposed() : src2, dst, count, count.whole);
  };
  using Yes = std::true_type;
  using No = std::false_type;
  if (src1.unitRows())
    src2.unitRows() ? multiplyStored(No{}, No{}) : multiplyStored(No{}, Yes{});
  else
    src2.unitRows() ? multiplyStored(Yes{}, No{}) : multiplyStored(Yes{}, Yes{});
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------
// Straight-line sizes, any strides and pointer layout: one object

// Called for each object; operands differ in their strides or lists alone, so that all forms share it.
template <int N, class A, class B, class D> ZELM_NOINLINE void multiplyElements(const A& a, const B& b, const D& d) {
  const auto second = loadTile<N, N>(b);
  ZELM_UNROLL
  for (int i = 0; i < N; ++i) {
    typename D::Element first[N];
    ZELM_UNROLL
    for (int k = 0; k < N; ++k)
      first[k] = a.load(i, k);
    typename D::Element sum[N];
    sumProducts<N>(
        sum, [&](int k) __attribute__((always_inline)) { return first[k]; },
        [&](int k, int j) __attribute__((always_inline)) { return second(k, j); });
    ZELM_UNROLL
    for (int j = 0; j < N; ++j)
      d.store(i, j, sum[j]);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Straight-line sizes, pointer layout with stride0 of one element: objects side by side as they lie

// The addresses of an operand's elements as the product sees them.
template <class C, int N> struct ElementAddresses {
  C* at[N * N];
  template <class View> ZELM_INLINE explicit ElementAddresses(const View& x) {
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j)
        at[i * N + j] = x.address(i, j);
  }
};

// Vectors of neighbours, or one element in all lanes.
template <class T, bool single> ZELM_INLINE RowLanes<T> loadNeighbours(const char* x, int64_t offset) {
  if constexpr (single)
    return splat<RowLanes<T>>(loadElement<T>(x));
  else
    return loadRowLanes<T>(x + offset);
}

// Positions at the same distance from each other, one after the other: a step costs an addition, where a list costs a
// load.
template <class C> class Walk {
public:
  ZELM_INLINE Walk(C* first, int64_t step) : at_(first), step_(step) {}
  ZELM_INLINE C* next() {
    C* const here = at_;
    at_ += step_;
    asm volatile("" : "+r"(at_)); // compilers would keep every position in memory
    return here;
  }
  ZELM_INLINE Walk from(int position, int64_t offset) const { return {at_ + position * step_ + offset, step_}; }

private:
  C* at_;
  int64_t step_;
};

template <class C, int N> ZELM_INLINE int64_t stepOf(const ElementAddresses<C, N>& x) {
  return reinterpret_cast<std::intptr_t>(x.at[1]) - reinterpret_cast<std::intptr_t>(x.at[0]);
}
template <class C, int N> ZELM_INLINE bool isWalk(const ElementAddresses<C, N>& x) {
  bool even = true;
  for (int e = 2; e < N * N; ++e)
    even &= reinterpret_cast<std::intptr_t>(x.at[e]) - reinterpret_cast<std::intptr_t>(x.at[0]) == e * stepOf(x);
  return even;
}

// Rows of the result from i on, two at a time, which share the loads of src2.
template <class T, int N, int i = 0>
ZELM_INLINE void multiplyWalking(const Walk<const char>& src1, const Walk<const char>& src2, const Walk<char>& dst,
                                 int64_t offset) {
  constexpr int R = smaller(N - i, 2);
  const auto rowOfFirst = [&](int r) { return src1.from((i + r) * N, offset); };
  Walk<const char> first[2] = {rowOfFirst(0), rowOfFirst(R - 1)};
  Walk<const char> second = src2.from(0, offset);
  RowLanes<T> sum[R][N];
  ZELM_UNROLL
  for (int k = 0; k < N; ++k) {
    RowLanes<T> factor[R];
    ZELM_UNROLL
    for (int r = 0; r < R; ++r)
      factor[r] = loadRowLanes<T>(first[r].next());
    ZELM_UNROLL
    for (int j = 0; j < N; ++j) {
      const RowLanes<T> b = loadRowLanes<T>(second.next());
      ZELM_UNROLL
      for (int r = 0; r < R; ++r) {
        sum[r][j] = k == 0 ? factor[r] * b : sum[r][j] + factor[r] * b;
        holdInRegister(sum[r][j]);
      }
    }
  }
  Walk<char> result = dst.from(i * N, offset);
  ZELM_UNROLL
  for (int r = 0; r < R; ++r)
    ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    storeLanes(result.next(), sum[r][j]);
  if constexpr (i + R < N)
    multiplyWalking<T, N, i + R>(src1, src2, dst, offset);
}

// At least as many objects as a vector has lanes; the last vector is moved back to end with the batch.
template <class T, int N, class Single>
ZELM_NOINLINE void multiplyNeighbours(const PointerMatrixView<const T>& src1, const PointerMatrixView<const T>& src2,
                                      const PointerMatrixView<T>& dst, int64_t count) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  constexpr int64_t W = rowLaneCount<T>;
  const ElementAddresses<const char, N> first(src1);
  const ElementAddresses<const char, N> second(src2);
  const ElementAddresses<char, N> result(dst);
  if constexpr (N >= 5) {
    if (isWalk(first) && isWalk(second) && isWalk(result)) {
      const Walk<const char> a(first.at[0], stepOf(first));
      const Walk<const char> b(second.at[0], stepOf(second));
      const Walk<char> d(result.at[0], stepOf(result));
      for (int64_t k = 0; k < count; k += W)
        multiplyWalking<T, N>(a, b, d, (k + W <= count ? k : count - W) * E);
      return;
    }
  }
  for (int64_t k = 0; k < count; k += W) {
    const int64_t offset = (k + W <= count ? k : count - W) * E;
    Tile<RowLanes<T>, N, N> b;
    ZELM_UNROLL
    for (int e = 0; e < N * N; ++e)
      b.element[e] = loadNeighbours<T, Single::src2>(second.at[e], offset);
    ZELM_UNROLL
    for (int i = 0; i < N; ++i) {
      RowLanes<T> sum[N];
      sumProducts<N>(
          sum,
          [&](int l)
              __attribute__((always_inline)) { return loadNeighbours<T, Single::src1>(first.at[i * N + l], offset); },
          [&](int l, int j) __attribute__((always_inline)) { return b(l, j); });
      ZELM_UNROLL
      for (int j = 0; j < N; ++j)
        storeLanes(result.at[i * N + j] + offset, sum[j]);
    }
  }
}

// One factor is the same for all objects, and larger than 3 by 3. A line of the other, row i of src1 or column i of
// src2, is multiplied by two lines of the single factor at a time, or one of six elements, which stay in registers, for
// the objects from `first` to `end`.
template <class T, int N, class Single, bool fromZero, int j = 0>
ZELM_INLINE void multiplyLine(const char* const (&line)[N], const PointerMatrixView<const T>& single,
                              const PointerMatrixView<T>& dst, int i, int64_t first, int64_t end, int64_t count) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  constexpr int64_t W = rowLaneCount<T>;
  constexpr int R = smaller(N - j, N < 6 ? 2 : 1);
  RowLanes<T> held[R][N];
  char* to[R];
  ZELM_UNROLL
  for (int r = 0; r < R; ++r) {
    to[r] = Single::src2 ? dst.address(i, j + r) : dst.address(j + r, i);
    ZELM_UNROLL
    for (int k = 0; k < N; ++k)
      held[r][k] = splat<RowLanes<T>>(Single::src2 ? single.load(k, j + r) : single.load(j + r, k));
  }
  const auto multiply = [&](int64_t offset) ZELM_BODY {
    RowLanes<T> sum[R];
    ZELM_UNROLL
    for (int k = 0; k < N; ++k) {
      const auto x = loadRowLanes<T>(line[k] + offset);
      ZELM_UNROLL
      for (int r = 0; r < R; ++r) {
        const auto term = Single::src2 ? x * held[r][k] : held[r][k] * x;
        sum[r] = k > 0 ? sum[r] + term : fromZero ? splat<RowLanes<T>>(0) + term : term;
      }
    }
    ZELM_UNROLL
    for (int r = 0; r < R; ++r)
      storeLanes(to[r] + offset, sum[r]);
  };
  int64_t k = first;
  for (; k + W <= end; k += W)
    multiply(k * E);
  if (k < end)
    multiply((count - W) * E);
  if constexpr (j + R < N)
    multiplyLine<T, N, Single, fromZero, j + R>(line, single, dst, i, first, end, count);
}

// At least as many objects as a vector has lanes. Of so many at a time, a line and two positions of the result fit the
// first cache level.
template <class T, int N, class Single, bool fromZero>
ZELM_NOINLINE void multiplyBySingle(PointerMatrixView<const T> src1, PointerMatrixView<const T> src2,
                                    PointerMatrixView<T> dst, int64_t count) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  constexpr int64_t tile = (24 << 10) / ((N + 2) * E) / rowLaneCount<T> * rowLaneCount<T>;
  for (int64_t first = 0; first < count; first += tile) {
    const int64_t end = first + tile < count ? first + tile : count;
    for (int i = 0; i < N; ++i) {
      const char* line[N];
      ZELM_UNROLL
      for (int k = 0; k < N; ++k)
        line[k] = Single::src2 ? src1.address(i, k) : src2.address(k, i);
      multiplyLine<T, N, Single, fromZero>(line, Single::src2 ? src2 : src1, dst, i, first, end, count);
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// General path: any sizes; every sum starts from +0.0

// Pointer layout with stride0 of one element: R rows of the result from row i on, V columns from column j on, of the
// objects at `offset`.
template <int R, int V, class Single, class T>
ZELM_INLINE void multiplyNeighbourElements(const PointerMatrixView<const T>& a, const PointerMatrixView<const T>& b,
                                           const PointerMatrixView<T>& d, int64_t i, int64_t j, int64_t n,
                                           int64_t offset) {
  RowLanes<T> sum[R * V] = {};
  for (int64_t k = 0; k < n; ++k) {
    RowLanes<T> second[V];
    ZELM_UNROLL
    for (int v = 0; v < V; ++v)
      second[v] = loadNeighbours<T, Single::src2>(b.address(k, j + v), offset);
    ZELM_UNROLL
    for (int r = 0; r < R; ++r) {
      const RowLanes<T> first = loadNeighbours<T, Single::src1>(a.address(i + r, k), offset);
      ZELM_UNROLL
      for (int v = 0; v < V; ++v)
        sum[r * V + v] = sum[r * V + v] + first * second[v];
    }
  }
  ZELM_UNROLL
  for (int r = 0; r < R; ++r)
    ZELM_UNROLL
  for (int v = 0; v < V; ++v)
    storeLanes(d.address(i + r, j + v) + offset, sum[r * V + v]);
}

// R rows of the result from row i on.
template <int R, class Single, class T>
ZELM_INLINE void multiplyNeighbourRows(const PointerMatrixView<const T>& a, const PointerMatrixView<const T>& b,
                                       const PointerMatrixView<T>& d, int64_t i, int64_t columns, int64_t n,
                                       int64_t offset) {
  int64_t j = 0;
  for (; j + 4 <= columns; j += 4)
    multiplyNeighbourElements<R, 4, Single>(a, b, d, i, j, n, offset);
  if (j + 2 <= columns) {
    multiplyNeighbourElements<R, 2, Single>(a, b, d, i, j, n, offset);
    j += 2;
  }
  if (j < columns)
    multiplyNeighbourElements<R, 1, Single>(a, b, d, i, j, n, offset);
}

// At least as many objects as a vector has lanes; the last vector is moved back to end with the batch.
template <class Single, class T>
ZELM_NOINLINE void multiplyNeighboursGeneral(const PointerMatrixView<const T>& a, const PointerMatrixView<const T>& b,
                                             const PointerMatrixView<T>& d, int64_t rows, int64_t columns, int64_t n,
                                             int64_t count) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  constexpr int64_t W = rowLaneCount<T>;
  for (int64_t k = 0; k < count; k += W) {
    const int64_t offset = (k + W <= count ? k : count - W) * E;
    int64_t i = 0;
    for (; i + 2 <= rows; i += 2)
      multiplyNeighbourRows<2, Single>(a, b, d, i, columns, n, offset);
    if (i < rows)
      multiplyNeighbourRows<1, Single>(a, b, d, i, columns, n, offset);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

// Every step an argument: what forms share that differ in addressing alone.
template <class T, class R, class C> ZELM_INLINE auto anySteps(const StridedMatrixView<T, R, C>& x) {
  return StridedMatrixView<T, AnyStep, AnyStep>{x.origin, int64_t{x.rowStep}, int64_t{x.columnStep}};
}
template <class T> ZELM_INLINE auto anySteps(const PointerMatrixView<T>& x) {
  return x;
}

template <class> constexpr bool isNeighbour = false;
template <class T> constexpr bool isNeighbour<PointerMatrixView<T>> = true;

// Do the objects of a batch lie side by side at every position, enough of them to fill a vector? A single source does
// for any object.
template <class A, class B, class D>
ZELM_INLINE bool liesSideBySide(const A& src1, const B& src2, const D& dst, int32_t count) {
  using T = typename D::Element;
  const auto neighbours = [](const auto& x) { return !x.isArray || x.objectStride() == int64_t{sizeof(T)}; };
  return count >= rowLaneCount<T> && neighbours(src1) && neighbours(src2) && neighbours(dst);
}

template <class A, class B, class D> using SingleSources = Which<D::isArray && !A::isArray, D::isArray && !B::isArray>;

template <class A, class B, class D>
ZELM_INLINE ZelStatus multiplyAny(const A& src1, int32_t src1Width, int32_t src1Height, const B& src2,
                                  int32_t src2Width, int32_t src2Height, const D& dst, int32_t count) {
  using View = decltype(dst.object(0, 0));
  const int32_t rows = rowsOf<A>(src1Width, src1Height);
  const int32_t columns = columnsOf<B>(src2Width, src2Height);
  const int32_t n = columnsOf<A>(src1Width, src1Height);
  if constexpr (D::isArray && isNeighbour<View>) {
    if (liesSideBySide(src1, src2, dst, count)) {
      using Single = SingleSources<A, B, D>;
      const auto general = [&] {
        multiplyNeighboursGeneral<Single>(src1.object(0, src1Width), src2.object(0, src2Width), dst.object(0, columns),
                                          rows, columns, n, count);
        return zelStatusOk;
      };
      if constexpr (!Single::src1 && !Single::src2)
        return general();
      else // some kernels have no straight-line case of these sides
        return forSize(
            Sizes<4, 5, 6>{}, rows == columns && columns == n ? n : 0,
            [&](auto side) {
              multiplyBySingle<typename D::Element, side, Single, true>(src1.object(0, side), src2.object(0, side),
                                                                        dst.object(0, side), count);
              return zelStatusOk;
            },
            general);
    }
  }
  if constexpr (View::strided)
    multiplyShape<typename D::Element>(objectsOf(src1), objectsOf(src2), objectsOf(dst), {rows, n, columns},
                                       zeroFirst<typename D::Element>, count);
  else
    for (int32_t k = 0; k < count; ++k)
      multiplyGeneral(src1.object(k, src1Width), src2.object(k, src2Width), dst.object(k, columns), rows, columns, n);
  return zelStatusOk;
}

// All objects have the side N.
template <int N, class A, class B, class D>
ZELM_INLINE ZelStatus multiplyFixed(const A& src1, const B& src2, const D& dst, Count count) {
  using T = typename D::Element;
  using View = decltype(dst.object(0, N));
  using Single = SingleSources<A, B, D>;
  if constexpr (View::unitRows) {
    multiplyUnit<T, N, Which<isTransposed<A>, isTransposed<B>>, Single>(
        objectsOf(asStored(src1)), objectsOf(asStored(src2)), objectsOf(dst), count, count.whole);
  } else {
    if constexpr (View::strided) {
      const auto result = objectsOf(dst);
      if (multiplyRuns<T, N, Which<isTransposed<A>, isTransposed<B>>, Single>(objectsOf(asStored(src1)),
                                                                              objectsOf(asStored(src2)), result, count))
        return zelStatusOk;
      const ProductShape shape{N, N, N};
      if (paysInLanes<T>(N) && goesInLanes(shape, count)) {
        multiplyInLanes<T>(objectsOf(src1), objectsOf(src2), result, shape, termFirst<T>, count);
        return zelStatusOk;
      }
    }
    if constexpr (D::isArray && isNeighbour<View>) {
      if (liesSideBySide(src1, src2, dst, count)) {
        if constexpr (N > 3 && (Single::src1 || Single::src2))
          multiplyBySingle<T, N, Single, false>(src1.object(0, N), src2.object(0, N), dst.object(0, N), count);
        else
          multiplyNeighbours<T, N, Single>(src1.object(0, N), src2.object(0, N), dst.object(0, N), count);
        return zelStatusOk;
      }
    }
    for (int32_t k = 0; k < count; ++k)
      multiplyElements<N>(anySteps(src1.object(k, N)), anySteps(src2.object(k, N)), dst.object(k, N));
  }
  return zelStatusOk;
}

// A straight-line size runs if the guard gives it, otherwise the general path.
template <int... N, class A, class B, class D>
ZELM_INLINE ZelStatus multiplySide(Sizes<N...> sizes, int32_t side, const A& src1, int32_t src1Width,
                                   int32_t src1Height, const B& src2, int32_t src2Width, int32_t src2Height,
                                   const D& dst, Count count) {
  return forSize(
      sizes, side, [&](auto n) { return multiplyFixed<n>(src1, src2, dst, count); },
      [&] { return multiplyAny(src1, src1Width, src1Height, src2, src2Width, src2Height, dst, count); });
}

// The size that all four are, or 0.
constexpr int32_t commonSide(int32_t width1, int32_t height1, int32_t width2, int32_t height2) {
  return width1 == height1 && width1 == width2 && width1 == height2 ? width1 : 0;
}

// The rows of the kernels name how they test the sizes: as a list of sides that all four must equal, or one of two
// below.
template <class A, class B, class D, int... N>
ZELM_INLINE ZelStatus multiplyBy(Sizes<N...> sizes, const A& src1, int32_t src1Width, int32_t src1Height, const B& src2,
                                 int32_t src2Width, int32_t src2Height, const D& dst, Count count) {
  return multiplySide(sizes, commonSide(src1Width, src1Height, src2Width, src2Height), src1, src1Width, src1Height,
                      src2, src2Width, src2Height, dst, count);
}

// The sizes 3 to 6 of two kernels that test 3 by the OR of the four sizes: sizes of 1 to 3 whose OR is 3 run the 3 by 3
// code, on list entries 0 to 8 of each operand as three rows of three. (For 4 the test would be the same as the exact
// one.)
struct SizesByOr {};
template <class A, class B, class D>
ZELM_INLINE ZelStatus multiplyBy(SizesByOr, const A& src1, int32_t src1Width, int32_t src1Height, const B& src2,
                                 int32_t src2Width, int32_t src2Height, const D& dst, Count count) {
  const int32_t side = (src1Width | src1Height | src2Width | src2Height) == 3
                           ? 3
                           : commonSide(src1Width, src1Height, src2Width, src2Height);
  return multiplySide(Sizes<3, 4, 5, 6>{}, side, src1, src1Width, src1Height, src2, src2Width, src2Height, dst, count);
}

// The sizes 3, 5 and 6, and a 4 by 4 case that a 4 by 4 src1 with a src2 of three stored rows enters: it reads a fourth
// row of src2 and writes a fourth column of dst. All sizes 4 are left to the general path.
struct SizesWith4By3 {};
template <class A, class B, class D>
ZELM_INLINE ZelStatus multiplyBy(SizesWith4By3, const A& src1, int32_t src1Width, int32_t src1Height, const B& src2,
                                 int32_t src2Width, int32_t src2Height, const D& dst, Count count) {
  if (src1Width == 4 && src1Height == 4 && src2Height == 3)
    return multiplyFixed<4>(src1, src2, dst, count);
  return multiplyBy(Sizes<3, 5, 6>{}, src1, src1Width, src1Height, src2, src2Width, src2Height, dst, count);
}

template <class SizeTest, class A, class B, class D>
ZELM_INLINE ZelStatus multiply(const A& src1, int32_t src1Width, int32_t src1Height, const B& src2, int32_t src2Width,
                               int32_t src2Height, const D& dst, int32_t count = 1) {
  return multiplyBy(SizeTest{}, src1, src1Width, src1Height, src2, src2Width, src2Height, dst, count);
}

} // namespace zelm
