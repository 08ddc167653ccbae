// LU decomposition with row pivoting. Rows are never exchanged in dst: row index[k] of dst is row k of the factors.
//
// Sides 3 to 6 and all other sides differ on purpose in the limit of a singular pivot, in how a pivot is compared with
// it, and in whether the exchange of the failing step shows in index.
#pragma once

#include "zelmbatch.h"

// clang-format off
#define LUDECOMP_M_S(V, T)   V##_M_S(src, const T),  V##_PLAIN(index, int32_t, widthHeight), V##_M_S(dst, T),  V##_SIZE(widthHeight)
#define LUDECOMP_M_P(V, T)   V##_M_P(src, const T),  V##_PLAIN(index, int32_t, widthHeight), V##_M_P(dst, T),  V##_SIZE(widthHeight)
#define LUDECOMP_MA_S(V, T)  V##_MA_S(src, const T), V##_PLAIN(index, int32_t, widthHeight), V##_MA_S(dst, T), V##_SIZE(widthHeight), V##_COUNT
#define LUDECOMP_MA_L(V, T)  V##_MA_L(src, const T), V##_PLAIN(index, int32_t, widthHeight), V##_MA_L(dst, T), V##_SIZE(widthHeight), V##_COUNT
#define LUDECOMP_MA_P(V, T)  V##_MA_P(src, const T), V##_PLAIN(index, int32_t, widthHeight), V##_MA_P(dst, T), V##_SIZE(widthHeight), V##_COUNT

// General loops, which the kernels call for sides other than 3 to 6.
ZELM_DECLARE(ownzelmLUDecomp_m_32f_S_com,  LUDECOMP_M_S, UNIT, float);
ZELM_DECLARE(ownzelmLUDecomp_m_64f_S_com,  LUDECOMP_M_S, UNIT, double);
ZELM_DECLARE(ownzelmLUDecomp_m_32f_S2_com, LUDECOMP_M_S, ANY,  float);
ZELM_DECLARE(ownzelmLUDecomp_m_64f_S2_com, LUDECOMP_M_S, ANY,  double);
ZELM_DECLARE(ownzelmLUDecomp_m_32f_P_com,  LUDECOMP_M_P, ANY,  float);
ZELM_DECLARE(ownzelmLUDecomp_m_64f_P_com,  LUDECOMP_M_P, ANY,  double);
// clang-format on

namespace zelm {

// Sides 3 to 6: singular if the limit is greater than the magnitude.
template <class T> constexpr T fixedLimit = static_cast<T>(sizeof(T) == 4 ? 0x1p-125 : 0x1p-1021);
// All other sides: singular if the limit is greater than or equal to the magnitude.
template <class T> constexpr T loopLimit = static_cast<T>(sizeof(T) == 4 ? 0x1p-23 : 0x1p-52);

// ---------------------------------------------------------------------------------------------------------------------
// General loop, one object, in dst

struct InDst {};

template <class S, class D>
inline ZelStatus decomposeLoop(InDst, const S& source, int32_t* p, const D& result, int32_t n) {
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

// The same in every lane. A lane exchanges with the last of the rows that replaced the best so far.
template <class L, int N, int K> struct LanesExchange {
  using Integers = IntegerOf<L>;
  Integers best[N];
  L largest;
  ZELM_INLINE explicit LanesExchange(const Tile<L, N, N>& a) : largest(magnitude(a(K, K))) {
    ZELM_UNROLL
    for (int i = K + 1; i < N; ++i) {
      const L candidate = magnitude(a(i, K));
      best[i] = candidate > largest;
      largest = candidate > largest ? candidate : largest;
    }
    Integers replaced = best[N - 1];
    ZELM_UNROLL
    for (int i = N - 2; i > K; --i) {
      const Integers replaces = best[i];
      best[i] = replaces & ~replaced;
      replaced |= replaces;
    }
  }
  ZELM_INLINE void column(Tile<L, N, N>& a, int j) const {
    const L top = a(K, j);
    ZELM_UNROLL
    for (int i = K + 1; i < N; ++i) {
      a(K, j) = select<L>(best[i], a(i, j), a(K, j));
      a(i, j) = select<L>(best[i], top, a(i, j));
    }
  }
  ZELM_INLINE void places(Integers (&p)[N]) const {
    const Integers top = p[K];
    Integers changes{};
    ZELM_UNROLL
    for (int i = K + 1; i < N; ++i) {
      const Integers change = (top ^ p[i]) & best[i];
      p[i] ^= change;
      changes ^= change;
    }
    p[K] = top ^ changes;
  }
};

// Steps K to the last, column by column. Returns the number of steps that passed; of a block, N if all passed in all
// lanes.
template <int K, class L, int N>
ZELM_INLINE int eliminate(Tile<L, N, N>& a, [[maybe_unused]] IntegerOf<L> (&p)[N],
                          [[maybe_unused]] IntegerOf<L> singular) {
  using T = ElementOf<L>;
  constexpr bool isBlock = LaneTraits<L>::width > 1;
  if constexpr (K < N - 1) {
    const std::conditional_t<isBlock, LanesExchange<L, N, K>, Exchange<T, N, K>> exchange(a);
    exchange.places(p);
    if constexpr (isBlock)
      singular |= splat<L>(fixedLimit<T>) > exchange.largest;
    else if (fixedLimit<T> > exchange.largest)
      return K;
    ZELM_UNROLL
    for (int j = 0; j <= K; ++j)
      exchange.column(a, j);
    const L reciprocal = splat<L>(T(1)) / a(K, K);
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
    return eliminate<K + 1>(a, p, singular);
  } else if constexpr (isBlock) {
    singular |= splat<L>(fixedLimit<T>) > magnitude(a(K, K));
    return anyLane(singular) ? 0 : N;
  } else {
    return fixedLimit<T> > magnitude(a(K, K)) ? K : N;
  }
}

template <class L, int N> ZELM_INLINE int eliminate(Tile<L, N, N>& a, IntegerOf<L> (&p)[N]) {
  ZELM_UNROLL
  for (int i = 0; i < N; ++i)
    p[i] = i - IntegerOf<L>{};
  return eliminate<0>(a, p, IntegerOf<L>{});
}

template <int N, class T> __attribute__((noinline)) int eliminateOne(Tile<T, N, N>& a, int32_t (&p)[N]) {
  return eliminate(a, p);
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

// out(p[i], j) = in(i, j) in every lane.
template <class L, int R, int C>
ZELM_INLINE void restoreRows(const Tile<L, R, C>& in, const IntegerOf<L> (&p)[R], Tile<L, R, C>& out) {
  ZELM_UNROLL
  for (int r = 0; r < R; ++r) {
    ZELM_UNROLL
    for (int j = 0; j < C; ++j)
      out(r, j) = in(R - 1, j);
    ZELM_UNROLL
    for (int i = 0; i < R - 1; ++i) {
      const IntegerOf<L> here = p[i] == r;
      ZELM_UNROLL
      for (int j = 0; j < C; ++j)
        out(r, j) = select<L>(here, in(i, j), out(r, j));
    }
  }
}

#ifdef __AVX2__
// The lower halves of four 64-bit integers, as bits.
ZELM_INLINE Lanes<float, 4> lowerHalves(IntegerOf<Lanes<double>> v) {
  const auto halves = reinterpret_cast<Lanes<float, 8>>(v);
  return __builtin_shufflevector(halves, halves, 0, 2, 4, 6);
}
#endif

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
  } else {
#ifdef __AVX2__
    ZELM_UNROLL
    for (int i = 0; i < N; i += 4) {
      const int from = i + 4 <= N || N < 4 ? i : N - 4;
      __m128 row[4];
      ZELM_UNROLL
      for (int q = 0; q < 4; ++q)
        row[q] = lowerHalves(p[from + q < N ? from + q : N - 1]);
      _MM_TRANSPOSE4_PS(row[0], row[1], row[2], row[3]);
      ZELM_UNROLL
      for (int w = 0; w < 4; ++w) {
        char* const to = reinterpret_cast<char*>(index.of[w] + from);
        if constexpr (N == 3)
          storeTriple(to, row[w]);
        else
          storeLanes(to, row[w]);
      }
    }
#else
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w) {
      ZELM_UNROLL
      for (int i = 0; i < N; ++i)
        index.of[w][i] = static_cast<int32_t>(p[i][w]);
    }
#endif
  }
}

// False, and nothing stored, if an object of the block is singular.
template <int N, class T>
__attribute__((noinline)) bool decomposeRows(const ObjectAddresses<T, const char>& src, int64_t srcStep,
                                             const PlainAddresses<T, int32_t>& index,
                                             const ObjectAddresses<T, char>& dst, int64_t dstStep) {
  Tile<Lanes<T>, N, N> a;
  IntegerOf<Lanes<T>> p[N];
  loadRows(src, srcStep, a);
  if (eliminate(a, p) < N)
    return false;
  storeIndex<T>(index, p);
  if constexpr (N < chunkElements<T>) {
    Tile<Lanes<T>, N, N> rows;
    restoreRows(a, p, rows);
    storeRows(dst, dstStep, rows);
  } else {
    ZELM_UNROLL
    for (int i = 0; i < N; ++i) {
      ObjectAddresses<T, char> row;
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; ++w)
        row.of[w] = dst.of[w] + (sizeof(T) == 8 ? p[i][w] : index.of[w][i]) * dstStep;
      storeRun<N, T>(row, 0, &a(i, 0));
    }
  }
  return true;
}

template <int N, class T>
__attribute__((noinline)) bool decomposeElements(const Positions<N * N>& srcPositions, const ObjectOffsets<T>& src,
                                                 const PlainAddresses<T, int32_t>& index,
                                                 const Positions<N * N>& dstPositions, const ObjectOffsets<T>& dst) {
  Tile<Lanes<T>, N, N> a;
  IntegerOf<Lanes<T>> p[N];
  loadElements<T>(srcPositions.of, N * N, src, a.element);
  if (eliminate(a, p) < N)
    return false;
  storeIndex<T>(index, p);
  if constexpr (laneCount<T> == 2) {
    // Two stores are less than the choices among all rows.
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j)
        scatterLanes<T>(
            [&](int w)
                ZELM_BODY { return reinterpret_cast<char*>(dstPositions.of[index.of[w][i] * N + j] + dst.of[w]); },
            a(i, j));
  } else {
    Tile<Lanes<T>, N, N> rows;
    restoreRows(a, p, rows);
    storeElements<T>(dstPositions.of, N * N, dst, rows.element);
  }
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

// Object k as an operand of a general loop.
template <class T, class Stride> ZELM_INLINE Matrix<T, Stride> loopOperand(const Matrix<T, Stride>& x, int64_t) {
  return x;
}
template <class T, class Stride> ZELM_INLINE Matrix<T, Stride> loopOperand(const Matrices<T, Stride>& x, int64_t k) {
  return {reinterpret_cast<T*>(x.object(k, 0).origin), x.stride1, x.stride2};
}
template <class T, class Stride> ZELM_INLINE Matrix<T, Stride> loopOperand(const MatricesL<T, Stride>& x, int64_t k) {
  return x.single(k);
}
template <class T> ZELM_INLINE MatrixP<T> loopOperand(const MatrixP<T>& x, int64_t) {
  return x;
}
template <class T> ZELM_INLINE MatrixP<T> loopOperand(const MatricesP<T>& x, int64_t k) {
  return x.single(k);
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
        return [&, srcPositions = matrixPositions<N>(src), dstPositions = matrixPositions<N>(dst)](int64_t k) {
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
template <auto Loop> struct Otherwise {};

template <auto Loop, class S, class D>
inline ZelStatus decompose(Otherwise<Loop>, const S& src, const Plain<int32_t>& index, const D& dst,
                           int32_t widthHeight, int32_t count = 1) {
  return forSize(
      Sizes<3, 4, 5, 6>{}, widthHeight, [&](auto side) { return decomposeFixed<side>(src, index, dst, count); },
      [&] {
        for (int32_t k = 0; k < count; ++k)
          if (const ZelStatus status = Loop(loopOperand(src, k), index.single(k), loopOperand(dst, k), widthHeight);
              status != zelStatusOk)
            return static_cast<ZelStatus>(status);
        return static_cast<ZelStatus>(zelStatusOk);
      });
}

} // namespace zelm
