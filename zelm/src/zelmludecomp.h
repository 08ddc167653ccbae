// LU decomposition with row pivoting. Rows are never exchanged in dst: row index[k] of dst is row k of the factors.
//
// Sides 3 to 6 and all other sides differ on purpose in the limit of a singular pivot, in how a pivot is compared with
// it, and in whether the exchange of the failing step shows in index.
#pragma once

#include "zelmbatch.h"
#include "zelmlusignature.h"

// clang-format off
// General loops, which the kernels call for sides other than 3 to 6.
ZELM_DECLARE(ownzelmLUDecomp_m_32f_S_com,  LUDECOMP_M, S, UNIT, float);
ZELM_DECLARE(ownzelmLUDecomp_m_64f_S_com,  LUDECOMP_M, S, UNIT, double);
ZELM_DECLARE(ownzelmLUDecomp_m_32f_S2_com, LUDECOMP_M, S, ANY,  float);
ZELM_DECLARE(ownzelmLUDecomp_m_64f_S2_com, LUDECOMP_M, S, ANY,  double);
ZELM_DECLARE(ownzelmLUDecomp_m_32f_P_com,  LUDECOMP_M, P, ANY,  float);
ZELM_DECLARE(ownzelmLUDecomp_m_64f_P_com,  LUDECOMP_M, P, ANY,  double);
// clang-format on

namespace zelm {

// Sides 3 to 6: singular if the limit is greater than the magnitude.
template <class T> constexpr T fixedLimit = static_cast<T>(sizeof(T) == 4 ? 0x1p-125 : 0x1p-1021);
// All other sides: singular if the limit is greater than or equal to the magnitude.
template <class T> constexpr T loopLimit = static_cast<T>(sizeof(T) == 4 ? 0x1p-23 : 0x1p-52);

// ---------------------------------------------------------------------------------------------------------------------
// General loop, one object, in dst

template <class S, class D> inline ZelStatus decomposeLoop(const S& source, int32_t* p, const D& result, int32_t n) {
  using T = typename D::Element;
  const auto src = source.object(0, n);
  const auto dst = result.object(0, n);
  for (int32_t i = 0; i < n; ++i)
    for (int32_t j = 0; j < n; ++j)
      dst.store(i, j, src.load(i, j));
  for (int32_t i = 0; i < n; ++i)
    p[i] = i;
  for (int32_t k = 0; k < n - 1; ++k) {
    int32_t best = k;
    T largest = magnitude(dst.load(p[k], k));
    for (int32_t i = k + 1; i < n; ++i)
      if (const T candidate = magnitude(dst.load(p[i], k)); candidate > largest) {
        largest = candidate;
        best = i;
      }
    if (loopLimit<T> >= largest)
      return zelStatusSingular;
    const int32_t row = p[best];
    p[best] = p[k];
    p[k] = row;
    const T reciprocal = T(1) / dst.load(row, k);
    for (int32_t i = k + 1; i < n; ++i) {
      const T factor = dst.load(p[i], k) * reciprocal;
      dst.store(p[i], k, factor);
      for (int32_t j = k + 1; j < n; ++j)
        dst.store(p[i], j, dst.load(p[i], j) - factor * dst.load(row, j));
    }
  }
  return loopLimit<T> >= magnitude(dst.load(p[n - 1], n - 1)) ? zelStatusSingular : zelStatusOk;
}

// ---------------------------------------------------------------------------------------------------------------------
// Sides 3 to 6: rows in the order of the pivots, in a tile of any lane type

// The exchange of row K with the row of the largest magnitude in column K, of one object. The first one wins among
// equals, and a NaN neither replaces nor is replaced.
template <class T, int N, int K> struct Exchange {
  int best = K;
  T largest;
  ZELM_INLINE explicit Exchange(const Tile<T, N, N>& a) : largest(magnitude(a(K, K))) {
    ZELM_UNROLL
    for (int i = K + 1; i < N; ++i)
      if (const T candidate = magnitude(a(i, K)); candidate > largest) {
        largest = candidate;
        best = i;
      }
  }
  ZELM_INLINE void column(Tile<T, N, N>& a, int j) const { std::swap(a(K, j), a(best, j)); }
  ZELM_INLINE void places(int32_t (&p)[N]) const { std::swap(p[K], p[best]); }
};

// Steps K to the last. Returns the number of steps that passed.
template <int K, class T, int N> ZELM_INLINE int eliminate(Tile<T, N, N>& a, [[maybe_unused]] int32_t (&p)[N]) {
  if constexpr (K < N - 1) {
    const Exchange<T, N, K> exchange(a);
    exchange.places(p);
    constexpr T limit = fixedLimit<T>;
    if (limit > exchange.largest)
      return K;
    ZELM_UNROLL
    for (int j = 0; j <= K; ++j)
      exchange.column(a, j);
    const T reciprocal = T(1) / a(K, K);
    ZELM_UNROLL
    for (int i = K + 1; i < N; ++i)
      a(i, K) = a(i, K) * reciprocal;
    ZELM_UNROLL
    for (int j = K + 1; j < N; ++j) {
      exchange.column(a, j);
      ZELM_UNROLL
      for (int i = K + 1; i < N; ++i)
        a(i, j) = a(i, j) - a(i, K) * a(K, j);
    }
    return eliminate<K + 1>(a, p);
  } else {
    return fixedLimit<T> > magnitude(a(K, K)) ? K : N;
  }
}

template <int N, class T> ZELM_NOINLINE int eliminateOne(Tile<T, N, N>& a, int32_t (&p)[N]) {
  for (int i = 0; i < N; ++i)
    p[i] = i;
  return eliminate<0>(a, p);
}

// One object. A failing one leaves the rows of the steps that passed, in the pointer layout none.
template <int N, class T, class S, class D>
ZELM_INLINE ZelStatus decomposeOne(const S& src, int32_t* index, const D& dst) {
  Tile<T, N, N> a = loadTile<N, N>(src);
  int32_t p[N];
  const int passed = eliminateOne<N, T>(a, p);
  for (int i = 0; i < N; ++i)
    index[i] = p[i];
  if (D::strided || passed == N) {
    for (int i = 0; i < passed; ++i) {
      ZELM_UNROLL
      for (int j = 0; j < N; ++j)
        dst.store(p[i], j, a(i, j));
    }
  }
  return passed == N ? zelStatusOk : zelStatusSingular;
}

// ---------------------------------------------------------------------------------------------------------------------
// Blocks

// A block of matrices; the columns are taken from left to right, each with all its steps. with[k][i]: the lanes that
// exchange row k with row i at step k. Where a column is done, its rows are in the order of its own step or, with
// Follow, go through the exchanges of the later columns too.
template <class T, int N, bool Follow> struct LuBlock {
  using L = Lanes<T>;
  using I = IntegerOf<L>;
  using M = MaskOf<L>;
  static constexpr int exchanges = N - 1;
  L column[N][N];
  M with[exchanges][N];
  I p[N];

  // load(i, j) is an element of the source. False if a lane is singular.
  template <class Load> ZELM_INLINE bool eliminate(const Load& load) {
    M singular{};
    L place[N];
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { place[i] = reinterpret_cast<L>(I{} + i.value); });
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
      singular = either(singular, greater(splat<L>(fixedLimit<T>), step(j, load)));
      if constexpr (j < exchanges) {
        exchange(j, with[j], place);
        if constexpr (Follow)
          ascending(Fixed<0>{}, j, [&](auto before) ZELM_BODY { exchange(j, with[j], column[before]); });
      }
    });
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { p[i] = reinterpret_cast<I>(place[i]); });
    return !any(singular);
  }

  // Column j in the order of the source, where nothing followed.
  template <class J> ZELM_INLINE void restore(J j, L (&x)[N]) const {
    copy(column[j], x);
    descending(Fixed<0>{}, Fixed<(j < exchanges ? j + 1 : exchanges)>{},
               [&](auto k) ZELM_BODY { exchange(k, with[k], x); });
  }

private:
  ZELM_INLINE static void copy(const L (&from)[N], L (&to)[N]) {
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { to[i] = from[i]; });
  }

  // Column j: the steps before its own, and its own. Returns the magnitude of the pivot.
  template <class J, class Load> ZELM_INLINE L step(J j, const Load& load) {
    L x[N];
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { x[i] = load(i, j); });
    if constexpr (Follow)
      ascending(Fixed<0>{}, j, [&](auto k) ZELM_BODY { exchange(k, with[k], x); });
    ascending(Fixed<0>{}, j, [&](auto k) ZELM_BODY {
      if constexpr (!Follow)
        exchange(k, with[k], x);
      ascending(next(k), Fixed<N>{}, [&](auto i) ZELM_BODY { x[i] = x[i] - column[k][i] * x[k]; });
    });
    L largest = magnitude(x[j]);
    if constexpr (j < exchanges) {
      largest = findPivot(j, x);
      exchange(j, with[j], x);
      const L reciprocal = splat<L>(T(1)) / x[j];
      ascending(next(j), Fixed<N>{}, [&](auto i) ZELM_BODY { x[i] = x[i] * reciprocal; });
    }
    copy(x, column[j]);
    return largest;
  }

  // A lane exchanges with the last of the rows that replaced the best so far: the first one wins among equals, and a
  // NaN neither replaces nor is replaced.
  template <class K> ZELM_INLINE L findPivot(K k, const L (&x)[N]) {
    L largest = magnitude(x[k]);
    ascending(next(k), Fixed<N>{}, [&](auto i) ZELM_BODY {
      const L candidate = magnitude(x[i]);
      with[k][i] = greater(candidate, largest);
      largest = larger(candidate, largest);
    });
    M replaced = with[k][N - 1];
    descending(next(k), Fixed<N - 1>{}, [&](auto i) ZELM_BODY {
      const M replaces = with[k][i];
      with[k][i] = without(replaces, replaced);
      replaced = either(replaced, replaces);
    });
    return largest;
  }
};

// The lower halves of four 64-bit integers, from lane w on, as bits.
template <class T> ZELM_INLINE Lanes<float, 4> lowerHalves(const IntegerOf<Lanes<T>>& v, int w) {
  if constexpr (laneCount<T> == 4) {
    const auto halves = reinterpret_cast<Lanes<float, 8>>(v);
    return __builtin_shufflevector(halves, halves, 0, 2, 4, 6);
  } else {
    const auto halves = reinterpret_cast<Lanes<float, 16>>(v);
    return w == 0 ? __builtin_shufflevector(halves, halves, 0, 2, 4, 6)
                  : __builtin_shufflevector(halves, halves, 8, 10, 12, 14);
  }
}

template <class T, int N>
ZELM_INLINE void storeIndex(const PlainAddresses<T, int32_t>& index, const IntegerOf<Lanes<T>> (&p)[N]) {
  if constexpr (sizeof(T) == 4) {
    ObjectAddresses<float, char> bytes;
    Lanes<float> lanes[N];
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w)
      bytes.of[w] = reinterpret_cast<char*>(index.of[w]);
    ZELM_UNROLL
    for (int i = 0; i < N; ++i)
      lanes[i] = reinterpret_cast<Lanes<float>>(p[i]);
    storeRun<N, float>(bytes, 0, lanes);
  } else if constexpr (laneCount<T> == 2) {
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w) {
      ZELM_UNROLL
      for (int i = 0; i < N; ++i)
        index.of[w][i] = static_cast<int32_t>(p[i][w]);
    }
  } else {
    // Four places of as many objects as there are parts, from the lower halves of 64-bit integers.
    ZELM_UNROLL
    for (int i = 0; i < N; i += 4) {
      const int from = i + 4 <= N || N < 4 ? i : N - 4;
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; w += 4) {
        Lanes<float, 4> row[4];
        ZELM_UNROLL
        for (int q = 0; q < 4; ++q)
          row[q] = lowerHalves<T>(p[from + q < N ? from + q : N - 1], w);
        transposeChunk(row);
        ZELM_UNROLL
        for (int q = 0; q < 4; ++q) {
          char* const to = reinterpret_cast<char*>(index.of[w + q] + from);
          if constexpr (N == 3)
            storeTriple(to, row[q]);
          else
            storeLanes(to, row[q]);
        }
      }
    }
  }
}

// False, and nothing stored, if an object of the block is singular. Rows of at least a chunk are stored where they
// belong by address, shorter ones and single elements in the order of the source.
template <int N, class T>
ZELM_NOINLINE bool decomposeRows(const ObjectAddresses<T, const char>& src, int64_t srcStep,
                                 const PlainAddresses<T, int32_t>& index, const ObjectAddresses<T, char>& dst,
                                 int64_t dstStep) {
  constexpr bool byAddress = N >= chunkElements<T>;
  Tile<Lanes<T>, N, N> a;
  loadRows(src, srcStep, a);
  LuBlock<T, N, byAddress> block;
  if (!block.eliminate([&](auto i, auto j) ZELM_BODY { return a(i, j); }))
    return false;
  storeIndex<T>(index, block.p);
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
    if constexpr (!byAddress)
      block.restore(j, block.column[j]);
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { a(i, j) = block.column[j][i]; });
  });
  if constexpr (byAddress) {
    ZELM_UNROLL
    for (int i = 0; i < N; ++i) {
      ObjectAddresses<T, char> row;
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; ++w)
        row.of[w] = dst.of[w] + (sizeof(T) == 8 ? block.p[i][w] : index.of[w][i]) * dstStep;
      storeRun<N, T>(row, 0, &a(i, 0));
    }
  } else {
    storeRows(dst, dstStep, a);
  }
  return true;
}

template <int N, class T, class Objects, class Index>
ZELM_NOINLINE bool decomposeElements(const Positions<N * N>& srcPositions, const Objects& src, const Index& index,
                                     const Positions<N * N>& dstPositions, const Objects& dst) {
  LuBlock<T, N, false> block;
  if (!block.eliminate([&](auto i, auto j) ZELM_BODY { return src.load(srcPositions.of[i * N + j]); }))
    return false;
  storeIndex<T>(PlainAddresses<T, int32_t>(index), block.p);
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
    Lanes<T> x[N];
    block.restore(j, x);
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { dst.store(dstPositions.of[i * N + j], x[i]); });
  });
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

// Object k as a single operand.
template <class Operand> ZELM_INLINE auto singleOperand(const Operand& x, int64_t k) {
  if constexpr (Operand::isArray)
    return x.single(k);
  else
    return x;
}

template <int N, class S, class D>
inline ZelStatus decomposeFixed(const S& src, const Plain<int32_t>& index, const D& dst, int32_t count) {
  using T = typename D::Element;
  using View = decltype(dst.object(0, N));
  constexpr int W = laneCount<T>;
  const auto one = [&](int64_t k) {
    return decomposeOne<N, T>(src.object(k, N), index.pointer + k * N, dst.object(k, N));
  };
  if constexpr (D::isArray) {
    const auto block = [&] {
      if constexpr (View::unitRows)
        return [&](int64_t k) {
          return decomposeRows<N, T>(matrixAddresses(src, k, count), src.stride1, plainAddresses<T>(index, k, count),
                                     matrixAddresses(dst, k, count), dst.stride1);
        };
      else
        return [&, srcPositions = matrixPositions<N>(src), dstPositions = matrixPositions<N>(dst),
                neighbours = areNeighbours(src) && areNeighbours(dst)](int64_t k) {
          if constexpr (isPointerLayout<D>)
            if (neighbours && k + W <= count)
              return decomposeElements<N, T>(srcPositions, NeighbourOffsets<T>{objectOffset(src, k)},
                                             PlainRun<N, T, int32_t>{index.pointer + k * N}, dstPositions,
                                             NeighbourOffsets<T>{objectOffset(dst, k)});
          return decomposeElements<N, T>(srcPositions, objectOffsets(src, k, count), plainAddresses<T>(index, k, count),
                                         dstPositions, objectOffsets(dst, k, count));
        };
    }();
    for (int64_t k = 0; k < count; k += W) {
      const int64_t end = count - k < W ? count : k + W;
      if (end - k > 1 && block(k))
        continue;
      // Object by object up to the one that fails.
      for (int64_t m = k; m < end; ++m)
        if (const ZelStatus status = one(m); status != zelStatusOk)
          return status;
    }
    return zelStatusOk;
  } else {
    return one(0);
  }
}

// The general loop that a kernel calls.

template <auto Loop, class S, class D>
inline ZelStatus decompose(const S& src, const Plain<int32_t>& index, const D& dst, int32_t widthHeight,
                           int32_t count = 1) {
  return forSize(
      Sizes<3, 4, 5, 6>{}, widthHeight, [&](auto side) { return decomposeFixed<side>(src, index, dst, count); },
      [&] {
        for (int32_t k = 0; k < count; ++k)
          if (const ZelStatus status = Loop(singleOperand(src, k), index.single(k), singleOperand(dst, k), widthHeight);
              status != zelStatusOk)
            return static_cast<ZelStatus>(status);
        return static_cast<ZelStatus>(zelStatusOk);
      });
}

} // namespace zelm
