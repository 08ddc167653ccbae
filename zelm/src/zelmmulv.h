// Matrix by vector, and with a vector added: dst = src1 * src2 [+ src3].
//
// A result element is a sum of products, and the brackets of the sum decide its last bits. They differ by form, type,
// layout, stride path and size; the row of a kernel names its tree (zelmsum.h), which square matrices of side 3 to 6
// take. Nothing is fused. Vectors hold objects, elements of one result or, where the sum pairs them, its terms, a lane
// each.
#pragma once

#include "zelmmulvsignature.h"
#include "zelmproduct.h"
#include "zelmsum.h"
#include "zelmtriples.h"

namespace zelm {

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
    ObjectAddresses<Element, Byte<T>, rowLaneCount<Element>> objects;
    ZELM_UNROLL
    for (int w = 0; w < rowLaneCount<Element>; ++w)
      objects.of[w] = address(k) + w * bytes;
    return objects;
  }
};

template <class> constexpr bool isPackedObjects = false;
template <class T, int Elements> constexpr bool isPackedObjects<PackedObjects<T, Elements>> = true;

// Packed matrices, one a lane, that are read row by row.
template <class T, int N> struct PackedRows { ObjectAddresses<T, const char, rowLaneCount<T>> objects; };
template <class T, int N> ZELM_INLINE Tile<RowLanes<T>, 1, N> rowOf(const PackedRows<T, N>& matrix, int i) {
  constexpr int Q = chunkElements<T>;
  Tile<RowLanes<T>, 1, N> row;
  ZELM_UNROLL
  for (int k = 0; k < N; k += Q) {
    // A chunk may reach into the next row, but not beyond the object.
    const int from = i * N + k + Q <= N * N ? i * N + k : N * N - Q;
    RowLanes<T> chunk[Q];
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
  Tile<RowLanes<T>, N, N> tile;
  loadRun<N * N, T>(x.addresses(k), 0, tile.element);
  return tile;
}

template <class T, int N> ZELM_INLINE auto loadPackedVectors(const PackedObjects<const T, N>& x, int64_t k) {
  if constexpr (N == 3) {
    return loadTriples<T>(x.address(k));
  } else {
    Tile<RowLanes<T>, 1, N> tile;
    loadRun<N, T>(x.addresses(k), 0, tile.element);
    return tile;
  }
}
template <class T, int N>
ZELM_INLINE void storePackedVectors(const PackedObjects<T, N>& x, int64_t k, const Tile<RowLanes<T>, 1, N>& tile) {
  if constexpr (N == 3)
    storeTriples<false>(x.address(k), tile);
  else
    storeRun<N, T>(x.addresses(k), 0, tile.element);
}

// ---------------------------------------------------------------------------------------------------------------------
// Objects whose rows are contiguous, anywhere: members of structs, padded rows, lists. A vector is a row.

template <class T, class S> ZELM_INLINE auto* firstOf(const Matrices<T, S>& x, int64_t k) {
  return x.object(k, 0).origin;
}
template <class T, class S> ZELM_INLINE auto* firstOf(const MatricesL<T, S>& x, int64_t k) {
  return x.object(k, 0).origin;
}
template <class Operand> ZELM_INLINE auto* firstOf(const Operand& x, int64_t k) {
  return x.object(k).origin;
}

template <class Operand, int N, bool gapless> struct ApartObjects {
  using Element = typename Operand::Element;
  static constexpr bool isArray = true;
  Operand operand;
  int64_t rowStep;

  ZELM_INLINE auto* address(int64_t k) const { return firstOf(operand, k); }
  ZELM_INLINE auto addresses(int64_t k) const {
    ObjectAddresses<Element, std::remove_pointer_t<decltype(address(k))>, rowLaneCount<Element>> objects;
    ZELM_UNROLL
    for (int w = 0; w < rowLaneCount<Element>; ++w)
      objects.of[w] = address(k + w);
    return objects;
  }
};
template <class> constexpr bool isGaplessObjects = false;
template <class Operand, int N> constexpr bool isGaplessObjects<ApartObjects<Operand, N, true>> = true;
template <class> constexpr bool isApartObjects = false;
template <class Operand, int N, bool G> constexpr bool isApartObjects<ApartObjects<Operand, N, G>> = true;

// Matrices with gaps between their rows, one a lane, that are read row by row.
template <class T, int N> struct SpacedRows {
  ObjectAddresses<T, const char, rowLaneCount<T>> objects;
  int64_t step;
};
template <class T, int N> ZELM_INLINE Tile<RowLanes<T>, 1, N> rowOf(const SpacedRows<T, N>& matrix, int i) {
  Tile<RowLanes<T>, 1, N> row;
  loadRun<N, T>(matrix.objects, i * matrix.step, row.element);
  return row;
}

template <class> constexpr bool isReadByRows = false;
template <class T, int N> constexpr bool isReadByRows<PackedRows<T, N>> = true;
template <class T, int N> constexpr bool isReadByRows<SpacedRows<T, N>> = true;

template <class L, int N, class M> ZELM_INLINE Tile<L, N, N> loadRows(const M& matrix) {
  Tile<L, N, N> tile;
  ZELM_UNROLL
  for (int i = 0; i < N; ++i) {
    const auto row = rowOf(matrix, i);
    ZELM_UNROLL
    for (int j = 0; j < N; ++j)
      tile(i, j) = row(0, j);
  }
  return tile;
}

// The columns of the matrix that multiplies are read one by one: every sum is a chain.
template <class L, int N, class M> ZELM_INLINE Tile<L, 1, N> addColumns(const M& columns, const Tile<L, 1, N>& vector) {
  Tile<L, 1, N> sum;
  ZELM_UNROLL
  for (int k = 0; k < N; ++k) {
    const auto column = rowOf(columns, k);
    ZELM_UNROLL
    for (int i = 0; i < N; ++i)
      sum(0, i) = k == 0 ? column(0, i) * vector(0, k) : sum(0, i) + column(0, i) * vector(0, k);
  }
  return sum;
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
template <int N, class T> ZELM_INLINE auto loadElements(const char* x) {
  Tile<T, 1, N> tile;
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    tile(0, j) = loadElement<T>(x + j * static_cast<int64_t>(sizeof(T)));
  return tile;
}
template <int N, class View>
ZELM_INLINE void storeVectorTile(const View& x, const Tile<typename View::Element, 1, N>& tile) {
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    x.store(j, tile(0, j));
}

// The matrix operand as it is stored; as many objects from k on as L is wide.
template <class L, int N, bool transposed, class Operand> ZELM_INLINE auto loadStored(const Operand& x, int64_t k) {
  if constexpr (LaneTraits<L>::width == 1)
    return loadTile<N, N>(x.object(k, N));
  else if constexpr (isPackedObjects<Operand> && !transposed)
    return PackedRows<typename Operand::Element, N>{x.addresses(k)};
  else if constexpr (isPackedObjects<Operand>)
    return loadPackedMatrices<N>(x, k);
  else if constexpr (isGaplessObjects<Operand>)
    return PackedRows<typename Operand::Element, N>{x.addresses(k)};
  else if constexpr (isApartObjects<Operand>)
    return SpacedRows<typename Operand::Element, N>{x.addresses(k), x.rowStep};
  else if constexpr (Operand::isArray)
    return loadTiles<N, N>(x, k);
  else
    return splatTile<L>(loadTile<N, N>(x.object(0, N)));
}
template <class L, int N, class Operand> ZELM_INLINE auto loadVector(const Operand& x, int64_t k) {
  if constexpr (LaneTraits<L>::width == 1)
    return loadVectorTile<N>(x.object(k));
  else if constexpr (isPackedObjects<Operand>)
    return loadPackedVectors(x, k);
  else if constexpr (isApartObjects<Operand>)
    return rowOf(SpacedRows<typename Operand::Element, N>{x.addresses(k), 0}, 0);
  else if constexpr (Operand::isArray)
    return loadVectorTiles<N>(x, k);
  else
    return splatTile<L>(loadVectorTile<N>(x.object(0)));
}
template <class L, int N, class Operand>
ZELM_INLINE void storeVector(const Operand& x, int64_t k, const Tile<L, 1, N>& tile) {
  if constexpr (LaneTraits<L>::width == 1)
    storeVectorTile<N>(x.object(k), tile);
  else if constexpr (isPackedObjects<Operand>)
    storePackedVectors(x, k, tile);
  else if constexpr (isApartObjects<Operand>)
    storeRun<N, typename Operand::Element>(x.addresses(k), 0, tile.element);
  else
    storeVectorTiles<N>(x, k, tile);
}

template <class Tree, bool transposed, class L, int N, class M, class V, class W>
ZELM_INLINE Tile<L, 1, N> multiplyAdd(const M& matrix, const V& vector, const W& addend) {
  Tile<L, 1, N> result;
  if constexpr (transposed && isReadByRows<M> && std::is_same_v<Tree, Chain>)
    result = addColumns<L, N>(matrix, vector);
  else if constexpr (transposed && isReadByRows<M>)
    result = multiplyTiles<Tree, N, L>(TransposedTile<L, N>{loadRows<L, N>(matrix)}, vector);
  else if constexpr (transposed)
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
template <class Tree, class L, int N, bool transposed, class A, class B, class C, class D>
ZELM_INLINE int64_t multiplyStraight(const A& stored, const B& src2, const C& src3, const D& dst, int64_t first,
                                     int64_t end) {
  constexpr int64_t width = LaneTraits<L>::width;
  const auto addendOf = [&](int64_t k) {
    if constexpr (isAddend<C>)
      return loadVector<L, N>(src3, k);
    else
      return NoAddend{};
  };
  int64_t k = first;
  if constexpr (!A::isArray) {
    const auto matrix = loadStored<L, N, transposed>(stored, 0);
    for (; k + width <= end; k += width)
      storeVector<L, N>(dst, k, multiplyAdd<Tree, transposed, L, N>(matrix, loadVector<L, N>(src2, k), addendOf(k)));
  } else if constexpr (!B::isArray) {
    const auto vector = loadVector<L, N>(src2, 0);
    for (; k + width <= end; k += width)
      storeVector<L, N>(
          dst, k, multiplyAdd<Tree, transposed, L, N>(loadStored<L, N, transposed>(stored, k), vector, addendOf(k)));
  } else {
    for (; k + width <= end; k += width)
      storeVector<L, N>(dst, k,
                        multiplyAdd<Tree, transposed, L, N>(loadStored<L, N, transposed>(stored, k),
                                                            loadVector<L, N>(src2, k), addendOf(k)));
  }
  return k;
}

// ---------------------------------------------------------------------------------------------------------------------
// A single matrix and packed vectors: a lane is an element of a result. The matrix is held as columns, and what the
// terms take of a vector is spread over the lanes, so that nothing is transposed.

// Element (i, j) of the matrix that multiplies, which is stored as it is or transposed.
template <bool transposed, class View> ZELM_INLINE auto factor(const View& matrix, int i, int j) {
  return transposed ? matrix.load(j, i) : matrix.load(i, j);
}

// Element j of N in all lanes.
#if ZELM_ROW_BYTES == 32
template <class L, int N, int j> ZELM_INLINE L spread(const char* vector) {
  using T = ElementOf<L>;
  L lanes = splat<L>(loadElement<T>(vector + j * static_cast<int>(sizeof(T))));
  // Narrower vectors take their lanes from here. The compiler does not see where they come from, or it would load the
  // element once more for those, or in place of the vector.
  if constexpr (N > LaneTraits<L>::width)
    hideOrigin(lanes);
  return lanes;
}
#else
template <class L, int N, int j> ZELM_INLINE L spread(const char* vector) {
  using T = ElementOf<L>;
  constexpr int Q = chunkElements<T>;
  constexpr int from = smaller(j / Q * Q, N - Q);
  return spreadLane(loadRowLanes<T>(vector + from * static_cast<int>(sizeof(T))), j - from);
}
#endif

// The first lanes.
template <class L, class V> ZELM_INLINE L narrow(const V& v) {
  if constexpr (std::is_same_v<L, V>)
    return v;
  else if constexpr (LaneTraits<L>::width == 1)
    return v[0];
  else
    return __builtin_shufflevector(v, v, 0, 1);
}

// The addend of the elements at `offset` bytes into the packed result, or of a single vector what `held` has of it.
template <bool half = false, class C, class L>
ZELM_INLINE L addTo(const L& sum, const C& src3, int64_t offset, const L& held) {
  if constexpr (!isAddend<C>)
    return sum;
  else if constexpr (!C::isArray)
    return sum + held;
  else if constexpr (half)
    return sum + loadTwo(src3.first + offset);
  else if constexpr (LaneTraits<L>::width == 1)
    return sum + loadElement<L>(src3.first + offset);
  else
    return sum + loadLanes<ElementOf<L>, LaneTraits<L>::width>(src3.first + offset);
}
template <class L, class C, class F> ZELM_INLINE L holdAddend(const C& src3, const F& elementOfLane) {
  if constexpr (isAddend<C> && !C::isArray)
    return lanesOf<L>([&](int w) { return src3.object(0).load(elementOfLane(w)); });
  else
    return L{};
}

// Three elements, of which every sum is a chain.
template <bool transposed, class A, class T, class C>
ZELM_INLINE int64_t multiplyTriples(const A& stored, const PackedObjects<const T, 3>& src2, const C& src3,
                                    const PackedObjects<T, 3>& dst, int64_t end) {
  constexpr int W = rowLaneCount<T>;
  const auto matrix = stored.object(0, 3);
  const TripleFactors<T> factors([&](int i, int j) { return factor<transposed>(matrix, i, j); });
  RowLanes<T> held[3];
  ZELM_UNROLL
  for (int v = 0; v < 3; ++v)
    held[v] = holdAddend<RowLanes<T>>(src3, [v](int w) { return (v * W + w) % 3; });
  int64_t k = 0;
  for (; k + W <= end; k += W) {
    const int64_t offset = k * dst.bytes;
    const auto put = [&](int v, const RowLanes<T>& product) __attribute__((always_inline)) {
      const int64_t at = offset + v * rowBytes;
      storeLanes(dst.first + at, addTo(product, src3, at, held[v]));
    };
    put(0, factors.template multiply<0>(src2.first + offset));
    put(1, factors.template multiply<1>(src2.first + offset));
    put(2, factors.template multiply<2>(src2.first + offset));
  }
  return k;
}

// Four elements, of which a sum adds pairs at a distance of `inner` and then the two sums: a lane may take its terms in
// any order that keeps the pairs. The lanes of a vector sum one pair of their own rows and, as the others' rows are
// `outer` off, the same pair of those; crossing the second brings both sums of a row together.
template <class Tree> struct Crosswise { static constexpr int inner = 0; };
template <> struct Crosswise<EvenOdd> {
  static constexpr int inner = 2;
  static constexpr int outer = 1;
};
template <> struct Crosswise<Pairs32> {
  static constexpr int inner = 1;
  static constexpr int outer = 2;
};
template <int distance, class L, int... w> ZELM_INLINE L crossed(const L& lanes, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(lanes, lanes, (w ^ distance)...);
}

// The elements that the lanes take of a vector: lane w element firstOf(w), then the one `inner` off.
template <int inner> struct PairsOfFour {
  using L = RowLanes<float>;
#if ZELM_ROW_BYTES == 32
  // Loads that fill two lanes with an element cost no shuffle.
  static constexpr int firstOf(int w) {
    return w & ~inner;
  }
  ZELM_INLINE static L first(const char* x) {
    return inner == 1 ? loadEvenTwice(x) : loadLowPairTwice(x);
  }
  // Unless it is the last vector, what lies behind it may be read.
  template <bool last> ZELM_INLINE static L second(const char* x) {
    if constexpr (inner == 1)
      return loadOddTwice(x);
    else if constexpr (last)
      return loadHighPairTwice(x);
    else
      return loadLowPairTwice(x + 8);
  }
#else
  static constexpr int firstOf(int w) {
    return w;
  }
  ZELM_INLINE static L first(const char* x) {
    return loadRowLanes<float>(x);
  }
  template <bool last> ZELM_INLINE static L second(const char* x) {
    return crossed<inner>(loadRowLanes<float>(x), std::make_integer_sequence<int, 4>{});
  }
#endif
};

template <class Tree, bool transposed, class A, class C>
ZELM_INLINE int64_t multiplyFours(const A& stored, const PackedObjects<const float, 4>& src2, const C& src3,
                                  const PackedObjects<float, 4>& dst, int64_t end) {
  using L = RowLanes<float>;
  using Pairs = PairsOfFour<Crosswise<Tree>::inner>;
  constexpr int inner = Crosswise<Tree>::inner;
  constexpr int outer = Crosswise<Tree>::outer;
  const std::make_integer_sequence<int, rowLaneCount<float>> lanes;
  const auto matrix = stored.object(0, 4);
  // What lane w multiplies its element by, or the one `column` off, for row w or the one `row` off.
  const auto hold = [&](int row, int column) {
    return lanesOf<L>(
        [&](int w) { return factor<transposed>(matrix, (w ^ row) % 4, (Pairs::firstOf(w) ^ column) % 4); });
  };
  const L own = hold(0, 0);
  const L paired = hold(0, inner);
  const L othersOwn = hold(outer, 0);
  const L othersPaired = hold(outer, inner);
  const L held = holdAddend<L>(src3, [](int w) { return w % 4; });
  constexpr int64_t width = rowLaneCount<float> / 4;
  const auto multiplyAt = [&](int64_t k, auto last) __attribute__((always_inline)) {
    const int64_t offset = k * dst.bytes;
    const L x = Pairs::first(src2.first + offset);
    const L y = Pairs::template second<last>(src2.first + offset);
    const L sum = (own * x + paired * y) + crossed<outer>(othersOwn * x + othersPaired * y, lanes);
    storeLanes(dst.first + offset, addTo(sum, src3, offset, held));
  };
  int64_t k = 0;
  for (; k + 2 * width < end; k += 2 * width) {
    multiplyAt(k, std::false_type{});
    multiplyAt(k + width, std::false_type{});
  }
  for (; k + width <= end; k += width)
    multiplyAt(k, std::true_type{});
  return k;
}

// Other sizes: the rows of the matrix from `from` on, as many as fit a vector, then the rest.
template <class T, int W> struct LanesOrElement { using type = Lanes<T, W>; };
template <class T> struct LanesOrElement<T, 1> { using type = T; };

// The row that is the sum of the others with terms 1 and 2 exchanged.
template <class Tree, int N> constexpr int exchangingRow = -1;
template <> inline constexpr int exchangingRow<EvenOdd, 5> = 4;

template <class Tree, class T, int N, int from = 0> struct Columns {
  static constexpr int rows = N - from;
  static constexpr int W = rows == 1 ? 1 : rows > chunkElements<T> ? rowLaneCount<T> : chunkElements<T>;
  static constexpr int used = smaller(rows, W);
  // Half of a vector of four is stored alone. What a wider vector has too much goes into the next object, which is done
  // after.
  static constexpr bool half = used < W && W == chunkElements<T>;
  using L = typename LanesOrElement<T, W>::type;
  using Rest = std::conditional_t<(from + W < N), Columns<Tree, T, N, from + W>, NoAddend>;

  L column[N];
  L held;
  Rest rest;

  // Where the columns fit the registers compilers are told to keep them there, or they may put some in memory.
  static constexpr bool keepsColumns = sizeof(T) == 4 || N == 4;

  // Lanes that are not used have the values of the last row.
  static constexpr int rowOf(int w) { return from + smaller(w, used - 1); }
  static constexpr bool exchanges(int w) { return w > 0 && w < used && rowOf(w) == exchangingRow<Tree, N>; }
  static constexpr bool hasExchange = exchanges(used - 1);

  template <bool transposed, class View, class C> ZELM_INLINE void hold(const View& matrix, const C& src3) {
    ZELM_UNROLL
    for (int j = 0; j < N; ++j)
      column[j] = lanesOf<L>([&](int w) { return factor<transposed>(matrix, rowOf(w), j); });
    if constexpr (keepsColumns) {
      ZELM_UNROLL
      for (int j = 0; j < N; ++j)
        holdInRegister(column[j]);
    }
    held = holdAddend<L>(src3, rowOf);
    if constexpr (from + W < N)
      rest.template hold<transposed>(matrix, src3);
  }

  template <int... w> ZELM_INLINE static L exchange(const L& one, const L& other, std::integer_sequence<int, w...>) {
    return __builtin_shufflevector(one, other, (exchanges(w) ? w + W : w)...);
  }

  template <int... j>
  ZELM_INLINE static void spreadAll(const char* x, L (&lanes)[N], std::integer_sequence<int, j...>) {
    ((lanes[j] = spread<L, N, j>(x)), ...);
  }

  // The object at `offset` bytes. The rest multiplies what is spread already; everything is loaded before anything is
  // stored.
  template <class X, class C>
  ZELM_INLINE void multiplySpread(const X (&x)[N], const C& src3, char* dst, int64_t offset) const {
    L term[N];
    ZELM_UNROLL
    for (int j = 0; j < N; ++j)
      term[j] = column[j] * narrow<L>(x[j]);
    if constexpr (hasExchange) {
      const std::make_integer_sequence<int, W> lanes;
      const L second = exchange(term[1], term[2], lanes);
      term[2] = exchange(term[2], term[1], lanes);
      term[1] = second;
    }
    const int64_t at = offset + from * static_cast<int>(sizeof(T));
    const L sum = addTo<half>(Tree::of(from, term), src3, at, held);
    if constexpr (from + W < N)
      rest.multiplySpread(x, src3, dst, offset);
    if constexpr (half)
      storeElement(dst + at, lowBits(sum));
    else if constexpr (W == 1)
      storeElement(dst + at, sum);
    else
      storeLanes(dst + at, sum);
  }
  template <class C> ZELM_INLINE void multiply(const char* src2, const C& src3, char* dst, int64_t offset) const {
    L x[N];
    spreadAll(src2 + offset, x, std::make_integer_sequence<int, N>{});
    multiplySpread(x, src3, dst, offset);
  }
};

template <class Tree, int N, bool transposed, class A, class T, class C>
ZELM_INLINE int64_t multiplyColumns(const A& stored, const PackedObjects<const T, N>& src2, const C& src3,
                                    const PackedObjects<T, N>& dst, int64_t count) {
  // What an object loads and stores too much is the next one's.
  const int64_t end = N < rowLaneCount<T> ? count - 1 : count;
  Columns<Tree, T, N> columns;
  columns.template hold<transposed>(stored.object(0, N), src3);
  int64_t k = 0;
  // Objects of one vector are too short for a loop's own instructions not to count.
  constexpr int64_t step = N <= rowLaneCount<T> ? 4 : 1;
  for (; k + step <= end; k += step) {
    ZELM_UNROLL
    for (int o = 0; o < step; ++o)
      columns.multiply(src2.first, src3, dst.first, (k + o) * dst.bytes);
  }
  for (; k < end; ++k)
    columns.multiply(src2.first, src3, dst.first, k * dst.bytes);
  return k;
}

// ---------------------------------------------------------------------------------------------------------------------
// Packed matrices whose rows go in lanes, as vectors by themselves: the result's elements lie as the rows do

// What multiplies as many rows as a vector has lanes.
template <class Tree, class T, int N> struct RowFactor {
  using L = RowLanes<T>;
  static constexpr int W = rowLaneCount<T>;
  static constexpr auto E = static_cast<int64_t>(sizeof(T));
  // Two rows of N elements are N vectors: multiplied as they lie, by the elements as they meet them, and turned after.
  static constexpr bool asTheyLie = W == 2;
  // Pairs64 adds the sum of the first four terms, which are a vector, to the rest.
  static constexpr bool byFours = sizeof(T) == 8 && W == 4 && std::is_same_v<Tree, Pairs64> && N >= 4;

  L x[N];

  ZELM_INLINE explicit RowFactor(const Tile<T, 1, N>& vector) {
    ZELM_UNROLL
    for (int v = 0; v < N; ++v) {
      const bool inOrder = asTheyLie || (byFours && v == 0);
      const bool lastPair = byFours && N == 6 && v >= 4;
      x[v] = lanesOf<L>([&](int w) { return vector(0, inOrder ? (v * W + w) % N : lastPair ? 4 + w % 2 : v); });
    }
  }

  template <int j> ZELM_INLINE static L column(const L (&product)[N]) {
    return __builtin_shufflevector(product[j / 2], product[(N + j) / 2], j % 2, 2 + (N + j) % 2);
  }
  template <int... j> ZELM_INLINE static L sumAsTheyLie(const L (&product)[N], std::integer_sequence<int, j...>) {
    const L term[N] = {column<j>(product)...};
    return Tree::of(0, term);
  }

#if ZELM_ROW_BYTES == 32
  ZELM_INLINE static RowLanes<double> addPairs(RowLanes<double> p, RowLanes<double> q) {
    return pick<0, 2>(p, q) + pick<1, 3>(p, q);
  }
  ZELM_INLINE RowLanes<double> sumByFours(const char* rows) const {
    const auto products = [&](int i) { return loadRowLanes<double>(rows + i * N * E) * x[0]; };
    const auto s = addPairs(products(0), products(1)); // t0 + t1 of both rows | t2 + t3
    const auto t = addPairs(products(2), products(3));
    const auto sum = __builtin_shufflevector(s, t, 0, 1, 4, 5) + __builtin_shufflevector(s, t, 2, 3, 6, 7);
    if constexpr (N == 4) {
      return sum;
    } else if constexpr (N == 5) {
      // The fifth element of row i is in lane i of the vector 4 * i elements behind that of row 0.
      const auto from = [&](int i) { return loadRowLanes<double>(rows + (4 + 4 * i) * E); };
      const auto low = __builtin_shufflevector(from(0), from(1), 0, 5, 2, 3);
      const auto high = __builtin_shufflevector(from(2), from(3), 0, 1, 2, 7);
      return sum + __builtin_shufflevector(low, high, 0, 1, 6, 7) * x[4];
    } else {
      const auto lastPairs = [&](int i) {
        return joinHalves(loadLanes<double, 2>(rows + (i * N + 4) * E),
                          loadLanes<double, 2>(rows + ((i + 2) * N + 4) * E)) *
               x[4];
      };
      return sum + addPairs(lastPairs(0), lastPairs(1));
    }
  }
#endif

  ZELM_INLINE L operator()(const char* rows) const {
    if constexpr (asTheyLie) {
      L product[N];
      ZELM_UNROLL
      for (int v = 0; v < N; ++v)
        product[v] = loadRowLanes<T>(rows + v * rowBytes) * x[v];
      return sumAsTheyLie(product, std::make_integer_sequence<int, N>{});
    } else if constexpr (byFours) {
      return this->sumByFours(rows);
    } else {
      const auto lanes = loadPackedVectors(PackedObjects<const T, N>{rows}, 0);
      L term[N];
      ZELM_UNROLL
      for (int j = 0; j < N; ++j)
        term[j] = lanes(0, j) * x[j];
      return Tree::of(0, term);
    }
  }
};

// A row alone.
template <class Tree, class T, int N> ZELM_INLINE T multiplyRow(const char* elements, const Tile<T, 1, N>& x, int row) {
  T term[N];
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    term[j] = loadElement<T>(elements + j * static_cast<int64_t>(sizeof(T))) * x(0, j);
  return Tree::of(row, term);
}

// One vector for all: rows follow each other through the whole batch.
template <class Tree, int N, class T, class B>
ZELM_INLINE int64_t multiplyRowsBySingle(const PackedObjects<const T, N * N>& stored, const B& src2,
                                         const PackedObjects<T, N>& dst, int64_t count) {
  constexpr int64_t W = rowLaneCount<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  const auto vector = loadVectorTile<N>(src2.object(0));
  const RowFactor<Tree, T, N> factor(vector);
  const int64_t rows = count * N;
  int64_t r = 0;
  for (; r + 2 * W <= rows; r += 2 * W) {
    storeLanes(dst.first + r * E, factor(stored.first + r * N * E));
    storeLanes(dst.first + (r + W) * E, factor(stored.first + (r + W) * N * E));
  }
  for (; r < rows; ++r)
    storeElement<T>(dst.first + r * E, multiplyRow<Tree>(stored.first + r * N * E, vector, 0));
  return count;
}

// A vector for each matrix.
template <class Tree, int N, class A, class B, class D>
ZELM_INLINE int64_t multiplyRowsByArray(const A& stored, const B& src2, const D& dst, int64_t count) {
  using T = typename D::Element;
  constexpr int W = rowLaneCount<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  for (int64_t k = 0; k < count; ++k) {
    const auto vector = loadElements<N, T>(src2.address(k));
    const RowFactor<Tree, T, N> factor(vector);
    const auto rowAt = [&](int i) { return stored.address(k) + i * N * E; };
    ZELM_UNROLL
    for (int i = 0; i + W <= N; i += W)
      storeLanes(dst.address(k) + i * E, factor(rowAt(i)));
    ZELM_UNROLL
    for (int i = N / W * W; i < N; ++i)
      storeElement<T>(dst.address(k) + i * E, multiplyRow<Tree>(rowAt(i), vector, i));
  }
  return count;
}

// ---------------------------------------------------------------------------------------------------------------------
// Packed matrices of side 4 in 32f with the sum EvenOdd: a lane is a term. Each step adds the pairs that the sum adds,
// and halves what is left.

// t0 + t2 and t1 + t3 of a vector of rows and the one behind; 32-byte vectors hold rows 0 2 | 1 3.
ZELM_INLINE RowLanes<float> evenAndOdd(const char* rows, const RowLanes<float>& x) {
  const RowLanes<float> p = loadRowLanes<float>(rows) * x;
  const RowLanes<float> q = loadRowLanes<float>(rows + rowBytes) * x;
  return pick<0, 1, 4, 5>(p, q) + pick<2, 3, 6, 7>(p, q);
}
ZELM_INLINE RowLanes<float> addOdd(const RowLanes<float>& s, const RowLanes<float>& t) {
  return pick<0, 2, 4, 6>(s, t) + pick<1, 3, 5, 7>(s, t);
}
#if ZELM_ROW_BYTES == 32
// Two objects.
constexpr int foursAtOnce = 2;
ZELM_INLINE RowLanes<float> loadFour(const char* x) {
  const auto half = loadLanes<float, 4>(x);
  return joinHalves(half, half);
}
ZELM_INLINE RowLanes<float> sumFours(const char* first, const char* second, const RowLanes<float>& x,
                                     const RowLanes<float>& y) {
  const auto sums = addOdd(evenAndOdd(first, x), evenAndOdd(second, y)); // rows 0 2 0 2 | 1 3 1 3
  return __builtin_shufflevector(sums, sums, 0, 4, 1, 5, 2, 6, 3, 7);
}
#else
constexpr int foursAtOnce = 1;
ZELM_INLINE RowLanes<float> loadFour(const char* x) {
  return loadRowLanes<float>(x);
}
ZELM_INLINE RowLanes<float> sumFours(const char* matrix, const char*, const RowLanes<float>& x,
                                     const RowLanes<float>&) {
  return addOdd(evenAndOdd(matrix, x), evenAndOdd(matrix + 32, x));
}
#endif

template <class A, class B, class D>
ZELM_INLINE int64_t multiplyFourTerms(const A& stored, const B& src2, const D& dst, int64_t end) {
  RowLanes<float> held{};
  if constexpr (!B::isArray)
    held = lanesOf<RowLanes<float>>([&](int w) { return src2.object(0).load(w % 4); });
  const auto vector = [&](int64_t k) {
    if constexpr (B::isArray)
      return loadFour(src2.address(k));
    else
      return held;
  };
  int64_t k = 0;
  for (; k + foursAtOnce <= end; k += foursAtOnce) {
    const int64_t other = k + foursAtOnce - 1;
    const auto sums = sumFours(stored.address(k), stored.address(other), vector(k), vector(other));
    if constexpr (isPackedObjects<D>)
      storeLanes(dst.address(k), sums);
    else
      forParts(sums, [&](int p, const auto& part) { storeLanes(dst.address(k + p), part); });
  }
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

template <class Operand> constexpr bool isStrided = decltype(std::declval<const Operand&>().object(0))::strided;

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

// On its own and with copies of the operands: registers for all that a batch holds, which no store can change.
template <class Tree, int N, bool transposed, class A, class B, class C, class D>
ZELM_NOINLINE int64_t multiplyPacked(A stored, B src2, C src3, D dst, int64_t count) {
  using T = typename D::Element;
  if constexpr (!A::isArray && N == 3 && rowLaneCount<T> >= 4)
    return multiplyTriples<transposed>(stored, src2, src3, dst, count);
  else if constexpr (!A::isArray && N == 4 && Crosswise<Tree>::inner != 0)
    return multiplyFours<Tree, transposed>(stored, src2, src3, dst, count);
  else if constexpr (!A::isArray && N >= 4)
    return multiplyColumns<Tree, N, transposed>(stored, src2, src3, dst, count);
  else if constexpr (A::isArray && !transposed && N == 4 && std::is_same_v<Tree, EvenOdd>)
    return multiplyFourTerms(stored, src2, dst, count);
  else if constexpr (A::isArray && !transposed && !B::isArray && exchangingRow<Tree, N> < 0)
    return multiplyRowsBySingle<Tree, N>(stored, src2, dst, count);
  else if constexpr (A::isArray && !transposed && B::isArray && sizeof(T) == 8 && N >= rowLaneCount<T>)
    return multiplyRowsByArray<Tree, N>(stored, src2, dst, count);
  else
    return multiplyStraight<Tree, RowLanes<T>, N, transposed>(stored, src2, src3, dst, 0, count);
}

// ---------------------------------------------------------------------------------------------------------------------
// Objects apart whose rows or columns are contiguous

template <class Operand, int N, bool gapless> ZELM_INLINE auto asApart(const Operand& x, int64_t rowStep = 0) {
  if constexpr (Operand::isArray)
    return ApartObjects<Operand, N, gapless>{x, rowStep};
  else
    return x;
}

template <class Tree, int N, bool transposed, class A, class B, class C, class D>
ZELM_NOINLINE int64_t multiplyApart(A stored, B src2, C src3, D dst, int64_t count) {
  using T = typename D::Element;
  if constexpr (A::isArray && B::isArray && !transposed && !isAddend<C>) {
    if constexpr (isGaplessObjects<A> && N == 4 && std::is_same_v<Tree, EvenOdd>)
      return multiplyFourTerms(stored, src2, dst, count);
    else if constexpr (isGaplessObjects<A> && sizeof(T) == 8 && N >= rowLaneCount<T>)
      return multiplyRowsByArray<Tree, N>(stored, src2, dst, count);
  }
  return multiplyStraight<Tree, RowLanes<T>, N, transposed>(stored, src2, src3, dst, 0, count);
}

// `stored` has contiguous rows, and vectors contiguous elements: 1.2 to 2.5 times as fast as object by object where it
// is done. Returns the first object not done.
template <class Tree, int N, bool transposed, class A, class B, class C, class D>
ZELM_INLINE int64_t multiplyAnywhere(const A& stored, const B& src2, const C& src3, const D& dst, int64_t count) {
  const auto second = asApart<B, N, true>(src2);
  const auto addend = asApart<C, N, true>(src3);
  const auto result = asApart<D, N, true>(dst);
  if constexpr (A::isArray) {
    using T = typename D::Element;
    const int64_t rowStep = stored.stride1;
    const bool gapless = rowStep == N * static_cast<int64_t>(sizeof(T));
    // Whether matrices without gaps have a quicker way; triples of floats alone cost as much to load as to multiply.
    constexpr bool onlyGapless = N == 3 && sizeof(T) == 4;
    constexpr bool byTerms = !transposed && B::isArray && !isAddend<C> &&
                             ((N == 4 && std::is_same_v<Tree, EvenOdd>) || (sizeof(T) == 8 && N >= rowLaneCount<T>));
    if constexpr (onlyGapless || byTerms)
      if (gapless)
        return multiplyApart<Tree, N, transposed>(asApart<A, N, true>(stored, rowStep), second, addend, result, count);
    if constexpr (onlyGapless)
      return 0;
    else
      return multiplyApart<Tree, N, transposed>(asApart<A, N, false>(stored, rowStep), second, addend, result, count);
  } else {
    return multiplyApart<Tree, N, transposed>(stored, second, addend, result, count);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Kernels for any strides: what lies in runs all the same

// A matrix of any strides, transposed or not.
template <class T> struct AnyMatrix {
  static constexpr bool isArray = false;
  StridedMatrixView<const T, AnyStep, AnyStep> view;
  ZELM_INLINE const auto& object(int64_t, int64_t) const { return view; }
};

template <class> constexpr bool hasAnyStride = false;
template <class T> constexpr bool hasAnyStride<Vectors<T, AnyStride>> = true;
template <class Operand> ZELM_INLINE bool hasUnitStride(const Operand& x) {
  if constexpr (isAddend<Operand>)
    return x.unit();
  else
    return true;
}
template <class Operand> ZELM_INLINE auto asUnit(const Operand& x) {
  if constexpr (isAddend<Operand>)
    return x.template forKernel<UnitStride>();
  else
    return x;
}

// A single matrix, which may lie as it likes, and packed vectors. Returns the first object not done.
template <class Tree, int N, class A, class B, class C, class D>
ZELM_INLINE int64_t multiplyPackedVectors(const A& src1, const B& src2, const C& src3, const D& dst, int64_t count) {
  using T = typename D::Element;
  if (!hasUnitStride(src2) || !hasUnitStride(src3) || !hasUnitStride(dst))
    return 0;
  const auto source = asUnit(src2);
  const auto addend = asUnit(src3);
  const auto result = asUnit(dst);
  if (!canPack(source, N) || !canPack(addend, N) || !canPack(result, N))
    return 0;
  const auto matrix = src1.object(0, N);
  return multiplyPacked<Tree, N, false>(AnyMatrix<T>{{matrix.origin, matrix.rowStep, matrix.columnStep}},
                                        asPacked<N>(source), asPacked<N>(addend), asPacked<N>(result), count);
}

// Column-major matrices: their columns as rows.
template <class T> ZELM_INLINE auto columnsAsRows(const Matrices<T, AnyStride>& x) {
  return Matrices<T, UnitStride>{x.pointer, x.stride0, static_cast<int32_t>(int64_t{x.stride2}), {}};
}
template <class T> ZELM_INLINE auto columnsAsRows(const MatricesL<T, AnyStride>& x) {
  return MatricesL<T, UnitStride>{x.list, x.shift, static_cast<int32_t>(int64_t{x.stride2}), {}};
}

// The first n elements of a vector.
template <int n, class V> ZELM_INLINE void storeFirst(char* address, const V& v) {
  using T = ElementOf<V>;
  constexpr int W = static_cast<int>(sizeof v / sizeof(T));
  if constexpr (n == W) {
    storeElement(address, v);
  } else if constexpr (n == 1) {
    storeElement<T>(address, v[0]);
  } else if constexpr (W == 4 && sizeof(T) == 4) {
    if constexpr (n == 3)
      storeTriple(address, v);
    else
      storeElement(address, lowBits(v));
  } else {
    storeElement(address, lowHalf(v));
    storeFirst<n - W / 2>(address + sizeof v / 2, highHalf(v));
  }
}

template <int by, class L, int... w> ZELM_INLINE L turned(const L& lanes, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(lanes, lanes, ((w + by) % static_cast<int>(sizeof...(w)))...);
}

// Columns of N elements without gaps, of which the lanes have those from row `from` on: a lane is an element of the
// result, whose sum is a chain. A vector that would reach beyond the object is read before its place and turned.
template <class T, int N, int from = 0>
ZELM_INLINE void multiplyDenseColumns(const char* columns, const char* x, char* dst) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  constexpr int rows = N - from;
  constexpr int W = rows == 1                     ? 1
                    : rows == 2 && sizeof(T) == 8 ? 2
                    : rows > chunkElements<T>     ? rowLaneCount<T>
                                                  : chunkElements<T>;
  using L = typename LanesOrElement<T, W>::type;
  const auto column = [&](auto k) ZELM_BODY {
    constexpr int at = k * N + from;
    constexpr int beyond = larger(0, at + W - N * N);
    const L lanes = loadElement<L>(columns + (at - beyond) * E);
    if constexpr (beyond == 0)
      return lanes;
    else
      return turned<beyond>(lanes, std::make_integer_sequence<int, W>{});
  };
  L sum = column(Fixed<0>{}) * splat<L>(loadElement<T>(x));
  ascending(Fixed<1>{}, Fixed<N>{},
            [&](auto k) ZELM_BODY { sum = sum + column(k) * splat<L>(loadElement<T>(x + k * E)); });
  if constexpr (W < rows)
    multiplyDenseColumns<T, N, from + W>(columns, x, dst); // reads before anything is stored
  if constexpr (W == 1)
    storeElement(dst + from * E, sum);
  else
    storeFirst<smaller(rows, W)>(dst + from * E, sum);
}

// In lanes of their own the elements of so small a result are done before objects are turned into lanes.
template <int N, class A, class B, class D>
ZELM_NOINLINE void multiplyEachByColumns(A matrices, B src2, D dst, int64_t count) {
  using T = typename D::Element;
  for (int64_t k = 0; k < count; ++k)
    multiplyDenseColumns<T, N>(firstOf(matrices, k), src2.object(k).origin, firstOf(dst, k));
}

// Returns the first object not done.
template <class Tree, int N, bool transposed, class A, class B, class C, class D>
ZELM_INLINE int64_t multiplyColumnMajor(const A& stored, const B& src2, const C& src3, const D& dst, int64_t count) {
  if (stored.stride1 != static_cast<int64_t>(sizeof(typename D::Element)) || !hasUnitStride(src2) ||
      !hasUnitStride(src3) || !hasUnitStride(dst))
    return 0;
  const auto columns = columnsAsRows(stored);
  if constexpr (!transposed && std::is_same_v<Tree, Chain> && !isAddend<C>) {
    if (columns.stride1 == N * static_cast<int64_t>(sizeof(typename D::Element))) {
      multiplyEachByColumns<N>(columns, asUnit(src2), asUnit(dst), count);
      return count;
    }
  }
  return multiplyAnywhere<Tree, N, !transposed>(columns, asUnit(src2), asUnit(src3), asUnit(dst), count);
}

// The columns of the matrices are runs, and so are the vectors: lanes are the elements of a result. Of three elements
// they would be too few.
template <class Tree, int N, class A, class B, class C, class D>
ZELM_INLINE bool multiplyColumnRuns(const A& src1, const B& src2, const C&, const D& dst, int64_t count) {
  using T = typename D::Element;
  if constexpr (N > 3 && std::is_same_v<Tree, Chain> && !isAddend<C>) {
    const auto matrices = objectsOf(src1);
    const auto result = objectsOf(dst);
    if (matrices.unitColumns() && result.unitColumns()) {
      multiplyShape<T>(matrices, objectsOf(src2), result, {N, N, 1}, termFirst<T>, count);
      return true;
    }
  }
  return false;
}

template <class Tree, int N, class A, class B, class C, class D>
inline void multiplySide(const A& src1, const B& src2, const C& src3, const D& dst, int32_t count) {
  using T = typename D::Element;
  constexpr bool transposed = isTransposed<A>;
  const auto& stored = asStored(src1);
  int64_t k = 0;
  if constexpr (isInterleaved<D>) {
    if (neighboursOrSingle(src1) && neighboursOrSingle(src2) && neighboursOrSingle(src3) && neighboursOrSingle(dst))
      k = multiplyStraight<Tree, RowLanes<T>, N, transposed>(stored, src2, src3, dst, 0, count);
  } else if constexpr (isStrided<D> && hasUnitRows<D>) {
    bool packed = false;
    if constexpr (isPackable<D>) {
      packed = canPack(src1, N) && canPack(src2, N) && canPack(src3, N) && canPack(dst, N);
      if (packed)
        k = multiplyPacked<Tree, N, transposed>(asPacked<N * N>(stored), asPacked<N>(src2), asPacked<N>(src3),
                                                asPacked<N>(dst), count);
    }
    // By a single matrix short vectors are quick alone.
    if constexpr (A::isArray || (D::isArray && N > 4))
      if (!packed)
        k = multiplyAnywhere<Tree, N, transposed>(stored, src2, src3, dst, count);
  } else if constexpr (isStrided<D>) {
    if constexpr (!A::isArray && hasAnyStride<D>)
      k = multiplyPackedVectors<Tree, N>(src1, src2, src3, dst, count);
    else if constexpr (A::isArray && D::isArray)
      k = multiplyColumnMajor<Tree, N, transposed>(stored, src2, src3, dst, count);
    if (k == 0 && multiplyColumnRuns<Tree, N>(src1, src2, src3, dst, count))
      return;
  }
  multiplyStraight<Tree, T, N, transposed>(stored, src2, src3, dst, k, count);
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
      sum = sum + loadRowLanes<T>(a.address(i, k)) * splat<L>(x.load(k));
  } else {
    // Rows in memory: square blocks of them are transposed in registers.
    constexpr int Q = chunkElements<T>;
    ObjectAddresses<T, const char, rowLaneCount<T>> rows;
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
    using L = RowLanes<T>;
    for (; i + rowLaneCount<T> <= rows; i += rowLaneCount<T>) {
      const L sum = sumRows<L>(a, x, i, terms);
      for (int w = 0; w < rowLaneCount<T>; ++w)
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
  using T = typename D::Element;
  const ProductShape shape{isTransposed<A> ? width : height, isTransposed<A> ? height : width, 1};
  if constexpr (isStrided<D> && !isAddend<C>) {
    // Longer columns that fill vectors are quick by themselves, and few lanes gain nothing.
    const bool isShort = shape.rows <= longestShort && shape.terms <= longestShort;
    if (isShort || (laneCount<T> >= 8 && shape.rows % rowLaneCount<T> != 0 && goesInLanes(shape, count)))
      return multiplyShape<T>(objectsOf(src1), objectsOf(src2), objectsOf(dst), shape, zeroFirst<T>, count);
  }
  for (int32_t k = 0; k < count; ++k)
    multiplyGeneral(src1.object(k, width), src2.object(k), addendObject(src3, k), dst.object(k), shape.rows,
                    shape.terms);
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
ZELM_INLINE ZelStatus multiplyVectors(const A& src1, Size src1Width, Size src1Height, const B& src2, Size, const D& dst,
                                      Count count = 1) {
  return multiplyBatch<Tree>(src1, src1Width, src1Height, src2, NoAddend{}, dst, count);
}

template <class Tree, class A, class B, class C, class D>
ZELM_INLINE ZelStatus multiplyAddVectors(const A& src1, Size src1Width, Size src1Height, const B& src2, Size,
                                         const C& src3, Size, const D& dst, Count count = 1) {
  return multiplyBatch<Tree>(src1, src1Width, src1Height, src2, src3, dst, count);
}

} // namespace zelm
