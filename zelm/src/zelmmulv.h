// Matrix by vector, and with a vector added: dst = src1 * src2 [+ src3].
//
// A result element is a sum of products, and the brackets of the sum decide its last bits. They differ by form, type,
// layout, stride path and size; the sums below are all there are, and the row of a kernel names the one it takes.
// Nothing is fused. Vectors hold objects, or elements of one result, a lane each.
#pragma once

#include "zelmframe.h"
#include "zelmtriples.h"

// clang-format off
#define MATRIX_VECTOR(V, T, A, B, D)  V##_##A(src1, const T), V##_SIZE(src1Width), V##_SIZE(src1Height), V##_##B(src2, const T), V##_SIZE(src2Len), V##_##D(dst, T)
#define MATRIX_VECTOR_BATCH(V, T, A, B, D)  MATRIX_VECTOR(V, T, A, B, D), V##_COUNT

#define MV_S(V, T)    MATRIX_VECTOR(V, T, M_S, V_S, V_S)
#define TV_S(V, T)    MATRIX_VECTOR(V, T, T_S, V_S, V_S)
#define MV_P(V, T)    MATRIX_VECTOR(V, T, M_P, V_P, V_P)
#define TV_P(V, T)    MATRIX_VECTOR(V, T, T_P, V_P, V_P)
#define MAV_S(V, T)   MATRIX_VECTOR_BATCH(V, T, MA_S, V_S, VA_S)
#define TAV_S(V, T)   MATRIX_VECTOR_BATCH(V, T, TA_S, V_S, VA_S)
#define MVA_S(V, T)   MATRIX_VECTOR_BATCH(V, T, M_S, VA_S, VA_S)
#define TVA_S(V, T)   MATRIX_VECTOR_BATCH(V, T, T_S, VA_S, VA_S)
#define MAVA_S(V, T)  MATRIX_VECTOR_BATCH(V, T, MA_S, VA_S, VA_S)
#define TAVA_S(V, T)  MATRIX_VECTOR_BATCH(V, T, TA_S, VA_S, VA_S)
#define MAV_L(V, T)   MATRIX_VECTOR_BATCH(V, T, MA_L, V_S, VA_L)
#define TAV_L(V, T)   MATRIX_VECTOR_BATCH(V, T, TA_L, V_S, VA_L)
#define MVA_L(V, T)   MATRIX_VECTOR_BATCH(V, T, M_S, VA_L, VA_L)
#define TVA_L(V, T)   MATRIX_VECTOR_BATCH(V, T, T_S, VA_L, VA_L)
#define MAVA_L(V, T)  MATRIX_VECTOR_BATCH(V, T, MA_L, VA_L, VA_L)
#define TAVA_L(V, T)  MATRIX_VECTOR_BATCH(V, T, TA_L, VA_L, VA_L)
#define MAV_P(V, T)   MATRIX_VECTOR_BATCH(V, T, MA_P, V_P, VA_P)
#define TAV_P(V, T)   MATRIX_VECTOR_BATCH(V, T, TA_P, V_P, VA_P)
#define MVA_P(V, T)   MATRIX_VECTOR_BATCH(V, T, M_P, VA_P, VA_P)
#define TVA_P(V, T)   MATRIX_VECTOR_BATCH(V, T, T_P, VA_P, VA_P)
#define MAVA_P(V, T)  MATRIX_VECTOR_BATCH(V, T, MA_P, VA_P, VA_P)
#define TAVA_P(V, T)  MATRIX_VECTOR_BATCH(V, T, TA_P, VA_P, VA_P)

#define GAXPY(V, T, A, B, C, D)  V##_##A(src1, const T), V##_SIZE(src1Width), V##_SIZE(src1Height), V##_##B(src2, const T), V##_SIZE(src2Len), V##_##C(src3, const T), V##_SIZE(src3Len), V##_##D(dst, T)
#define GAXPY_BATCH(V, T, A, B, C, D)  GAXPY(V, T, A, B, C, D), V##_COUNT

#define GAXPY_MV_S(V, T)    GAXPY(V, T, M_S, V_S, V_S, V_S)
#define GAXPY_MV_P(V, T)    GAXPY(V, T, M_P, V_P, V_P, V_P)
#define GAXPY_MVA_S(V, T)   GAXPY_BATCH(V, T, M_S, VA_S, VA_S, VA_S)
#define GAXPY_MVA_L(V, T)   GAXPY_BATCH(V, T, M_S, VA_L, VA_L, VA_L)
#define GAXPY_MVA_P(V, T)   GAXPY_BATCH(V, T, M_P, VA_P, VA_P, VA_P)
#define GAXPY_MVAV_S(V, T)  GAXPY_BATCH(V, T, M_S, VA_S, V_S, VA_S)
#define GAXPY_MVAV_L(V, T)  GAXPY_BATCH(V, T, M_S, VA_L, V_S, VA_L)
#define GAXPY_MVAV_P(V, T)  GAXPY_BATCH(V, T, M_P, VA_P, V_P, VA_P)
// clang-format on

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// The sums. of<N>(row, t) adds the terms t[0] .. t[N-1] of result element `row`. A kernel has these sums for square
// matrices of side 3 to 6; every other size is summed from +0.0 in ascending order, in every kernel.

// t0 + t1 + ..., from the first product on.
struct Chain {
  using Straight = Sizes<3, 4, 5, 6>;
  template <int N, class L> ZELM_INLINE static L of(int, const L (&t)[N]) {
    L sum = t[0];
    ZELM_UNROLL
    for (int k = 1; k < N; ++k)
      sum = sum + t[k];
    return sum;
  }
};

// No straight-line sizes: +0.0 + t0 + t1 + ... at every size.
struct ZeroChain {
  using Straight = Sizes<>;
};

struct EvenOdd {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return Chain::of<3>(0, t); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return (t[0] + t[2]) + (t[1] + t[3]); }
  // The last of five elements pairs its terms differently; this is meant.
  template <class L> ZELM_INLINE static L of(int row, const L (&t)[5]) {
    return row == 4 ? ((t[0] + t[2]) + t[4]) + (t[1] + t[3]) : ((t[0] + t[1]) + t[4]) + (t[2] + t[3]);
  }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return ((t[0] + t[2]) + t[4]) + ((t[1] + t[3]) + t[5]);
  }
};

struct Pairs32 {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return Chain::of<3>(0, t); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return (t[0] + t[1]) + (t[2] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[5]) { return ((t[0] + t[1]) + t[4]) + (t[2] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return ((t[0] + t[1]) + (t[2] + t[3])) + (t[4] + t[5]);
  }
};

// As Pairs32 but for the fifth term.
struct Pairs64 {
  using Straight = Sizes<3, 4, 5, 6>;
  template <class L> ZELM_INLINE static L of(int, const L (&t)[3]) { return Chain::of<3>(0, t); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[4]) { return (t[0] + t[1]) + (t[2] + t[3]); }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[5]) { return ((t[0] + t[1]) + (t[2] + t[3])) + t[4]; }
  template <class L> ZELM_INLINE static L of(int, const L (&t)[6]) {
    return ((t[0] + t[1]) + (t[2] + t[3])) + (t[4] + t[5]);
  }
};

// The last term first, then the others in ascending order; three terms are a chain.
struct TailFirst {
  using Straight = Sizes<3, 4, 5, 6>;
  template <int N, class L> ZELM_INLINE static L of(int, const L (&t)[N]) {
    if constexpr (N == 3) {
      return Chain::of<3>(0, t);
    } else {
      L sum = t[N - 1];
      ZELM_UNROLL
      for (int k = 0; k < N - 1; ++k)
        sum = sum + t[k];
      return sum;
    }
  }
};

// ---------------------------------------------------------------------------------------------------------------------
// Arithmetic on tiles

// Row i of a matrix: of a tile, or of the transposition of a tile.
template <class L, int N> ZELM_INLINE Tile<L, 1, N> rowOf(const Tile<L, N, N>& matrix, int i) {
  Tile<L, 1, N> row;
  ZELM_UNROLL
  for (int k = 0; k < N; ++k)
    row(0, k) = matrix(i, k);
  return row;
}
template <class L, int N> struct TransposedTile { const Tile<L, N, N>& stored; };
template <class L, int N> ZELM_INLINE Tile<L, 1, N> rowOf(const TransposedTile<L, N>& matrix, int i) {
  Tile<L, 1, N> row;
  ZELM_UNROLL
  for (int k = 0; k < N; ++k)
    row(0, k) = matrix.stored(k, i);
  return row;
}

template <class Tree, int N, class L, class M>
ZELM_INLINE Tile<L, 1, N> multiplyTiles(const M& matrix, const Tile<L, 1, N>& vector) {
  Tile<L, 1, N> result;
  ZELM_UNROLL
  for (int i = 0; i < N; ++i) {
    const Tile<L, 1, N> row = rowOf(matrix, i);
    L term[N];
    ZELM_UNROLL
    for (int k = 0; k < N; ++k)
      term[k] = row(0, k) * vector(0, k);
    result(0, i) = Tree::of(i, term);
  }
  return result;
}

// ---------------------------------------------------------------------------------------------------------------------
// The vector that Gaxpy adds to the product, or nothing

struct NoAddend {
  static constexpr bool isArray = false;
};

template <class> constexpr bool isAddend = true;
template <> inline constexpr bool isAddend<const NoAddend> = false;
template <> inline constexpr bool isAddend<NoAddend> = false;

// ---------------------------------------------------------------------------------------------------------------------
// Objects of a known number of elements, one behind the other without gaps

template <class T, int Elements> struct PackedObjects {
  using Element = std::remove_const_t<T>;
  static constexpr bool isArray = true;
  static constexpr int64_t bytes = Elements * static_cast<int64_t>(sizeof(T));
  Byte<T>* first;

  ZELM_INLINE Byte<T>* address(int64_t k) const { return first + k * bytes; }
  // Of objects k, k + 1, ...
  ZELM_INLINE auto addresses(int64_t k) const {
    ObjectAddresses<Element, Byte<T>> objects;
    ZELM_UNROLL
    for (int w = 0; w < laneCount<Element>; ++w)
      objects.of[w] = address(k) + w * bytes;
    return objects;
  }
};

template <class> constexpr bool isPackedObjects = false;
template <class T, int Elements> constexpr bool isPackedObjects<PackedObjects<T, Elements>> = true;

// Packed matrices, one a lane, that are read row by row.
template <class T, int N> struct PackedRows { ObjectAddresses<T, const char> objects; };
template <class T, int N> ZELM_INLINE Tile<Lanes<T>, 1, N> rowOf(const PackedRows<T, N>& matrix, int i) {
  constexpr int Q = chunkElements<T>;
  Tile<Lanes<T>, 1, N> row;
  ZELM_UNROLL
  for (int k = 0; k < N; k += Q) {
    // A chunk may reach into the next row, but not beyond the object.
    const int from = i * N + k + Q <= N * N ? i * N + k : N * N - Q;
    Lanes<T> chunk[Q];
    loadChunk<T>(matrix.objects, from * static_cast<int64_t>(sizeof(T)), chunk);
    ZELM_UNROLL
    for (int q = 0; q < Q; ++q) {
      const int e = from + q - i * N;
      if (e >= k && e < N)
        row(0, e) = chunk[q];
    }
  }
  return row;
}

// Packed matrices, one a lane, as a whole.
template <int N, class T, int Elements>
ZELM_INLINE auto loadPackedMatrices(const PackedObjects<const T, Elements>& x, int64_t k) {
  Tile<Lanes<T>, N, N> tile;
  loadRun<N * N, T>(x.addresses(k), 0, tile.element);
  return tile;
}

template <class T, int N> ZELM_INLINE auto loadPackedVectors(const PackedObjects<const T, N>& x, int64_t k) {
  if constexpr (N == 3) {
    return loadTriples<T>(x.address(k));
  } else {
    Tile<Lanes<T>, 1, N> tile;
    loadRun<N, T>(x.addresses(k), 0, tile.element);
    return tile;
  }
}
template <class T, int N>
ZELM_INLINE void storePackedVectors(const PackedObjects<T, N>& x, int64_t k, const Tile<Lanes<T>, 1, N>& tile) {
  if constexpr (N == 3)
    storeTriples<false>(x.address(k), tile);
  else
    storeRun<N, T>(x.addresses(k), 0, tile.element);
}

// ---------------------------------------------------------------------------------------------------------------------
// Operands of side N in lanes of type L: one held for the whole batch, or object by object, block by block

template <class L, int R, int C, class T> ZELM_INLINE auto splatTile(const Tile<T, R, C>& tile) {
  Tile<L, R, C> lanes;
  ZELM_UNROLL
  for (int e = 0; e < R * C; ++e)
    lanes.element[e] = splat<L>(tile.element[e]);
  return lanes;
}

template <int N, class View> ZELM_INLINE auto loadVectorTile(const View& x) {
  Tile<typename View::Element, 1, N> tile;
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    tile(0, j) = x.load(j);
  return tile;
}
template <int N, class View>
ZELM_INLINE void storeVectorTile(const View& x, const Tile<typename View::Element, 1, N>& tile) {
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    x.store(j, tile(0, j));
}

// The matrix operand as it is stored; as many objects from k on as L is wide.
template <class L, Lie lie, int N, bool transposed, class Operand>
ZELM_INLINE auto loadStored(const Operand& x, int64_t k) {
  if constexpr (LaneTraits<L>::width == 1)
    return loadTile<N, N>(x.object(k, N));
  else if constexpr (isPackedObjects<Operand> && !transposed)
    return PackedRows<typename Operand::Element, N>{x.addresses(k)};
  else if constexpr (isPackedObjects<Operand>)
    return loadPackedMatrices<N>(x, k);
  else if constexpr (Operand::isArray)
    return loadTiles<lie, N, N>(x, k);
  else
    return splatTile<L>(loadTile<N, N>(x.object(0, N)));
}
template <class L, Lie lie, int N, class Operand> ZELM_INLINE auto loadVector(const Operand& x, int64_t k) {
  if constexpr (LaneTraits<L>::width == 1)
    return loadVectorTile<N>(x.object(k));
  else if constexpr (isPackedObjects<Operand>)
    return loadPackedVectors(x, k);
  else if constexpr (Operand::isArray)
    return loadVectorTiles<lie, N>(x, k);
  else
    return splatTile<L>(loadVectorTile<N>(x.object(0)));
}
template <class L, Lie lie, int N, class Operand>
ZELM_INLINE void storeVector(const Operand& x, int64_t k, const Tile<L, 1, N>& tile) {
  if constexpr (LaneTraits<L>::width == 1)
    storeVectorTile<N>(x.object(k), tile);
  else if constexpr (isPackedObjects<Operand>)
    storePackedVectors(x, k, tile);
  else
    storeVectorTiles<lie, N>(x, k, tile);
}

// Transposed operands are loaded as stored and transposed in the arithmetic.
template <class Operand> ZELM_INLINE const auto& asStored(const Operand& x) {
  if constexpr (isTransposed<Operand>)
    return x.stored();
  else
    return x;
}

template <class Tree, bool transposed, class L, int N, class M, class V, class W>
ZELM_INLINE Tile<L, 1, N> multiplyAdd(const M& matrix, const V& vector, const W& addend) {
  Tile<L, 1, N> result;
  if constexpr (transposed)
    result = multiplyTiles<Tree, N, L>(TransposedTile<L, N>{matrix}, vector);
  else
    result = multiplyTiles<Tree, N, L>(matrix, vector);
  if constexpr (isAddend<W>) {
    ZELM_UNROLL
    for (int i = 0; i < N; ++i)
      result(0, i) = result(0, i) + addend(0, i);
  }
  return result;
}

// Objects first .. end-1, one a step for scalar L, else as many as L is wide. Returns the first object not done.
template <class Tree, class L, Lie lie, int N, bool transposed, class A, class B, class C, class D>
ZELM_INLINE int64_t multiplyStraight(const A& stored, const B& src2, const C& src3, const D& dst, int64_t first,
                                     int64_t end) {
  constexpr int64_t width = LaneTraits<L>::width;
  const auto addendOf = [&](int64_t k) {
    if constexpr (isAddend<C>)
      return loadVector<L, lie, N>(src3, k);
    else
      return NoAddend{};
  };
  int64_t k = first;
  if constexpr (!A::isArray) {
    const auto matrix = loadStored<L, lie, N, transposed>(stored, 0);
    for (; k + width <= end; k += width)
      storeVector<L, lie, N>(dst, k,
                             multiplyAdd<Tree, transposed, L, N>(matrix, loadVector<L, lie, N>(src2, k), addendOf(k)));
  } else if constexpr (!B::isArray) {
    const auto vector = loadVector<L, lie, N>(src2, 0);
    for (; k + width <= end; k += width)
      storeVector<L, lie, N>(
          dst, k,
          multiplyAdd<Tree, transposed, L, N>(loadStored<L, lie, N, transposed>(stored, k), vector, addendOf(k)));
  } else {
    for (; k + width <= end; k += width)
      storeVector<L, lie, N>(dst, k,
                             multiplyAdd<Tree, transposed, L, N>(loadStored<L, lie, N, transposed>(stored, k),
                                                                 loadVector<L, lie, N>(src2, k), addendOf(k)));
  }
  return k;
}

// ---------------------------------------------------------------------------------------------------------------------
// Packed objects of side 4. A vector of four fits lanes as it lies, one object a vector or two, so nothing is
// transposed but the sums themselves.

// Element j of each group of four lanes, in all lanes of the group.
template <int j> ZELM_INLINE Lanes<float> spread(const char* vectors) {
  const auto x = loadLanes<float>(vectors);
  return pick<j, j, j, j>(x, x);
}
template <int j, class T> ZELM_INLINE Lanes<T> spreadOf(const char* vectors) {
  if constexpr (sizeof(T) == 4)
    return spread<j>(vectors);
  else
    return splat<Lanes<T>>(loadElement<T>(vectors + j * sizeof(T)));
}

template <class T> constexpr bool fillsVectors = laneCount<T> >= 4;

// The single operand's vector of four, once for each group of lanes.
template <class T, class View> ZELM_INLINE Lanes<T> repeatFour(const View& element) {
  Lanes<T> lanes;
  ZELM_UNROLL
  for (int w = 0; w < laneCount<T>; ++w)
    lanes[w] = element(w % 4);
  return lanes;
}

// A single matrix held as columns: a lane is a result element.
template <class Tree, bool transposed, class A, class T, class C>
ZELM_INLINE int64_t multiplyColumns(const A& stored, const PackedObjects<const T, 4>& src2, const C& src3,
                                    const PackedObjects<T, 4>& dst, int64_t end) {
  using L = Lanes<T>;
  constexpr int64_t width = laneCount<T> / 4;
  const auto matrix = stored.object(0, 4);
  L column[4];
  ZELM_UNROLL
  for (int j = 0; j < 4; ++j)
    column[j] = repeatFour<T>([&](int i) { return transposed ? matrix.load(j, i) : matrix.load(i, j); });
  L held{};
  if constexpr (isAddend<C> && !C::isArray)
    held = repeatFour<T>([&](int i) { return src3.object(0).load(i); });
  int64_t k = 0;
  for (; k + width <= end; k += width) {
    const char* const x = src2.address(k);
    const L term[4] = {column[0] * spreadOf<0, T>(x), column[1] * spreadOf<1, T>(x), column[2] * spreadOf<2, T>(x),
                       column[3] * spreadOf<3, T>(x)};
    L sum = Tree::of(0, term);
    if constexpr (isAddend<C> && C::isArray)
      sum = sum + loadLanes<T>(src3.address(k));
    else if constexpr (isAddend<C>)
      sum = sum + held;
    storeLanes(dst.address(k), sum);
  }
  return k;
}

// The sums of four rows whose products lie along the lanes. Each step adds the pairs that the tree adds, and halves
// what is left.
template <class Tree, class T> constexpr bool sumsAlongRows = false;
template <> inline constexpr bool sumsAlongRows<EvenOdd, float> = true;
template <> inline constexpr bool sumsAlongRows<Pairs64, double> = true;

#ifdef __AVX2__
// Two objects: x and y are their vectors, each in both halves.
ZELM_INLINE Lanes<float> evenAndOdd(const char* matrix, Lanes<float> x) {
  const Lanes<float> p01 = loadLanes<float>(matrix) * x;
  const Lanes<float> p23 = loadLanes<float>(matrix + 32) * x;
  return pick<0, 1, 4, 5>(p01, p23) + pick<2, 3, 6, 7>(p01, p23); // rows 0 2 | 1 3: t0 + t2, t1 + t3 of each
}
ZELM_INLINE void sumRows(const char* matrices, const Lanes<float>& x, const Lanes<float>& y, char* dst) {
  const auto s = evenAndOdd(matrices, x);
  const auto t = evenAndOdd(matrices + 64, y);
  const auto sums = pick<0, 2, 4, 6>(s, t) + pick<1, 3, 5, 7>(s, t); // rows 0 2 0 2 | 1 3 1 3
  storeLanes(dst, __builtin_shufflevector(sums, sums, 0, 4, 1, 5, 2, 6, 3, 7));
}
ZELM_INLINE Lanes<double> adjacent(const char* rows, const Lanes<double>& x) {
  const Lanes<double> p = loadLanes<double>(rows) * x;
  const Lanes<double> q = loadLanes<double>(rows + 32) * x;
  return pick<0, 2>(p, q) + pick<1, 3>(p, q); // t0 + t1 of both rows | t2 + t3
}
ZELM_INLINE void sumRows(const char* matrix, const Lanes<double>& x, char* dst) {
  const auto s = adjacent(matrix, x);
  const auto t = adjacent(matrix + 64, x);
  storeLanes(dst, __builtin_shufflevector(s, t, 0, 1, 4, 5) + __builtin_shufflevector(s, t, 2, 3, 6, 7));
}
#else
ZELM_INLINE Lanes<float> evenAndOdd(const char* rows, Lanes<float> x) {
  const Lanes<float> p = loadLanes<float>(rows) * x;
  const Lanes<float> q = loadLanes<float>(rows + 16) * x;
  return pick<0, 1, 4, 5>(p, q) + pick<2, 3, 6, 7>(p, q); // t0 + t2, t1 + t3 of each row
}
ZELM_INLINE void sumRows(const char* matrix, const Lanes<float>& x, char* dst) {
  const auto s = evenAndOdd(matrix, x);
  const auto t = evenAndOdd(matrix + 32, x);
  storeLanes(dst, pick<0, 2, 4, 6>(s, t) + pick<1, 3, 5, 7>(s, t));
}
// Two rows, half of their terms.
ZELM_INLINE Lanes<double> adjacent(const char* rows, const Lanes<double>& x) {
  const Lanes<double> p = loadLanes<double>(rows) * x;
  const Lanes<double> q = loadLanes<double>(rows + 32) * x;
  return pick<0, 2>(p, q) + pick<1, 3>(p, q);
}
ZELM_INLINE void sumRows(const char* matrix, const Lanes<double>& x, const Lanes<double>& y, char* dst) {
  storeLanes(dst, adjacent(matrix, x) + adjacent(matrix + 16, y));
  storeLanes(dst + 16, adjacent(matrix + 64, x) + adjacent(matrix + 80, y));
}
#endif

// Array operands give a vector object by object, single ones the same each time.
template <class B> ZELM_INLINE const char* vectorOf(const B& src2, int64_t k, const char* held) {
  if constexpr (B::isArray)
    return src2.address(k);
  else
    return held;
}

// Matrices that differ: a lane is a term. Sums Tree::of, whatever the tree.
template <class T, class B>
ZELM_INLINE int64_t multiplyRows(const PackedObjects<const T, 16>& stored, const B& src2,
                                 const PackedObjects<T, 4>& dst, int64_t end) {
  T single[4] = {};
  if constexpr (!B::isArray)
    for (int j = 0; j < 4; ++j)
      single[j] = src2.object(0).load(j);
  const auto* const held = reinterpret_cast<const char*>(single);
  int64_t k = 0;
#ifdef __AVX2__
  if constexpr (sizeof(T) == 4) {
    const auto twice = [](const char* x) {
      const auto half = loadLanes<T, 4>(x);
      return joinHalves(half, half);
    };
    for (; k + 2 <= end; k += 2)
      sumRows(stored.address(k), twice(vectorOf(src2, k, held)), twice(vectorOf(src2, k + 1, held)), dst.address(k));
  } else {
    for (; k < end; ++k)
      sumRows(stored.address(k), loadLanes<T>(vectorOf(src2, k, held)), dst.address(k));
  }
#else
  for (; k < end; ++k) {
    const char* const x = vectorOf(src2, k, held);
    if constexpr (sizeof(T) == 4)
      sumRows(stored.address(k), loadLanes<T>(x), dst.address(k));
    else
      sumRows(stored.address(k), loadLanes<T>(x), loadLanes<T>(x + 16), dst.address(k));
  }
#endif
  return k;
}

// ---------------------------------------------------------------------------------------------------------------------
// Which operands can be taken as many objects at a time

template <class> constexpr bool isPackable = false;
template <class T> constexpr bool isPackable<Matrices<T, UnitStride>> = true;
template <class T> constexpr bool isPackable<Vectors<T, UnitStride>> = true;
template <class Operand> constexpr bool isPackable<Transposed<Operand>> = isPackable<Operand>;

template <class> constexpr bool isInterleaved = false;
template <class T> constexpr bool isInterleaved<MatricesP<T>> = true;
template <class T> constexpr bool isInterleaved<VectorsP<T>> = true;
template <class Operand> constexpr bool isInterleaved<Transposed<Operand>> = isInterleaved<Operand>;

template <class T> ZELM_INLINE bool packedSide(const Matrices<T, UnitStride>& x, int32_t n) {
  return x.packed(n, n);
}
template <class T> ZELM_INLINE bool packedSide(const Vectors<T, UnitStride>& x, int32_t n) {
  return x.packed(n);
}

// Objects of side n that lie one behind the other without gaps.
template <class Operand> ZELM_INLINE bool canPack(const Operand& x, int32_t n) {
  if constexpr (!Operand::isArray)
    return true;
  else if constexpr (isPackable<Operand>)
    return packedSide(asStored(x), n);
  else
    return false;
}

template <class Operand> ZELM_INLINE bool neighboursOrSingle(const Operand& x) {
  if constexpr (!Operand::isArray)
    return true;
  else if constexpr (isInterleaved<Operand>)
    return x.objectStride() == static_cast<int64_t>(sizeof(typename Operand::Element));
  else
    return false;
}

// An operand whose objects are known to be packed, with that knowledge in its type; single operands stay as they are.
template <int Elements, class Operand> ZELM_INLINE auto asPacked(const Operand& x) {
  if constexpr (Operand::isArray) {
    using T = std::remove_pointer_t<decltype(x.pointer)>;
    return PackedObjects<T, Elements>{reinterpret_cast<Byte<T>*>(x.pointer)};
  } else {
    return x;
  }
}

template <class Tree, int N, bool transposed, class A, class B, class C, class D>
ZELM_INLINE int64_t multiplyPacked(const A& stored, const B& src2, const C& src3, const D& dst, int64_t count) {
  using T = typename D::Element;
  if constexpr (N == 4 && !A::isArray && fillsVectors<T>)
    return multiplyColumns<Tree, transposed>(stored, src2, src3, dst, count);
  else if constexpr (N == 4 && A::isArray && !transposed && sumsAlongRows<Tree, T>)
    return multiplyRows(stored, src2, dst, count);
  else
    return multiplyStraight<Tree, Lanes<T>, Lie::Packed, N, transposed>(stored, src2, src3, dst, 0, count);
}

template <class Tree, int N, class A, class B, class C, class D>
inline void multiplySide(const A& src1, const B& src2, const C& src3, const D& dst, int32_t count) {
  using T = typename D::Element;
  constexpr bool transposed = isTransposed<A>;
  const auto& stored = asStored(src1);
  int64_t k = 0;
  if constexpr (isPackable<D>) {
    if (canPack(src1, N) && canPack(src2, N) && canPack(src3, N) && canPack(dst, N))
      k = multiplyPacked<Tree, N, transposed>(asPacked<N * N>(stored), asPacked<N>(src2), asPacked<N>(src3),
                                              asPacked<N>(dst), count);
  } else if constexpr (isInterleaved<D>) {
    if (neighboursOrSingle(src1) && neighboursOrSingle(src2) && neighboursOrSingle(src3) && neighboursOrSingle(dst))
      k = multiplyStraight<Tree, Lanes<T>, Lie::Neighbours, N, transposed>(stored, src2, src3, dst, 0, count);
  }
  multiplyStraight<Tree, T, Lie::Elements, N, transposed>(stored, src2, src3, dst, k, count);
}

// ---------------------------------------------------------------------------------------------------------------------
// Any size: one running sum for each result element, from +0.0, in ascending order

// `rows` lanes of consecutive result elements; each lane is a sum of its own.
template <class L, class A, class X> ZELM_INLINE L sumRows(const A& a, const X& x, int64_t i, int32_t terms) {
  using T = ElementOf<L>;
  constexpr int W = LaneTraits<L>::width;
  L sum = {};
  if constexpr (W == 1) {
    for (int32_t k = 0; k < terms; ++k)
      sum = sum + a.load(i, k) * x.load(k);
  } else if constexpr (A::unitColumns) {
    for (int32_t k = 0; k < terms; ++k)
      sum = sum + loadLanes<T>(a.address(i, k)) * splat<L>(x.load(k));
  } else {
    // Rows in memory: square blocks of them are transposed in registers.
    constexpr int Q = chunkElements<T>;
    ObjectAddresses<T, const char> rows;
    ZELM_UNROLL
    for (int w = 0; w < W; ++w)
      rows.of[w] = a.address(i + w, 0);
    int32_t k = 0;
    for (; k + Q <= terms; k += Q) {
      L column[Q];
      loadChunk<T>(rows, k * static_cast<int64_t>(sizeof(T)), column);
      ZELM_UNROLL
      for (int q = 0; q < Q; ++q)
        sum = sum + column[q] * splat<L>(x.load(k + q));
    }
    for (; k < terms; ++k) {
      L column{};
      ZELM_UNROLL
      for (int w = 0; w < W; ++w)
        column[w] = loadElement<T>(rows.of[w] + k * static_cast<int64_t>(sizeof(T)));
      sum = sum + column * splat<L>(x.load(k));
    }
  }
  return sum;
}

// One object. `addend` is NoAddend or a view.
template <class A, class X, class Y, class D>
inline void multiplyGeneral(const A& a, const X& x, const Y& addend, const D& dst, int32_t rows, int32_t terms) {
  using T = typename D::Element;
  const auto put = [&](int64_t i, T sum) {
    if constexpr (isAddend<Y>)
      sum = sum + addend.load(i);
    dst.store(i, sum);
  };
  int32_t i = 0;
  if constexpr (A::unitRows || A::unitColumns) {
    using L = Lanes<T>;
    for (; i + laneCount<T> <= rows; i += laneCount<T>) {
      const L sum = sumRows<L>(a, x, i, terms);
      for (int w = 0; w < laneCount<T>; ++w)
        put(i + w, sum[w]);
    }
  }
  for (; i + 4 <= rows; i += 4) {
    T sum[4] = {};
    for (int32_t k = 0; k < terms; ++k) {
      const T factor = x.load(k);
      ZELM_UNROLL
      for (int r = 0; r < 4; ++r)
        sum[r] = sum[r] + a.load(i + r, k) * factor;
    }
    ZELM_UNROLL
    for (int r = 0; r < 4; ++r)
      put(i + r, sum[r]);
  }
  for (; i < rows; ++i)
    put(i, sumRows<T>(a, x, i, terms));
}

template <class C> ZELM_INLINE auto addendObject(const C& src3, int64_t k) {
  if constexpr (isAddend<C>)
    return src3.object(k);
  else
    return src3;
}

template <class A, class B, class C, class D>
inline void multiplyAnySize(const A& src1, int32_t width, int32_t height, const B& src2, const C& src3, const D& dst,
                            int32_t count) {
  for (int32_t k = 0; k < count; ++k)
    multiplyGeneral(src1.object(k, width), src2.object(k), addendObject(src3, k), dst.object(k),
                    isTransposed<A> ? width : height, isTransposed<A> ? height : width);
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels: the matrix's sizes alone choose the case

template <class Tree, class A, class B, class C, class D>
ZELM_INLINE ZelStatus multiplyBatch(const A& src1, int32_t width, int32_t height, const B& src2, const C& src3,
                                    const D& dst, int32_t count) {
  return forSize(
      typename Tree::Straight{}, width == height ? width : 0,
      [&](auto side) {
        multiplySide<Tree, side>(src1, src2, src3, dst, count);
        return zelStatusOk;
      },
      [&] {
        multiplyAnySize(src1, width, height, src2, src3, dst, count);
        return zelStatusOk;
      });
}

template <class Tree, class A, class B, class D>
ZELM_INLINE ZelStatus multiplyVectors(Tree, const A& src1, Size src1Width, Size src1Height, const B& src2, Size,
                                      const D& dst, Count count = 1) {
  return multiplyBatch<Tree>(src1, src1Width, src1Height, src2, NoAddend{}, dst, count);
}

template <class Tree, class A, class B, class C, class D>
ZELM_INLINE ZelStatus multiplyAddVectors(Tree, const A& src1, Size src1Width, Size src1Height, const B& src2, Size,
                                         const C& src3, Size, const D& dst, Count count = 1) {
  return multiplyBatch<Tree>(src1, src1Width, src1Height, src2, src3, dst, count);
}

// ---------------------------------------------------------------------------------------------------------------------
// Agreement of the sizes, and the work estimates: the elements that a call touches

struct MatrixByVector {
  template <class A, class B, class D, class... Batch>
  static bool agree(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const D&, const Batch&...) {
    return (isTransposed<A> ? src1Height : src1Width) == src2Len;
  }
};

template <class A> constexpr Wrapping resultLen(Size src1Width, Size src1Height) {
  return isTransposed<A> ? src1Width : src1Height;
}

// mva tva
struct SingleMatrix {
  template <class A, class B, class D>
  static Wrapping of(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const D&, Count count) {
    return Wrapping(src1Width) * src1Height + (Wrapping(src2Len) + resultLen<A>(src1Width, src1Height)) * count;
  }
};
// mav tav
struct SingleVector {
  template <class A, class B, class D>
  static Wrapping of(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const D&, Count count) {
    return Wrapping(src2Len) + (Wrapping(src1Width) * src1Height + resultLen<A>(src1Width, src1Height)) * count;
  }
};
// mava tava
struct NoSingle {
  template <class A, class B, class D>
  static Wrapping of(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const D&, Count count) {
    return (Wrapping(src1Width) * src1Height + src2Len + resultLen<A>(src1Width, src1Height)) * count;
  }
};

using N_Z_M_S_MV = N_Z_M_S<MatrixByVector>;
using N_Z_M_H_MV = N_Z_M_H<MatrixByVector>;
using N_C_Z_M_S_MV = N_C_Z_M_S<MatrixByVector>;
using N_C_Z_M_S_H_MV = N_C_Z_M_S_H<MatrixByVector>;

struct MatrixByVectorPlusVector {
  template <class A, class B, class C, class D, class... Batch>
  static bool agree(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const C&, Size src3Len, const D&,
                    const Batch&...) {
    return src1Width == src2Len && src1Height == src3Len;
  }
};

using N_Z_M_S_Gaxpy = N_Z_M_S<MatrixByVectorPlusVector>;
using N_Z_M_H_Gaxpy = N_Z_M_H<MatrixByVectorPlusVector>;
using N_C_Z_M_S_Gaxpy = N_C_Z_M_S<MatrixByVectorPlusVector>;
using N_C_Z_M_S_H_Gaxpy = N_C_Z_M_S_H<MatrixByVectorPlusVector>;

} // namespace zelm
