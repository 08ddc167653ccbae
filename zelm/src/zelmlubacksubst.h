// Solution of linear systems from what LUDecomp left: row index[i] of src1 is row i of the factors.
//
// Sides 3 to 6 and all other sides differ on purpose: the former multiply by reciprocals of the diagonal and subtract
// term by term, in the forward pass the term of column 0 last; the latter subtract sums and divide.
#pragma once

#include "zelmbatch.h"
#include "zelmlusignature.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// General loop, one right-hand side, in dst

template <class A, class B, class D>
inline void substituteLoop(const A& src1, const int32_t* p, const B& src2, const D& dst, int32_t n) {
  using T = typename D::Element;
  dst.store(0, src2.load(p[0]));
  for (int32_t i = 1; i < n; ++i) {
    T sum = 0;
    for (int32_t j = 0; j < i; ++j)
      sum = sum + src1.load(p[i], j) * dst.load(j);
    dst.store(i, src2.load(p[i]) - sum);
  }
  dst.store(n - 1, dst.load(n - 1) / src1.load(p[n - 1], n - 1));
  for (int32_t i = n - 2; i >= 0; --i) {
    T sum = 0;
    for (int32_t j = i + 1; j < n; ++j)
      sum = sum + src1.load(p[i], j) * dst.load(j);
    dst.store(i, (dst.load(i) - sum) / src1.load(p[i], i));
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Sides 3 to 6: the factors with their rows in order, in lanes of any type

template <class L, int N> struct LuFactors {
  Tile<L, N, N> a;
  L reciprocal[N];
};

template <class L, int N> ZELM_INLINE void takeReciprocals(LuFactors<L, N>& f) {
  ZELM_UNROLL
  for (int i = 0; i < N; ++i)
    f.reciprocal[i] = splat<L>(ElementOf<L>(1)) / f.a(i, i);
}

// x holds the right-hand side in the order of the rows, then the solution.
template <class L, int N> ZELM_INLINE void substitute(const LuFactors<L, N>& f, Tile<L, 1, N>& x) {
  ZELM_UNROLL
  for (int i = 1; i < N; ++i) {
    ZELM_UNROLL
    for (int j = 1; j < i; ++j)
      x(0, i) = x(0, i) - f.a(i, j) * x(0, j);
    x(0, i) = x(0, i) - f.a(i, 0) * x(0, 0);
  }
  x(0, N - 1) = x(0, N - 1) * f.reciprocal[N - 1];
  ZELM_UNROLL
  for (int i = N - 2; i >= 0; --i) {
    ZELM_UNROLL
    for (int j = N - 1; j > i; --j)
      x(0, i) = x(0, i) - f.a(i, j) * x(0, j);
    x(0, i) = x(0, i) * f.reciprocal[i];
  }
}

template <int N, class T, class A> ZELM_INLINE LuFactors<T, N> readFactors(const A& src1, const int32_t* p) {
  LuFactors<T, N> f;
  ZELM_UNROLL
  for (int i = 0; i < N; ++i) {
    ZELM_UNROLL
    for (int j = 0; j < N; ++j)
      f.a(i, j) = src1.load(p[i], j);
  }
  takeReciprocals(f);
  return f;
}

// One right-hand side; all of it is read before dst is written.
template <int N, class T, class B, class D>
ZELM_INLINE void substituteOne(const LuFactors<T, N>& f, const int32_t* p, const B& src2, const D& dst) {
  Tile<T, 1, N> x;
  ZELM_UNROLL
  for (int i = 0; i < N; ++i)
    x(0, i) = src2.load(p[i]);
  substitute(f, x);
  ZELM_UNROLL
  for (int i = 0; i < N; ++i)
    dst.store(i, x(0, i));
}

// ---------------------------------------------------------------------------------------------------------------------
// One matrix, a block of right-hand sides

template <int N, class T>
ZELM_NOINLINE void substituteBlock(const LuFactors<Lanes<T>, N>& f, const int32_t* p, Tile<Lanes<T>, 1, N>& b) {
  Tile<Lanes<T>, 1, N> x;
  ZELM_UNROLL
  for (int i = 0; i < N; ++i)
    x(0, i) = b(0, p[i]);
  substitute(f, x);
  b = x;
}

template <class T, int N> ZELM_INLINE void spread(const LuFactors<T, N>& f, LuFactors<Lanes<T>, N>& lanes) {
  for (int e = 0; e < N * N; ++e)
    lanes.a.element[e] = splat<Lanes<T>>(f.a.element[e]);
  for (int i = 0; i < N; ++i)
    lanes.reciprocal[i] = splat<Lanes<T>>(f.reciprocal[i]);
}

template <int N, class B, class D>
inline void substituteVectors(const LuFactors<typename D::Element, N>& f, const int32_t* p, const B& src2, const D& dst,
                              int32_t count) {
  using T = typename D::Element;
  using View = decltype(dst.object(0));
  constexpr int W = laneCount<T>;
  if (count == 1) {
    substituteOne<N, T>(f, p, src2.object(0), dst.object(0));
    return;
  }
  LuFactors<Lanes<T>, N> lanes;
  spread(f, lanes);
  Tile<Lanes<T>, 1, N> b;
  if constexpr (View::unitRows) {
    for (int64_t k = 0; k < count; k += W) {
      loadRun<N, T>(vectorAddresses(src2, k, count), 0, b.element);
      substituteBlock<N, T>(lanes, p, b);
      storeRun<N, T>(vectorAddresses(dst, k, count), 0, b.element);
    }
  } else {
    const auto from = vectorPositions<N>(src2);
    const auto to = vectorPositions<N>(dst);
    for (int64_t k = 0; k < count; k += W) {
      const auto right = objectOffsets(src2, k, count);
      const auto result = objectOffsets(dst, k, count);
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { b.element[i] = right.load(from.of[i]); });
      substituteBlock<N, T>(lanes, p, b);
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { result.store(to.of[i], b.element[i]); });
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// A block of matrices and right-hand sides, pair by pair

template <class T, int N>
ZELM_INLINE void loadIndex(const PlainAddresses<T, const int32_t>& index, IntegerOf<Lanes<T>> (&p)[N]) {
  if constexpr (sizeof(T) == 4) {
    ObjectAddresses<float, const char> bytes;
    Lanes<float> lanes[N];
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w)
      bytes.of[w] = reinterpret_cast<const char*>(index.of[w]);
    loadRun<N, float>(bytes, 0, lanes);
    ZELM_UNROLL
    for (int i = 0; i < N; ++i)
      p[i] = reinterpret_cast<IntegerOf<Lanes<T>>>(lanes[i]);
  } else if constexpr (laneCount<T> > 2) {
    // Four places of four objects, turned and widened.
    using Four = LanesOf<int64_t, 4>;
    ZELM_UNROLL
    for (int i = 0; i < N; i += 4) {
      const int from = i + 4 <= N || N < 4 ? i : N - 4;
      Four wide[4][laneCount<T> / 4];
      ZELM_UNROLL
      for (int g = 0; g < laneCount<T> / 4; ++g) {
        Lanes<float, 4> row[4];
        ZELM_UNROLL
        for (int w = 0; w < 4; ++w) {
          const char* const at = reinterpret_cast<const char*>(index.of[4 * g + w] + from);
          if constexpr (N == 3)
            row[w] = loadTriple(at);
          else
            row[w] = loadLanes<float, 4>(at);
        }
        transposeChunk(row);
        ZELM_UNROLL
        for (int q = 0; q < 4; ++q)
          wide[q][g] = __builtin_convertvector(reinterpret_cast<LanesOf<int32_t, 4>>(row[q]), Four);
      }
      ZELM_UNROLL
      for (int q = 0; q < 4; ++q)
        if (from + q < N)
          std::memcpy(&p[from + q], wide[q], sizeof p[0]);
    }
  }
}

template <int N, class T>
ZELM_NOINLINE void substituteRows(const ObjectAddresses<T, const char>& src1, int64_t step,
                                  const PlainAddresses<T, const int32_t>& index,
                                  const ObjectAddresses<T, const char>& src2, const ObjectAddresses<T, char>& dst) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  LuFactors<Lanes<T>, N> f;
  Tile<Lanes<T>, 1, N> x;
  ZELM_UNROLL
  for (int i = 0; i < N; ++i) {
    ObjectAddresses<T, const char> row;
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w)
      row.of[w] = src1.of[w] + index.of[w][i] * step;
    loadRun<N, T>(row, 0, &f.a(i, 0));
    x(0, i) = gatherLanes<T>([&](int w) ZELM_BODY { return src2.of[w] + index.of[w][i] * E; });
  }
  takeReciprocals(f);
  substitute(f, x);
  storeRun<N, T>(dst, 0, x.element);
}

// False, and nothing stored, if an index has a row twice.
template <int N, class T, class Objects, class Index>
ZELM_NOINLINE bool substituteElements(const Positions<N * N>& src1Positions, const Objects& src1, const Index& index,
                                      const Positions<N>& src2Positions, const Objects& src2,
                                      const Positions<N>& dstPositions, const Objects& dst) {
  using L = Lanes<T>;
  LuFactors<L, N> f;
  Tile<L, 1, N> x;
  const PlainAddresses<T, const int32_t> places = index;
  if constexpr (laneCount<T> == 2 || (!hasBlends && N > 4)) {
    // Loads of single elements are less than exchanges of rows without blend instructions.
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
      const std::intptr_t* row[laneCount<T>];
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; ++w)
        row[w] = &src1Positions.of[places.of[w][i] * N];
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
        f.a(i, j) = gatherLanes<T>([&](int w) ZELM_BODY { return src1.address(row[w][j], w); });
      });
      x(0, i) = gatherLanes<T>([&](int w) ZELM_BODY { return src2.address(src2Positions.of[places.of[w][i]], w); });
    });
  } else {
    IntegerOf<L> p[N];
    loadIndex<T>(places, p);
    const RowOrder<L, N> order(p);
    if (!order.isPermutation())
      return false;
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
      L column[N];
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { column[i] = src1.load(src1Positions.of[i * N + j]); });
      order.put(column);
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { f.a(i, j) = column[i]; });
    });
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { x.element[i] = src2.load(src2Positions.of[i]); });
    order.put(x.element);
  }
  takeReciprocals(f);
  substitute(f, x);
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { dst.store(dstPositions.of[i], x.element[i]); });
  return true;
}

template <int N, class A, class B, class D>
inline void substitutePairs(const A& src1, const Plain<const int32_t>& index, const B& src2, const D& dst,
                            int32_t count) {
  using T = typename D::Element;
  constexpr int W = laneCount<T>;
  const auto one = [&](int64_t k) {
    const int32_t* p = index.pointer + k * N;
    substituteOne<N, T>(readFactors<N, T>(src1.object(k, N), p), p, src2.object(k), dst.object(k));
  };
  // A lone last object goes by itself.
  const int32_t end = count % W == 1 ? count - 1 : count;
  if constexpr (decltype(dst.object(0))::unitRows) {
    for (int64_t k = 0; k < end; k += W)
      substituteRows<N, T>(matrixAddresses(src1, k, count), src1.stride1, plainAddresses<T>(index, k, count),
                           vectorAddresses(src2, k, count), vectorAddresses(dst, k, count));
  } else {
    const auto matrix = matrixPositions<N>(src1);
    const auto from = vectorPositions<N>(src2);
    const auto to = vectorPositions<N>(dst);
    bool neighbours = false;
    if constexpr (isPointerLayout<D>)
      neighbours = areNeighbours(src1) && areNeighbours(src2) && areNeighbours(dst);
    const auto block = [&](int64_t k) {
      if constexpr (isPointerLayout<D>)
        if (neighbours && k + W <= count)
          return substituteElements<N, T>(
              matrix, NeighbourOffsets<T>{objectOffset(src1, k)}, PlainRun<N, T, const int32_t>{index.pointer + k * N},
              from, NeighbourOffsets<T>{objectOffset(src2, k)}, to, NeighbourOffsets<T>{objectOffset(dst, k)});
      return substituteElements<N, T>(matrix, objectOffsets(src1, k, count), plainAddresses<T>(index, k, count), from,
                                      objectOffsets(src2, k, count), to, objectOffsets(dst, k, count));
    };
    for (int64_t k = 0; k < end; k += W)
      if (!block(k))
        for (int64_t m = k; m < end && m < k + W; ++m)
          one(m);
  }
  if (end < count)
    one(end);
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

using FixedSizes = Sizes<3, 4, 5, 6>;

// mv
template <class A, class B, class D>
inline ZelStatus solveOne(const A& src1, const Plain<const int32_t>& index, const B& src2, const D& dst,
                          int32_t widthHeight) {
  return forSize(
      FixedSizes{}, widthHeight,
      [&](auto side) {
        using T = typename D::Element;
        const int32_t* p = index.pointer;
        substituteOne<side, T>(readFactors<side, T>(src1.object(0, side), p), p, src2.object(0), dst.object(0));
        return zelStatusOk;
      },
      [&] {
        substituteLoop(src1.object(0, widthHeight), index.pointer, src2.object(0), dst.object(0), widthHeight);
        return zelStatusOk;
      });
}

// mva
template <class A, class B, class D>
inline ZelStatus solveVectors(const A& src1, const Plain<const int32_t>& index, const B& src2, const D& dst,
                              int32_t widthHeight, int32_t count) {
  return forSize(
      FixedSizes{}, widthHeight,
      [&](auto side) {
        using T = typename D::Element;
        int32_t p[side];
        for (int i = 0; i < side; ++i)
          p[i] = index.pointer[i];
        substituteVectors<side>(readFactors<side, T>(src1.object(0, side), p), p, src2, dst, count);
        return zelStatusOk;
      },
      [&] {
        for (int32_t k = 0; k < count; ++k)
          substituteLoop(src1.object(0, widthHeight), index.pointer, src2.object(k), dst.object(k), widthHeight);
        return zelStatusOk;
      });
}

// mava
template <class A, class B, class D>
inline ZelStatus solveSystems(const A& src1, const Plain<const int32_t>& index, const B& src2, const D& dst,
                              int32_t widthHeight, int32_t count) {
  return forSize(
      FixedSizes{}, widthHeight,
      [&](auto side) {
        substitutePairs<side>(src1, index, src2, dst, count);
        return zelStatusOk;
      },
      [&] {
        for (int32_t k = 0; k < count; ++k)
          substituteLoop(src1.object(k, widthHeight), index.single(k).pointer, src2.object(k), dst.object(k),
                         widthHeight);
        return zelStatusOk;
      });
}

} // namespace zelm
