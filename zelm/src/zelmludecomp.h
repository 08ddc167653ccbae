// LU decomposition with row pivoting. Rows are never exchanged in dst: row index[k] of dst is row k of the factors.
//
// Sides 3 to 6 and all other sides differ on purpose in the limit of a singular pivot, in how a pivot is compared with
// it, and in whether the exchange of the failing step shows in index.
#pragma once

#include "zelmbatch.h"
#include "zelmlusignature.h"

namespace zelm {

// Sides 3 to 6: singular if the limit is greater than the magnitude.
template <class T> constexpr T fixedLimit = static_cast<T>(sizeof(T) == 4 ? 0x1p-125 : 0x1p-1021);
// All other sides: singular if the limit is greater than or equal to the magnitude.
template <class T> constexpr T loopLimit = static_cast<T>(sizeof(T) == 4 ? 0x1p-23 : 0x1p-52);

// ---------------------------------------------------------------------------------------------------------------------
// General loop, one object, in dst

template <class S, class D> ZELM_INLINE ZelStatus decomposeLoop(const S& src, int32_t* p, const D& dst, int32_t n) {
  using T = typename D::Element;
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

  // load(j, x) is column j of the source. False if a lane is singular.
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
    load(j, x);
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
template <int N, class Source, class Index, class Result>
ZELM_NOINLINE bool decomposeBlock(const Source& src, const Index& entries, const Result& dst) {
  using T = typename Result::Element;
  using L = Lanes<T>;
  constexpr bool byAddress = Result::unit && N >= chunkElements<T>;
  const PlainAddresses<T, int32_t> index = entries;
  Tile<L, N, N> a;
  if constexpr (Source::unit)
    loadElements(src, a.element, Fixed<N>{}, Fixed<N>{});
  LuBlock<T, N, byAddress> block;
  const bool passed = block.eliminate([&](auto j, L(&x)[N]) ZELM_BODY {
    if constexpr (Source::unit)
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { x[i] = a(i, j); });
    else
      loadColumn(src, j, x, Fixed<N>{});
  });
  if (!passed)
    return false;
  storeIndex<T>(index, block.p);
  ascending(Fixed<0>{}, Fixed<N>{}, [&](auto j) ZELM_BODY {
    L x[N];
    if constexpr (byAddress)
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { x[i] = block.column[j][i]; });
    else
      block.restore(j, x);
    if constexpr (Result::unit)
      ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { a(i, j) = x[i]; });
    else
      storeColumn(dst, j, x, Fixed<N>{});
  });
  if constexpr (byAddress) {
    ZELM_UNROLL
    for (int i = 0; i < N; ++i) {
      StridedBlock<T, UnitStep<T>> row{{}, 0, {}};
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; ++w)
        row.objects.of[w] = dst.address(sizeof(T) == 8 ? block.p[i][w] : index.of[w][i], 0, w);
      row.store(0, 0, Fixed<N>{}, &a(i, 0));
    }
  } else if constexpr (Result::unit) {
    storeElements(dst, a.element, Fixed<N>{}, Fixed<N>{});
  }
  return true;
}

// ---------------------------------------------------------------------------------------------------------------------
// General loop, a block of matrices in lanes

// Rows change places here: row k is the one that step k chose. False if a lane is singular.
template <class L, class Side> ZELM_INLINE bool decomposeLanes(L* a, L* place, Side side) {
  using T = ElementOf<L>;
  using M = MaskOf<L>;
  ascending(Fixed<0>{}, side,
            [&](auto i) ZELM_BODY { place[i] = reinterpret_cast<L>(IntegerOf<L>{} + static_cast<int>(i)); });
  const auto exchange = [](const M& lanes, L& x, L& y) ZELM_BODY {
    const L old = x;
    x = select<L>(lanes, y, x);
    y = select<L>(lanes, old, y);
  };
  return whileAscending(Fixed<0>{}, side, [&](auto k) ZELM_BODY {
    // The first one wins among equals, and a NaN neither replaces nor is replaced.
    M replaces[luLaneSide];
    L largest = magnitude(a[k * side + k]);
    ascending(next(k), side, [&](auto i) ZELM_BODY {
      const L candidate = magnitude(a[i * side + k]);
      replaces[i] = greater(candidate, largest);
      largest = larger(candidate, largest);
    });
    if (any(greaterEqual(splat<L>(loopLimit<T>), largest)))
      return false;
    M replaced{};
    descending(next(k), side, [&](auto i) ZELM_BODY {
      const M lanes = without(replaces[i], replaced);
      replaced = either(replaced, replaces[i]);
      if (isFixed<Side> || any(lanes)) {
        exchange(lanes, place[k], place[i]);
        ascending(Fixed<0>{}, side, [&](auto j) ZELM_BODY { exchange(lanes, a[k * side + j], a[i * side + j]); });
      }
    });
    const L reciprocal = splat<L>(T(1)) / a[k * side + k];
    ascending(next(k), side, [&](auto i) ZELM_BODY {
      const L factor = a[i * side + k] * reciprocal;
      a[i * side + k] = factor;
      ascending(next(k), side, [&](auto j) ZELM_BODY { a[i * side + j] = a[i * side + j] - factor * a[k * side + j]; });
    });
    return true;
  });
}

template <class T, class Source, class Result>
ZELM_NOINLINE bool decomposeGeneralBlock(const Source& src, const PlainAddresses<T, int32_t>& index, const Result& dst,
                                         int side) {
  Lanes<T> element[luLaneSide * luLaneSide];
  Lanes<T> place[luLaneSide];
  loadElements(src, element, side, side);
  if (!decomposeLanes(element, place, side))
    return false;
  for (int i = 0; i < side; ++i) {
    const auto p = reinterpret_cast<IntegerOf<Lanes<T>>>(place[i]);
    for (int w = 0; w < laneCount<T>; ++w)
      index.of[w][i] = static_cast<int32_t>(p[w]);
  }
  for (int i = 0; i < side; ++i)
    storeRowByIndex<T>(dst, index, i, side, element + i * side);
  return true;
}

// Side 2: the rows go back to their places before they are stored.
template <class T, class Source, class Result>
ZELM_NOINLINE bool decomposePairs(const Source& src, const PlainAddresses<T, int32_t>& index, const Result& dst) {
  using L = Lanes<T>;
  using I = IntegerOf<L>;
  L a[4];
  L place[2];
  loadElements(src, a, Fixed<2>{}, Fixed<2>{});
  if (!decomposeLanes(a, place, Fixed<2>{}))
    return false;
  const auto exchanged = unequal(reinterpret_cast<I>(place[0]), I{});
  const L inPlace[4] = {select<L>(exchanged, a[2], a[0]), select<L>(exchanged, a[3], a[1]),
                        select<L>(exchanged, a[0], a[2]), select<L>(exchanged, a[1], a[3])};
  storeElements(dst, inPlace, Fixed<2>{}, Fixed<2>{});
  storeEntryPairs<T>(index, place);
  return true;
}

// The matrices of an array of the standard or the list layout, or a single matrix: what the general loops work on.
template <class T, class Stride> struct StridedMatrices {
  using Element = std::remove_const_t<T>;
  using Step = typename Stride::template Step<T>;
  static constexpr bool isArray = true;
  T* const* list; // or null, and the objects are at origin and every stride0 bytes
  Byte<T>* origin;
  int64_t offset;
  int64_t stride1;
  Step stride2;
  StridedMatrices(const Matrix<T, Stride>& x)
      : list(nullptr), origin(reinterpret_cast<Byte<T>*>(x.pointer)), offset(0), stride1(x.stride1),
        stride2(x.stride2) {}
  StridedMatrices(const Matrices<T, Stride>& x)
      : list(nullptr), origin(reinterpret_cast<Byte<T>*>(x.pointer)), offset(x.stride0), stride1(x.stride1),
        stride2(x.stride2) {}
  StridedMatrices(const MatricesL<T, Stride>& x)
      : list(x.list), origin(nullptr), offset(x.shift), stride1(x.stride1), stride2(x.stride2) {}
  ZELM_INLINE auto object(int64_t k, int64_t /* rowLength */) const {
    Byte<T>* const first = list == nullptr ? origin + k * offset : reinterpret_cast<Byte<T>*>(list[k]) + offset;
    return StridedMatrixView<T, AnyStep, Step>{first, stride1, stride2};
  }
};

template <class S, class D>
ZELM_NOINLINE ZelStatus decomposeGeneralBatch(const S& src, const Plain<int32_t>& index, const D& dst, int32_t side,
                                              int32_t count) {
  using T = typename D::Element;
  const bool inLanes = side <= luLaneSide;
  auto sources = matrixBlocks(src, side);
  auto results = matrixBlocks(dst, side);
  return forBlocks<laneCount<T>, isPointerLayout<D>>(
      count, areNeighbours(src) && areNeighbours(dst),
      [&](auto block) ZELM_BODY {
        if (!inLanes)
          return false;
        const auto places = plainAddresses<T>(index, block.first, block.last);
        const auto& from = sources.at(block);
        const auto& to = results.at(block);
        return side == 2 ? decomposePairs<T>(from, places, to) : decomposeGeneralBlock<T>(from, places, to, side);
      },
      [&](int64_t k) ZELM_NOINLINE {
        return decomposeLoop(src.object(k, side), index.single(k).pointer, dst.object(k, side), side);
      });
}

template <class S, class D>
ZELM_INLINE ZelStatus decomposeGeneral(const S& src, const Plain<int32_t>& index, const D& dst, int32_t side,
                                       int32_t count) {
  return count == 1 ? decomposeLoop(src.object(0, side), index.pointer, dst.object(0, side), side)
                    : decomposeGeneralBatch(src, index, dst, side, count);
}

template <class T, class Stride>
using GeneralLoop = ZelStatus(const StridedMatrices<const T, Stride>& src, const Plain<int32_t>& index,
                              const StridedMatrices<T, Stride>& dst, int32_t side, int32_t count);
template <class T>
using GeneralLoopP = ZelStatus(const MatricesP<const T>& src, const Plain<int32_t>& index, const MatricesP<T>& dst,
                               int32_t side, int32_t count);

} // namespace zelm

// clang-format off
// General loops over all objects of a batch, which the kernels call for sides other than 3 to 6.
extern "C" {
zelm::GeneralLoop<float,  zelm::UnitStride> ownzelmLUDecomp_m_32f_S_com;
zelm::GeneralLoop<double, zelm::UnitStride> ownzelmLUDecomp_m_64f_S_com;
zelm::GeneralLoop<float,  zelm::AnyStride>  ownzelmLUDecomp_m_32f_S2_com;
zelm::GeneralLoop<double, zelm::AnyStride>  ownzelmLUDecomp_m_64f_S2_com;
zelm::GeneralLoopP<float>                   ownzelmLUDecomp_m_32f_P_com;
zelm::GeneralLoopP<double>                  ownzelmLUDecomp_m_64f_P_com;
}
// clang-format on

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Kernels

// As an array of one object, where it is a single operand.
template <class Operand> ZELM_INLINE const Operand& asArray(const Operand& x) {
  return x;
}
template <class T> ZELM_INLINE MatricesP<T> asArray(const MatrixP<T>& x) {
  return {x.list, x.shift, 0};
}

template <int N, class S, class D>
inline ZelStatus decomposeFixed(const S& src, const Plain<int32_t>& index, const D& dst, int32_t count) {
  using T = typename D::Element;
  const auto one = [&](int64_t k) ZELM_BODY {
    return decomposeOne<N, T>(src.object(k, N), index.pointer + k * N, dst.object(k, N));
  };
  if constexpr (D::isArray) {
    auto sources = matrixBlocks(src, Fixed<N>{});
    auto results = matrixBlocks(dst, Fixed<N>{});
    return forBlocks<laneCount<T>, isPointerLayout<D>>(
        count, areNeighbours(src) && areNeighbours(dst),
        [&](auto block) ZELM_BODY {
          return decomposeBlock<N>(sources.at(block), entriesOf<N, T>(index, block), results.at(block));
        },
        one);
  } else {
    return one(0);
  }
}

// Loop is the general loop that a kernel calls.
template <auto Loop, class S, class D>
inline ZelStatus decompose(const S& src, const Plain<int32_t>& index, const D& dst, int32_t widthHeight,
                           int32_t count = 1) {
  return forSize(
      Sizes<3, 4, 5, 6>{}, widthHeight, [&](auto side) { return decomposeFixed<side>(src, index, dst, count); },
      [&] { return Loop(asArray(src), index, asArray(dst), widthHeight, count); });
}

} // namespace zelm
