// Products of few elements, objects without gaps: one object a lane.
#include "zelmshortproduct.h"

#include "zelmmulv.h"

namespace zelm {
namespace {

// N elements of each object, which are N vectors.
template <int first, class V, int... w>
ZELM_INLINE V everyOther(const V& p, const V& q, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(p, q, (first + 2 * w)...);
}
template <int begin, class V, int... w>
ZELM_INLINE V alternate(const V& x, const V& y, std::integer_sequence<int, w...>) {
  constexpr int W = sizeof...(w);
  return __builtin_shufflevector(x, y, (begin + w / 2 + w % 2 * W)...);
}
template <class T, int N>
ZELM_INLINE Tile<RowLanes<T>, 1, N> loadSideBySide(const PackedObjects<const T, N>& x, int64_t k) {
  const char* const at = x.address(k);
  if constexpr (N == 1) {
    return {{loadRowLanes<T>(at)}};
  } else if constexpr (N == 2) {
    const auto p = loadRowLanes<T>(at);
    const auto q = loadRowLanes<T>(at + rowBytes);
    const std::make_integer_sequence<int, rowLaneCount<T>> lanes;
    return {{everyOther<0>(p, q, lanes), everyOther<1>(p, q, lanes)}};
  } else {
    return loadPackedVectors(x, k);
  }
}
template <class T, int N>
ZELM_INLINE void storeSideBySide(const PackedObjects<T, N>& x, int64_t k, const Tile<RowLanes<T>, 1, N>& tile) {
  char* const at = x.address(k);
  if constexpr (N == 1) {
    storeLanes(at, tile(0, 0));
  } else if constexpr (N == 2) {
    constexpr int W = rowLaneCount<T>;
    const std::make_integer_sequence<int, W> lanes;
    storeLanes(at, alternate<0>(tile(0, 0), tile(0, 1), lanes));
    storeLanes(at + rowBytes, alternate<W / 2>(tile(0, 0), tile(0, 1), lanes));
  } else {
    storePackedVectors(x, k, tile);
  }
}

template <class T> struct ShortProducts {
  const Objects<const T>& src1;
  const Objects<const T>& src2;
  const Objects<T>& dst;
  T first;
  int64_t count;
};

// f(e, lanes of element e) for all elements of the objects, as they lie.
template <class T, int N, class F>
ZELM_INLINE void forElements(const PackedObjects<const T, N>& x, int64_t k, const F& f) {
  constexpr int Q = chunkElements<T>;
  if constexpr (N <= 3) {
    const auto tile = loadSideBySide(x, k);
    ZELM_UNROLL
    for (int e = 0; e < N; ++e)
      f(e, tile(0, e));
  } else {
    const auto objects = x.addresses(k);
    ZELM_UNROLL
    for (int e = 0; e < N; e += Q) {
      const int from = smaller(e, N - Q);
      RowLanes<T> chunk[Q];
      loadChunk<T>(objects, from * static_cast<int64_t>(sizeof(T)), chunk);
      ZELM_UNROLL
      for (int q = e - from; q < Q; ++q)
        f(from + q, chunk[q]);
    }
  }
}

// How the first factors lie: row by row, column by column, or as they like, one for all objects.
enum class First { rows, columns, single };

template <class T, int R, int K, int C, First lie> void multiplyKnown(const ShortProducts<T>& of) {
  using L = RowLanes<T>;
  constexpr int64_t W = rowLaneCount<T>;
  constexpr bool single = lie == First::single;
  constexpr bool byColumns = lie == First::columns;
  const auto element = [](const Objects<const T>& x, int i, int j)
                           ZELM_BODY { return splat<L>(loadElement<T>(x.origin + i * x.rowStep + j * x.columnStep)); };
  L held[single ? R * K : 1];
  for (int e = 0; single && e < R * K; ++e)
    held[e] = element(of.src1, e / K, e % K);
  Tile<L, 1, K * C> second;
  for (int e = 0; of.src2.single && e < K * C; ++e)
    second(0, e) = element(of.src2, e / C, e % C);
  const L start = splat<L>(of.first);
  for (int64_t block = 0; block < of.count; block += W) {
    const int64_t k = block + W <= of.count ? block : of.count - W;
    if (!of.src2.single)
      second = loadSideBySide(PackedObjects<const T, K * C>{of.src2.origin}, k);
    Tile<L, 1, R * C> sum;
    const auto add = [&](int e, const L& factor) ZELM_BODY {
      const int row = byColumns ? e % R : e / K;
      const int term = byColumns ? e / R : e % K;
      ZELM_UNROLL
      for (int j = 0; j < C; ++j) {
        L& each = sum(0, row * C + j);
        each = (term == 0 ? start : each) + factor * second(0, term * C + j);
      }
    };
    if constexpr (single) {
      ZELM_UNROLL
      for (int e = 0; e < R * K; ++e)
        add(e, held[e]);
    } else {
      forElements(PackedObjects<const T, R * K>{of.src1.origin}, k, add);
    }
    storeSideBySide(PackedObjects<T, R * C>{of.dst.origin}, k, sum);
  }
}

template <First lie, class T, int... i> auto shortColumns(const ProductShape& shape, std::integer_sequence<int, i...>) {
  static constexpr void (*table[])(const ShortProducts<T>&) = {
      multiplyKnown<T, i / longestShort + 1, i % longestShort + 1, 1, lie>...};
  return table[(shape.rows - 1) * longestShort + shape.terms - 1];
}

// Extents of 2 and 3.
template <class T, int... i> auto shortSquares(const ProductShape& shape, std::integer_sequence<int, i...>) {
  static constexpr void (*table[])(const ShortProducts<T>&) = {
      multiplyKnown<T, 2 + i / 4, 2 + i / 2 % 2, 2 + i % 2, First::rows>...};
  return table[(shape.rows - 2) * 4 + (shape.terms - 2) * 2 + shape.columns - 2];
}

// Do the objects lie one behind the other without gaps?
template <class T> bool withoutGaps(const Objects<T>& x, int rows, int columns) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  return x.single || ((columns == 1 || x.unitRows()) && (rows == 1 || x.rowStep == columns * E) && x.list == nullptr &&
                      x.stride0 == rows * columns * E);
}

} // namespace

template <class T>
bool multiplyShort(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                   const ProductShape& shape, T first, int64_t count) {
  if (shape.rows == 1 && shape.columns > 1)
    return multiplyShort<T>(src2.transposed(), src1.transposed(), dst.transposed(), shape.transposed(), first, count);
  if (count < rowLaneCount<T> || !withoutGaps(src2, shape.terms, shape.columns) ||
      !withoutGaps(dst, shape.rows, shape.columns))
    return false;
  const ShortProducts<T> products{src1, src2, dst, first, count};
  const bool byRows = withoutGaps(src1, shape.rows, shape.terms);
  const auto isSide = [](int extent) { return extent == 2 || extent == 3; };
  const std::make_integer_sequence<int, longestShort * longestShort> pairs;
  if (shape.columns > 1) {
    if (!byRows || src1.single || !isSide(shape.rows) || !isSide(shape.terms) || !isSide(shape.columns))
      return false;
    shortSquares<T>(shape, std::make_integer_sequence<int, 8>{})(products);
  } else if (shape.rows > longestShort || shape.terms > longestShort) {
    return false;
  } else if (src1.single) {
    shortColumns<First::single, T>(shape, pairs)(products);
  } else if (byRows) {
    shortColumns<First::rows, T>(shape, pairs)(products);
  } else if (shape.rows <= 3 && withoutGaps(src1.transposed(), shape.terms, shape.rows)) {
    // More rows fill a vector as they lie.
    shortColumns<First::columns, T>(shape, std::make_integer_sequence<int, 3 * longestShort>{})(products);
  } else {
    return false;
  }
  return true;
}

#define ZELM_SHORT_PRODUCTS(T)                                                                                         \
  template bool multiplyShort(const Objects<const T>&, const Objects<const T>&, const Objects<T>&,                     \
                              const ProductShape&, T, int64_t);
ZELM_SHORT_PRODUCTS(float)
ZELM_SHORT_PRODUCTS(double)

} // namespace zelm
