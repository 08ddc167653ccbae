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

// The same on a block in lanes, whose rows are in order; x holds the right-hand sides, then the solutions.
template <class L, class Side> ZELM_INLINE void substituteLanes(const L* f, L* x, Side side) {
  ascending(Fixed<1>{}, side, [&](auto i) ZELM_BODY {
    L sum{};
    ascending(Fixed<0>{}, i, [&](auto j) ZELM_BODY { sum = sum + f[i * side + j] * x[j]; });
    x[i] = x[i] - sum;
  });
  const auto last = previous(side);
  x[last] = x[last] / f[last * side + last];
  descending(Fixed<0>{}, last, [&](auto i) ZELM_BODY {
    L sum{};
    ascending(next(i), side, [&](auto j) ZELM_BODY { sum = sum + f[i * side + j] * x[j]; });
    x[i] = (x[i] - sum) / f[i * side + i];
  });
}

// A matrix for each right-hand side.
template <class T, class A, class B, class D>
ZELM_NOINLINE void substituteEach(const A& src1, const PlainAddresses<T, const int32_t>& index, const B& src2,
                                  const D& dst, int side) {
  Lanes<T> f[luLaneSide * luLaneSide];
  Lanes<T> x[luLaneSide];
  for (int i = 0; i < side; ++i) {
    loadRowByIndex<T>(src1, index, i, side, f + i * side);
    x[i] = loadByIndex<T>(src2, index, i);
  }
  substituteLanes(f, x, side);
  storeVector(dst, x, side);
}
// Side 2: both rows are loaded where they are.
template <class T, class A, class B, class D>
ZELM_NOINLINE void substituteEach(const A& src1, const PlainAddresses<T, const int32_t>& index, const B& src2,
                                  const D& dst, Fixed<2> side) {
  using L = Lanes<T>;
  using I = IntegerOf<L>;
  L a[4];
  L b[2];
  L p[2];
  loadElements(src1, a, side, side);
  loadVector(src2, b, side);
  loadEntryPairs<T>(index, p);
  L f[4];
  L x[2];
  ascending(Fixed<0>{}, side, [&](auto i) ZELM_BODY {
    const auto isLower = unequal(reinterpret_cast<I>(p[i]), I{});
    f[2 * i] = select<L>(isLower, a[2], a[0]);
    f[2 * i + 1] = select<L>(isLower, a[3], a[1]);
    x[i] = select<L>(isLower, b[1], b[0]);
  });
  substituteLanes(f, x, side);
  storeVector(dst, x, side);
}

// One matrix, whose rows are in f in order.
template <class L, class B, class D, class Side>
ZELM_NOINLINE void substituteOfOne(const L* f, const int32_t* p, const B& src2, const D& dst, Side side) {
  L b[luLaneSide];
  L x[luLaneSide]{};
  loadVector(src2, b, side);
  ascending(Fixed<0>{}, side, [&](auto i) ZELM_BODY { x[i] = b[p[i]]; });
  substituteLanes(f, x, side);
  storeVector(dst, x, side);
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
  LuFactors<Lanes<T>, N> lanes;
  if (count > 1)
    spread(f, lanes);
  auto rights = vectorBlocks(src2);
  auto results = vectorBlocks(dst);
  forBlocks<laneCount<T>, isPointerLayout<D>>(
      count, areNeighbours(src2) && areNeighbours(dst),
      [&](auto block) ZELM_BODY {
        Tile<Lanes<T>, 1, N> b;
        loadVector(rights.at(block), b.element, Fixed<N>{});
        substituteBlock<N, T>(lanes, p, b);
        storeVector(results.at(block), b.element, Fixed<N>{});
        return true;
      },
      [&](int64_t k) ZELM_BODY {
        substituteOne<N, T>(f, p, src2.object(k), dst.object(k));
        return ZelStatus{zelStatusOk};
      });
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

// False, and nothing stored, if an index has a row twice where rows are brought into order lane by lane.
template <int N, class A, class Index, class B, class D>
ZELM_NOINLINE bool substituteBlock(const A& src1, const Index& entries, const B& src2, const D& dst) {
  using T = typename D::Element;
  using L = Lanes<T>;
  // Rows are found by address. Elements one by one take less than exchanges of rows without blend instructions.
  constexpr bool byIndex = A::unit || laneCount<T> == 2 || (!hasBlends && N > 4);
  const PlainAddresses<T, const int32_t> index = entries;
  LuFactors<L, N> f;
  Tile<L, 1, N> x;
  if constexpr (byIndex) {
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY {
      loadRowByIndex<T>(src1, index, i, Fixed<N>{}, &f.a(i, 0));
      x(0, i) = loadByIndex<T>(src2, index, i);
    });
  } else {
    IntegerOf<L> p[N];
    loadIndex<T>(index, p);
    const RowOrder<L, N> order(p);
    if (!order.isPermutation())
      return false;
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
      L column[N];
      loadColumn(src1, j, column, Fixed<N>{});
      order.put(column);
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { f.a(i, j) = column[i]; });
    });
    loadVector(src2, x.element, Fixed<N>{});
    order.put(x.element);
  }
  takeReciprocals(f);
  substitute(f, x);
  storeVector(dst, x.element, Fixed<N>{});
  return true;
}

template <int N, class A, class B, class D>
inline ZelStatus substitutePairs(const A& src1, const Plain<const int32_t>& index, const B& src2, const D& dst,
                                 int32_t count) {
  using T = typename D::Element;
  auto factors = matrixBlocks(src1, Fixed<N>{});
  auto rights = vectorBlocks(src2);
  auto results = vectorBlocks(dst);
  return forBlocks<laneCount<T>, isPointerLayout<D>, fewSystems<laneCount<T>>(N)>(
      count, areNeighbours(src1) && areNeighbours(src2) && areNeighbours(dst),
      [&](auto block) ZELM_BODY {
        return substituteBlock<N>(factors.at(block), entriesOf<N, T>(index, block), rights.at(block),
                                  results.at(block));
      },
      [&](int64_t k) ZELM_BODY {
        const int32_t* p = index.pointer + k * N;
        substituteOne<N, T>(readFactors<N, T>(src1.object(k, N), p), p, src2.object(k), dst.object(k));
        return ZelStatus{zelStatusOk};
      });
}

// ---------------------------------------------------------------------------------------------------------------------
// Other sides, in lanes where a matrix is not too large for them

// side() is known to the compiler if it is 2.
template <class Body> ZELM_INLINE void forGeneralSide(int32_t side, const Body& body) {
  if (side == 2)
    body(Fixed<2>{});
  else
    body(static_cast<int>(side));
}

template <class A, class B, class D>
ZELM_NOINLINE ZelStatus substituteGeneralVectors(const A& src1, const Plain<const int32_t>& index, const B& src2,
                                                 const D& dst, int32_t side, int32_t count) {
  using T = typename D::Element;
  const auto matrix = src1.object(0, side);
  const bool inLanes = side <= luLaneSide && count > 1;
  Lanes<T> f[luLaneSide * luLaneSide];
  for (int32_t i = 0; inLanes && i < side; ++i)
    for (int32_t j = 0; j < side; ++j)
      f[i * side + j] = splat<Lanes<T>>(matrix.load(index.pointer[i], j));
  auto rights = vectorBlocks(src2);
  auto results = vectorBlocks(dst);
  return forBlocks<laneCount<T>, isPointerLayout<D>>(
      count, areNeighbours(src2) && areNeighbours(dst),
      [&](auto block) ZELM_BODY {
        if (inLanes)
          forGeneralSide(side, [&](auto n) ZELM_BODY {
            substituteOfOne(f, index.pointer, rights.at(block), results.at(block), n);
          });
        return inLanes;
      },
      [&](int64_t k) ZELM_BODY {
        substituteLoop(matrix, index.pointer, src2.object(k), dst.object(k), side);
        return ZelStatus{zelStatusOk};
      });
}

template <class A, class B, class D>
ZELM_NOINLINE ZelStatus substituteGeneralPairs(const A& src1, const Plain<const int32_t>& index, const B& src2,
                                               const D& dst, int32_t side, int32_t count) {
  using T = typename D::Element;
  const bool inLanes = side <= luLaneSide;
  auto factors = matrixBlocks(src1, side);
  auto rights = vectorBlocks(src2);
  auto results = vectorBlocks(dst);
  return forBlocks<laneCount<T>, isPointerLayout<D>>(
      count, areNeighbours(src1) && areNeighbours(src2) && areNeighbours(dst),
      [&](auto block) ZELM_BODY {
        if (inLanes)
          forGeneralSide(side, [&](auto n) ZELM_BODY {
            substituteEach<T>(factors.at(block), plainAddresses<T>(index, block.first, block.last), rights.at(block),
                              results.at(block), n);
          });
        return inLanes;
      },
      [&](int64_t k) ZELM_BODY {
        substituteLoop(src1.object(k, side), index.single(k).pointer, src2.object(k), dst.object(k), side);
        return ZelStatus{zelStatusOk};
      });
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
      [&] { return substituteGeneralVectors(src1, index, src2, dst, widthHeight, count); });
}

// mava
template <class A, class B, class D>
inline ZelStatus solveSystems(const A& src1, const Plain<const int32_t>& index, const B& src2, const D& dst,
                              int32_t widthHeight, int32_t count) {
  return forSize(
      FixedSizes{}, widthHeight, [&](auto side) { return substitutePairs<side>(src1, index, src2, dst, count); },
      [&] { return substituteGeneralPairs(src1, index, src2, dst, widthHeight, count); });
}

} // namespace zelm
