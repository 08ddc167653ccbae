// Mul, matrix by matrix: the straight-line sizes with rows that are runs, rows of the result in vectors.
#pragma once

#include "zelmmul_mm.h"

// All sizes and transpositions of the factors, of which src1 or src2 may be a single one.
#define ZELM_PRODUCTS_OF_SIDE(T, N, SINGLE)                                                                            \
  template void multiplyUnit<T, N, Which<false, false>, SINGLE>(const Objects<const T>&, const Objects<const T>&,      \
                                                                const Objects<T>&, int64_t, int64_t);                  \
  template void multiplyUnit<T, N, Which<false, true>, SINGLE>(const Objects<const T>&, const Objects<const T>&,       \
                                                               const Objects<T>&, int64_t, int64_t);                   \
  template void multiplyUnit<T, N, Which<true, false>, SINGLE>(const Objects<const T>&, const Objects<const T>&,       \
                                                               const Objects<T>&, int64_t, int64_t);                   \
  template void multiplyUnit<T, N, Which<true, true>, SINGLE>(const Objects<const T>&, const Objects<const T>&,        \
                                                              const Objects<T>&, int64_t, int64_t);
#define ZELM_PRODUCTS_OF_ROWS(T, ...)                                                                                  \
  namespace zelm {                                                                                                     \
  using Single12 = Which<__VA_ARGS__>;                                                                                 \
  ZELM_PRODUCTS_OF_SIDE(T, 3, Single12)                                                                                \
  ZELM_PRODUCTS_OF_SIDE(T, 4, Single12)                                                                                \
  ZELM_PRODUCTS_OF_SIDE(T, 5, Single12)                                                                                \
  ZELM_PRODUCTS_OF_SIDE(T, 6, Single12)                                                                                \
  }

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Parts of vectors

template <int W, class V> ZELM_INLINE auto lowPart(const V& v) {
  if constexpr (W == 1)
    return v[0];
  else if constexpr (W == 2)
    return __builtin_shufflevector(v, v, 0, 1);
  else
    return __builtin_shufflevector(v, v, 0, 1, 2, 3);
}
template <int W, class V> ZELM_INLINE auto highPart(const V& v) {
  if constexpr (W == 1)
    return v[1];
  else if constexpr (W == 2)
    return __builtin_shufflevector(v, v, 2, 3);
  else
    return __builtin_shufflevector(v, v, 4, 5, 6, 7);
}

// The first N of W elements, the others of the vector being anything. `all` tells that the elements behind may be read.
template <class T, int W, int N> ZELM_INLINE Lanes<T, W> loadPart(const char* x, bool all) {
  if constexpr (N < W) {
    if (!all)
      return loadFirst(x, Lanes<T, W>{}, N);
  }
  return loadLanes<T, W>(x);
}

template <class T, int W, int N, class V> ZELM_INLINE void storePart(char* x, const V& v, bool all) {
  if constexpr (W == 1) {
    storeElement<T>(x, v);
  } else if constexpr (N == W) {
    storeLanes(x, v);
  } else if (all) {
    storeLanes(x, v);
  } else if constexpr (N > W / 2) {
    storePart<T, W / 2, W / 2>(x, lowPart<W / 2>(v), false);
    storePart<T, W / 2, N - W / 2>(x + W / 2 * static_cast<int>(sizeof(T)), highPart<W / 2>(v), false);
  } else {
    storePart<T, W / 2, N>(x, lowPart<W / 2>(v), false);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Straight-line sizes, unit strides: rows of the result in vectors

// Objects of side N one behind the other without gaps.
template <class T, int N> struct PackedRun {
  static constexpr int64_t rowStep = N * static_cast<int64_t>(sizeof(T));
  Byte<T>* origin;
  ZELM_INLINE Byte<T>* operator[](int64_t k) const { return origin + k * (N * rowStep); }
};

// How the rows of N elements are cut into vectors of W: the last one is moved back to end with the row, so that some
// columns are computed twice; a row that is shorter than W leaves lanes idle. Where two rows fit the widest vector, two
// rows of an object of side 4 lie in it side by side, or one row of each of two objects. A transposed src2 is turned in
// blocks of 16 bytes a row. A result that goes past the caches lies without gaps, in chunks of 16 bytes.
template <class T, int N, bool turned, bool past = false> struct RowVectors {
  static constexpr bool pastCaches = past;
  static constexpr int widest = turned ? smaller(4, rowLaneCount<T>) : rowLaneCount<T>;
  static constexpr int W = smaller(widest, N <= 4 ? 4 : 8);
  static constexpr int copies = N <= W ? rowLaneCount<T> / W : 1;
  static constexpr int rowsAtOnce = N == 4 ? copies : 1;
  static constexpr int objectsAtOnce = copies / rowsAtOnce;
  static constexpr int perRow = (N + W - 1) / W;
  static constexpr int used = smaller(N, W);
  static constexpr int from(int v) { return larger(0, smaller(v * W, N - W)); }
  using Vector = Lanes<T, W * copies>;
  struct Rows {
    Vector row[N][perRow];
    ZELM_INLINE const Vector& operator()(int i, int v) const { return row[i][v]; }
  };
  // Are the rows of src2 too many for the registers?
  static constexpr bool overflows = N * perRow >= 12;
  static constexpr int rowsTogether = N == 6 ? 3 : smaller(N, 9 / perRow);
};

// The addresses of what lies side by side: objects k, k + 1, ..., the last object of the batch standing in for those
// that the last group lacks; or one object as often.
template <class C, int G> struct Group { C* of[G]; };
template <class Cut, class X> ZELM_INLINE auto groupOf(const X& x, int64_t k, int64_t count) {
  using C = std::remove_pointer_t<decltype(x[k])>;
  if constexpr (Cut::copies == 1)
    return Group<C, 1>{{x[k]}};
  else if constexpr (Cut::objectsAtOnce == 1)
    return Group<C, 2>{{x[k], x[k]}};
  else
    return Group<C, 2>{{x[k], x[k + 1 < count ? k + 1 : k]}};
}

// f(0), or f(0) and f(1) side by side.
template <int G, class F> ZELM_INLINE auto sideBySide(const F& f) {
  if constexpr (G == 1)
    return f(0);
  else
    return joinHalves(f(0), f(1));
}

#if ZELM_ROW_BYTES == 32
// The same four elements in both halves.
ZELM_INLINE Lanes<float, 8> loadTwice(const char* x) {
  return loadTwice(x, Lanes<float, 8>{});
}

// Element c of the first four in its four lanes, element c + further of the second four in theirs.
ZELM_INLINE Lanes<float, 8> spreadInGroups(const Lanes<float, 8>& v, int c, int further) {
  switch (c + 4 * further) {
  case 0:
    return __builtin_shufflevector(v, v, 0, 0, 0, 0, 4, 4, 4, 4);
  case 1:
    return __builtin_shufflevector(v, v, 1, 1, 1, 1, 5, 5, 5, 5);
  case 2:
    return __builtin_shufflevector(v, v, 2, 2, 2, 2, 6, 6, 6, 6);
  case 3:
    return __builtin_shufflevector(v, v, 3, 3, 3, 3, 7, 7, 7, 7);
  case 4:
    return __builtin_shufflevector(v, v, 0, 0, 0, 0, 5, 5, 5, 5);
  case 5:
    return __builtin_shufflevector(v, v, 1, 1, 1, 1, 6, 6, 6, 6);
  default:
    return __builtin_shufflevector(v, v, 2, 2, 2, 2, 7, 7, 7, 7);
  }
}
#endif

// Is everything of a vector of W elements at (i, j) inside an object of N by N elements without gaps?
template <int W, int N> constexpr bool inside(int i, int j) {
  return i * N + j + W <= N * N;
}

// Vector v of stored row i of a group.
template <class T, int N, bool packed, class Cut>
ZELM_INLINE auto loadRow(const Group<const char, Cut::copies>& x, int64_t stride1, int i, int v) {
  if constexpr (Cut::rowsAtOnce == 2)
    return loadTwice(x.of[0] + i * stride1);
  else
    return sideBySide<Cut::copies>([&](int g) __attribute__((always_inline)) {
      return loadPart<T, Cut::W, Cut::used>(x.of[g] + i * stride1 + Cut::from(v) * static_cast<int64_t>(sizeof(T)),
                                            packed && inside<Cut::W, N>(i, Cut::from(v)));
    });
}

// The stored rows of a group as vectors: all of them, or each when it is asked for.
template <class T, int N, bool packed, class Cut>
ZELM_INLINE auto loadRows(const Group<const char, Cut::copies>& x, int64_t stride1) {
  typename Cut::Rows rows;
  ZELM_UNROLL
  for (int i = 0; i < N; ++i)
    ZELM_UNROLL
  for (int v = 0; v < Cut::perRow; ++v)
    rows.row[i][v] = loadRow<T, N, packed, Cut>(x, stride1, i, v);
  return rows;
}
template <class T, int N, bool packed, class Cut> struct RowsInMemory {
  Group<const char, Cut::copies> x;
  int64_t stride1;
  ZELM_INLINE auto operator()(int i, int v) const { return loadRow<T, N, packed, Cut>(x, stride1, i, v); }
};

// The stored columns of a group as vectors.
template <class T, int N, bool packed, class Cut>
ZELM_INLINE auto loadColumns(const Group<const char, Cut::copies>& x, int64_t stride1) {
  constexpr int G = Cut::copies;
  constexpr int W = Cut::W;
  constexpr int Q = chunkElements<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  typename Cut::Rows rows;
  ZELM_UNROLL
  for (int v = 0; v < Cut::perRow; ++v)
    ZELM_UNROLL
  for (int chunk = 0; chunk < N; chunk += Q) {
    const int k = larger(0, smaller(chunk, N - Q));
    // Q elements of stored row j, which is a column of the factor.
    const auto part = [&](int j, int g) __attribute__((always_inline)) {
      const int row = smaller(Cut::from(v) + j, N - 1);
      return loadPart<T, Q, smaller(N, Q)>(x.of[g] + row * stride1 + k * E, packed && inside<Q, N>(row, k));
    };
    typename Cut::Vector turn[Q];
    ZELM_UNROLL
    for (int q = 0; q < Q; ++q) {
      if constexpr (G == 1 && W == 2 * Q)
        turn[q] = joinHalves(part(q, 0), part(q + Q, 0));
      else
        turn[q] = sideBySide<G>([&](int g) __attribute__((always_inline)) { return part(q, g); });
    }
    transposeChunk(turn);
    ZELM_UNROLL
    for (int q = 0; q < Q; ++q)
      if (k + q < N)
        rows.row[k + q][v] = turn[q];
  }
  return rows;
}

// Element (i, k) of src1 in all lanes of a row; of two rows at once, element (i + 1, k) in those of the second.
template <class T, class Cut, bool transposed>
ZELM_INLINE typename Cut::Vector spreadElement(const char* x, int64_t stride1, int i, int k) {
  const auto of = [&](int row) __attribute__((always_inline)) {
    const int r = transposed ? k : row;
    const int c = transposed ? row : k;
    return loadElement<T>(x + r * stride1 + c * static_cast<int64_t>(sizeof(T)));
  };
  if constexpr (Cut::rowsAtOnce == 2)
    return joinHalves(splat<Lanes<T, Cut::W>>(of(i)), splat<Lanes<T, Cut::W>>(of(i + 1)));
  else
    return splat<typename Cut::Vector>(of(i));
}

// A single src1 for all objects of a batch.
template <class T, int N, class Cut, bool transposed> struct SpreadSingle {
  typename Cut::Vector element[N * N];
  ZELM_INLINE SpreadSingle(const char* x, int64_t stride1) {
    ZELM_UNROLL
    for (int i = 0; i < N; i += Cut::rowsAtOnce)
      ZELM_UNROLL
    for (int k = 0; k < N; ++k)
      element[i * N + k] = spreadElement<T, Cut, transposed>(x, stride1, i, k);
  }
  ZELM_INLINE auto operator()(int i, int k) const { return element[i * N + k]; }
};

// One object, its elements read one by one, or, in sixteen-byte vectors, in chunks of a stored row.
template <class T, int N, bool packed, class Cut, bool transposed> struct SpreadOne {
  const char* x;
  int64_t stride1;
  ZELM_INLINE auto operator()(int i, int k) const {
#if ZELM_ROW_BYTES == 16
    constexpr int Q = chunkElements<T>;
    if constexpr ((packed || N >= Q) && (!transposed || N <= 4)) {
      const int r = transposed ? k : i;
      const int c = transposed ? i : k;
      // A chunk that would end behind the object, or the row, is moved back.
      const int before = packed ? r * N : 0;
      const int from = smaller(before + c / Q * Q, (packed ? N * N : N) - Q);
      return spreadLane(loadRowLanes<T>(x + (packed ? 0 : r * stride1) + from * static_cast<int64_t>(sizeof(T))),
                        before + c - from);
    } else
#endif
      return spreadElement<T, Cut, transposed>(x, stride1, i, k);
  }
};

// Two objects side by side.
template <class Cut, bool transposed> struct SpreadObjects {
  typename Cut::Rows rows;
  ZELM_INLINE auto operator()(int i, int k) const {
    return spreadInGroups(rows.row[transposed ? k : i][0], transposed ? i : k, 0);
  }
};

// Two rows of one object side by side, or each stored row of a transposed one twice.
template <class Cut, bool transposed> struct SpreadRows {
  typename Cut::Rows rows;
  ZELM_INLINE auto operator()(int i, int k) const {
    return transposed ? spreadInGroups(rows.row[k][0], i, 1) : spreadInGroups(rows.row[i][0], k, 0);
  }
};
template <class T, int N, bool packed, class Cut>
ZELM_INLINE typename Cut::Rows loadRowPairs(const char* x, int64_t stride1) {
  typename Cut::Rows rows;
  ZELM_UNROLL
  for (int i = 0; i < N; i += 2) {
    if constexpr (packed)
      rows.row[i][0] = loadLanes<T, 2 * Cut::W>(x + i * stride1);
    else
      rows.row[i][0] = joinHalves(loadLanes<T, Cut::W>(x + i * stride1), loadLanes<T, Cut::W>(x + (i + 1) * stride1));
  }
  return rows;
}

// Chunks of 16 bytes past the caches, those before `from` being there already.
template <class V> ZELM_INLINE void streamFrom(char* x, const V& v, int from) {
  if constexpr (sizeof v == 16) {
    streamLanes(x, v);
  } else {
    if (from < 16)
      streamLanes(x, lowHalf(v));
    streamLanes(x + 16, highHalf(v));
  }
}

// Rows i, i + 1, ... are stored in ascending order: what a vector writes behind its row is the next row's. The result's
// group has the addresses of the objects, or of the two rows that are computed at once.
template <class T, int N, bool packed, class Cut, int R>
ZELM_INLINE void storeSums(const typename Cut::Vector (&sum)[R][Cut::perRow], const Group<char, Cut::copies>& d,
                           int64_t stride1, int i) {
  constexpr int W = Cut::W;
  ZELM_UNROLL
  for (int r = 0; r < R; ++r)
    ZELM_UNROLL
  for (int v = 0; v < Cut::perRow; ++v) {
    const int64_t at = (i + r) * stride1 + Cut::from(v) * static_cast<int64_t>(sizeof(T));
    const bool all = packed && inside<W, N>(i + r, Cut::from(v));
    if constexpr (Cut::pastCaches) {
      streamFrom(d.of[0] + at, sum[r][v], (v * W - Cut::from(v)) * static_cast<int>(sizeof(T)));
    } else if constexpr (Cut::copies == 1) {
      storePart<T, W, Cut::used>(d.of[0] + at, sum[r][v], all);
    } else if constexpr (packed && Cut::rowsAtOnce == 2) {
      storeLanes(d.of[0] + at, sum[r][v]);
    } else {
      storePart<T, W, Cut::used>(d.of[0] + at, lowPart<W>(sum[r][v]), all);
      storePart<T, W, Cut::used>(d.of[1] + at, highPart<W>(sum[r][v]), all);
    }
  }
}

template <class T, int N, bool packed, class Cut, class Spread, class Rows>
ZELM_INLINE void multiplyGroup(const Spread& a, const Rows& b, const Group<char, Cut::copies>& d, int64_t stride1) {
  ZELM_UNROLL
  for (int i = 0; i < N; i += Cut::rowsAtOnce) {
    typename Cut::Vector sum[1][Cut::perRow];
    sumProducts<N>(
        sum[0], [&](int k) __attribute__((always_inline)) { return a(i, k); },
        [&](int k, int v) __attribute__((always_inline)) { return b(k, v); });
    storeSums<T, N, packed, Cut, 1>(sum, d, stride1, i);
  }
}

// The same with the rows from i on some at a time.
template <class T, int N, bool packed, class Cut, int i = 0, class Spread, class Rows>
ZELM_INLINE void multiplyTogether(const Spread& a, const Rows& b, const Group<char, Cut::copies>& d, int64_t stride1) {
  constexpr int R = smaller(N - i, Cut::rowsTogether);
  typename Cut::Vector sum[R][Cut::perRow];
  ZELM_UNROLL
  for (int k = 0; k < N; ++k) {
    typename Cut::Vector factor[R];
    ZELM_UNROLL
    for (int r = 0; r < R; ++r)
      factor[r] = a(i + r, k);
    ZELM_UNROLL
    for (int v = 0; v < Cut::perRow; ++v) {
      const auto second = b(k, v);
      ZELM_UNROLL
      for (int r = 0; r < R; ++r)
        sum[r][v] = k == 0 ? factor[r] * second : sum[r][v] + factor[r] * second;
    }
    ZELM_UNROLL
    for (int r = 0; r < R; ++r)
      ZELM_UNROLL
    for (int v = 0; v < Cut::perRow; ++v)
      if constexpr (N > 3)
        holdInRegister(sum[r][v]);
  }
  storeSums<T, N, packed, Cut, R>(sum, d, stride1, i);
  if constexpr (i + R < N)
    multiplyTogether<T, N, packed, Cut, i + R>(a, b, d, stride1);
}

// Six doubles in vectors of four: the two that a vector leaves over go with those of the next row.
template <class T, int N, bool turned>
constexpr bool joinsTails = sizeof(T) == 8 && N == 6 && rowBytes == 32 && !turned;
#if ZELM_ROW_BYTES == 32
struct SixRows {
  const char* x;
  int64_t stride1;
  ZELM_INLINE RowLanes<double> head(int k) const { return loadRowLanes<double>(x + k * stride1); }
  // Twice.
  ZELM_INLINE RowLanes<double> tail(int k) const { return loadTwice(x + k * stride1 + 32, RowLanes<double>{}); }
};

template <class Cut, class Spread>
ZELM_INLINE void multiplySixes(const Spread& a, const SixRows& b, char* d, int64_t stride1) {
  using V = RowLanes<double>;
  V head[6];
  V tails[3]; // of rows 2 p and 2 p + 1
  ZELM_UNROLL
  for (int k = 0; k < 6; ++k) {
    const V secondHead = b.head(k);
    const V secondTail = b.tail(k);
    ZELM_UNROLL
    for (int p = 0; p < 3; ++p) {
      V even = a(2 * p, k);
      V odd = a(2 * p + 1, k);
      // Otherwise compilers see where the lanes come from and load them once more.
      holdInRegister(even);
      holdInRegister(odd);
      const V both = __builtin_shufflevector(even, odd, 0, 1, 6, 7);
      head[2 * p] = k == 0 ? even * secondHead : head[2 * p] + even * secondHead;
      head[2 * p + 1] = k == 0 ? odd * secondHead : head[2 * p + 1] + odd * secondHead;
      tails[p] = k == 0 ? both * secondTail : tails[p] + both * secondTail;
      holdInRegister(head[2 * p]);
      holdInRegister(head[2 * p + 1]);
      holdInRegister(tails[p]);
    }
  }
  ZELM_UNROLL
  for (int i = 0; i < 6; ++i) {
    char* const row = d + i * stride1;
    const auto tail = i % 2 == 0 ? lowHalf(tails[i / 2]) : highHalf(tails[i / 2]);
    if constexpr (Cut::pastCaches)
      streamFrom(row, head[i], 0);
    else
      storeLanes(row, head[i]);
    putLanes<Cut::pastCaches>(row + 32, tail);
  }
}
#endif

// Packed: the rows of every object follow each other without gaps, in all operands. The operands are copies, which
// stores to the result cannot change.
template <class T, int N, class Transposed12, class Single, bool packed, bool past = false, class A, class B, class D>
ZELM_INLINE void multiplyObjects(const A src1, const B src2, const D dst, int64_t count) {
  using Cut = RowVectors<T, N, Transposed12::src2, past>;
  constexpr bool transposed = Transposed12::src1;
  // The sums of some rows of the result run side by side, and a vector of src2 is loaded once for all of them, where
  // its rows overflow the registers.
  constexpr bool together = Cut::overflows && !Single::src2 && !Transposed12::src2;
  constexpr int64_t step = Cut::objectsAtOnce;
  constexpr int64_t row = N * static_cast<int64_t>(sizeof(T));
  const auto firstOf = [&](int64_t k) __attribute__((always_inline)) {
    const int64_t stride1 = packed ? row : src1.rowStep;
    if constexpr (Single::src1)
      return SpreadSingle<T, N, Cut, transposed>(src1[0], stride1);
    else if constexpr (Cut::copies == 1)
      return SpreadOne<T, N, packed, Cut, transposed>{src1[k], stride1};
    else if constexpr (Cut::rowsAtOnce == 2 && !transposed)
      return SpreadRows<Cut, transposed>{loadRowPairs<T, N, packed, Cut>(src1[k], stride1)};
    else if constexpr (Cut::rowsAtOnce == 2)
      return SpreadRows<Cut, transposed>{loadRows<T, N, packed, Cut>(groupOf<Cut>(src1, k, count), stride1)};
    else
      return SpreadObjects<Cut, transposed>{loadRows<T, N, packed, Cut>(groupOf<Cut>(src1, k, count), stride1)};
  };
  const auto secondOf = [&](int64_t k) __attribute__((always_inline)) {
    const int64_t stride1 = packed ? row : src2.rowStep;
    const auto group = groupOf<Cut>(src2, k, Single::src2 ? 1 : count);
#if ZELM_ROW_BYTES == 32
    if constexpr (joinsTails<T, N, Transposed12::src2>)
      return SixRows{group.of[0], stride1};
    else
#endif
        if constexpr (Transposed12::src2)
      return loadColumns<T, N, packed, Cut>(group, stride1);
    else if constexpr (together)
      return RowsInMemory<T, N, packed, Cut>{group, stride1};
    else
      return loadRows<T, N, packed, Cut>(group, stride1);
  };
  const auto multiplyAt = [&](int64_t k, const auto& a, const auto& b) __attribute__((always_inline)) {
    const int64_t stride1 = packed ? row : dst.rowStep;
    auto group = groupOf<Cut>(dst, k, count);
    if constexpr (Cut::rowsAtOnce == 2)
      group.of[1] += stride1;
#if ZELM_ROW_BYTES == 32
    if constexpr (joinsTails<T, N, Transposed12::src2>)
      multiplySixes<Cut>(a, b, group.of[0], stride1);
    else
#endif
        if constexpr (together)
      multiplyTogether<T, N, packed, Cut>(a, b, group, stride1);
    else
      multiplyGroup<T, N, packed, Cut>(a, b, group, stride1);
  };
  // What a single operand's form keeps of it is made once.
  if constexpr (Single::src1) {
    const auto a = firstOf(0);
    for (int64_t k = 0; k < count; k += step)
      multiplyAt(k, a, secondOf(k));
  } else if constexpr (Single::src2) {
    const auto b = secondOf(0);
    for (int64_t k = 0; k < count; k += step)
      multiplyAt(k, firstOf(k), b);
  } else {
    for (int64_t k = 0; k < count; k += step)
      multiplyAt(k, firstOf(k), secondOf(k));
  }
}

// The lanes before `from` of a, the others of b.
template <int from, class V, int... w> ZELM_INLINE V joinAt(const V& a, const V& b, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(a, b, (w < from ? w : w + static_cast<int>(sizeof...(w)))...);
}

// The triples at x, x + 9 elements, ... side by side: element i of triple o is element 3 * o + i, of which lane 0 has
// `first`. Whole vectors are loaded around the triples; they stay between x and the end of W packed objects, whichever
// of their rows x is.
template <class T, int first, int o = first / 3> ZELM_INLINE RowLanes<T> loadStoredRows(const char* x) {
  constexpr int W = rowLaneCount<T>;
  constexpr int last = (first + W - 1) / 3;
  constexpr int begin = last - (o - first / 3);
  const auto lanes = loadRowLanes<T>(x + (6 * begin + first) * static_cast<int>(sizeof(T)));
  if constexpr (begin == first / 3)
    return lanes;
  else
    return joinAt<3 * begin - first>(loadStoredRows<T, first, o + 1>(x), lanes, std::make_integer_sequence<int, W>{});
}

// W packed objects of side 3 and one src2 for all: the rows of the result in lanes.
template <class T, class Transposed12, bool past, int v = 0>
ZELM_INLINE void multiplyTurned(const char* src1, const Tile<RowLanes<T>, 3, 3>& second, char* dst) {
  constexpr int W = rowLaneCount<T>;
  constexpr auto E = static_cast<int>(sizeof(T));
  Tile<RowLanes<T>, 1, 3> first;
  if constexpr (Transposed12::src1) {
    ZELM_UNROLL
    for (int k = 0; k < 3; ++k)
      first(0, k) = loadStoredRows<T, v * W>(src1 + 3 * k * E);
  } else {
    first = loadTurnedTriples<T>(src1 + v * 3 * rowBytes);
  }
  Tile<RowLanes<T>, 1, 3> result;
  sumProducts<3>(
      result.element, [&](int k) __attribute__((always_inline)) { return first(0, k); },
      [&](int k, int j) __attribute__((always_inline)) { return second(k, j); });
  if constexpr (Transposed12::src1)
    storeTriples<past>(dst + v * 3 * rowBytes, result);
  else
    storeTurnedTriples<T, past>(dst + v * 3 * rowBytes, result);
  if constexpr (v < 2)
    multiplyTurned<T, Transposed12, past, v + 1>(src1, second, dst);
}

// The same with lanes in the order of memory: the rows of src1 one behind the other, at least as many as a vector has
// lanes.
template <class T, bool transposed, bool past>
ZELM_INLINE void multiplySpread(const char* src1, const char* src2, char* dst, int64_t rows) {
  constexpr int W = rowLaneCount<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  const TripleFactors<T> second(
      [=](int j, int k) { return loadElement<T>(src2 + (transposed ? 3 * j + k : 3 * k + j) * E); });
  for (int64_t r = 0; r < rows; r += W) {
    const int64_t at = (r + W <= rows ? r : rows - W) * 3 * E;
    putLanes<past>(dst + at, second.template multiply<0>(src1 + at));
    putLanes<past>(dst + at + rowBytes, second.template multiply<1>(src1 + at));
    putLanes<past>(dst + at + 2 * rowBytes, second.template multiply<2>(src1 + at));
  }
}

// At least as many objects as a vector has lanes; the last ones are taken once more to end with the batch.
template <class T, class Transposed12, bool past = false>
ZELM_NOINLINE void multiplyTriples(const char* src1, const char* src2, char* dst, int64_t count) {
  constexpr int64_t W = rowLaneCount<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  if constexpr (W >= 4 && !Transposed12::src1) {
    multiplySpread<T, Transposed12::src2, past>(src1, src2, dst, 3 * count);
  } else {
    Tile<RowLanes<T>, 3, 3> second;
    ZELM_UNROLL
    for (int k = 0; k < 3; ++k)
      ZELM_UNROLL
    for (int j = 0; j < 3; ++j)
      second(k, j) = splat<RowLanes<T>>(loadElement<T>(src2 + (Transposed12::src2 ? 3 * j + k : 3 * k + j) * E));
    for (int64_t k = 0; k < count; k += W) {
      const int64_t at = (k + W <= count ? k : count - W) * 9 * E;
      multiplyTurned<T, Transposed12, past>(src1 + at, second, dst + at);
    }
  }
}

#if ZELM_ROW_BYTES == 16
// Transposed objects in vectors of four floats: the nine elements of the result as they lie, four, four and one. A
// fifth of the time less than rows in lanes take.
template <bool transposedSrc2>
ZELM_NOINLINE void multiplyNines(const char* src1, const char* src2, char* dst, int64_t count) {
  constexpr int E = sizeof(float);
  RowLanes<float> secondOf0123[3];
  RowLanes<float> secondOf4567[3];
  float secondOf8[3];
  ZELM_UNROLL
  for (int k = 0; k < 3; ++k) {
    const auto b = [&](int j) { return loadElement<float>(src2 + (transposedSrc2 ? 3 * j + k : 3 * k + j) * E); };
    secondOf0123[k] = RowLanes<float>{b(0), b(1), b(2), b(0)};
    secondOf4567[k] = RowLanes<float>{b(1), b(2), b(0), b(1)};
    secondOf8[k] = b(2);
  }
  for (int64_t object = 0; object < count; ++object) {
    const char* x = src1 + object * 9 * E;
    char* d = dst + object * 9 * E;
    RowLanes<float> firstOf0123[3];
    RowLanes<float> firstOf4567[3];
    float firstOf8[3];
    ZELM_UNROLL
    for (int k = 0; k < 3; ++k) {
      // Stored row k, of the last one with the element before it.
      const auto row = loadRowLanes<float>(x + (k < 2 ? 3 * k : 5) * E);
      firstOf0123[k] =
          k < 2 ? __builtin_shufflevector(row, row, 0, 0, 0, 1) : __builtin_shufflevector(row, row, 1, 1, 1, 2);
      firstOf4567[k] =
          k < 2 ? __builtin_shufflevector(row, row, 1, 1, 2, 2) : __builtin_shufflevector(row, row, 2, 2, 3, 3);
      firstOf8[k] = loadElement<float>(x + (3 * k + 2) * E);
    }
    const auto sum = [](const auto& a, const auto& b) __attribute__((always_inline)) {
      return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
    };
    storeLanes(d, sum(firstOf0123, secondOf0123));
    storeLanes(d + 4 * E, sum(firstOf4567, secondOf4567));
    storeElement(d + 8 * E, sum(firstOf8, secondOf8));
  }
}
#endif

// Where the rows of the result go in lanes.
template <int N, class Single> constexpr bool byTriples = N == 3 && Single::src2;

// The objects of every operand that is not a single one follow each other without gaps.
template <class T, int N, class Transposed12, class Single>
ZELM_NOINLINE void multiplyRun(const char* src1, const char* src2, char* dst, int64_t count) {
  if constexpr (byTriples<N, Single>) {
    if (count >= rowLaneCount<T>) {
#if ZELM_ROW_BYTES == 16
      if constexpr (sizeof(T) == 4 && Transposed12::src1) {
        multiplyNines<Transposed12::src2>(src1, src2, dst, count);
        return;
      }
#endif
      multiplyTriples<T, Transposed12>(src1, src2, dst, count);
      return;
    }
  }
  multiplyObjects<T, N, Transposed12, Single, true>(PackedRun<const T, N>{src1}, PackedRun<const T, N>{src2},
                                                    PackedRun<T, N>{dst}, count);
}

// The first of consecutive objects that starts at a multiple of `boundary`, or -1.
template <int64_t objectBytes, int64_t boundary> ZELM_INLINE int64_t objectsToBoundary(const char* x) {
  for (int64_t k = 0; k < boundary; ++k)
    if (reinterpret_cast<std::uintptr_t>(x + k * objectBytes) % boundary == 0)
      return k;
  return -1;
}

// A result far larger than the caches is written past them, where it is made in chunks that lie on their boundaries.
// Others are left to the caches: collecting them first costs more than it saves.
template <class T, int N, class Transposed12, class Single>
ZELM_NOINLINE void multiplyStreaming(const char* src1, const char* src2, char* dst, int64_t count) {
  constexpr int64_t row = N * static_cast<int64_t>(sizeof(T));
  constexpr int64_t object = N * row;
  constexpr bool triples = byTriples<N, Single>;
  const auto first = [=](int64_t k) { return src1 + (Single::src1 ? 0 : k * object); };
  const auto second = [=](int64_t k) { return src2 + (Single::src2 ? 0 : k * object); };
  const auto multiplyCached = [=](int64_t from, int64_t end) {
    multiplyRun<T, N, Transposed12, Single>(first(from), second(from), dst + from * object, end - from);
  };
  if constexpr (triples || row % 16 == 0) {
    constexpr int64_t boundary = triples ? rowBytes : 16;
    const int64_t begin = objectsToBoundary<object, boundary>(dst);
    if (begin >= 0) {
      const int64_t end = triples ? count - (count - begin) % rowLaneCount<T> : count;
      multiplyCached(0, begin);
      if constexpr (triples)
        multiplyTriples<T, Transposed12, true>(first(begin), second(begin), dst + begin * object, end - begin);
      else
        multiplyObjects<T, N, Transposed12, Single, true, true>(PackedRun<const T, N>{first(begin)},
                                                                PackedRun<const T, N>{second(begin)},
                                                                PackedRun<T, N>{dst + begin * object}, end - begin);
      endStreams();
      multiplyCached(end, count);
      return;
    }
  }
  multiplyCached(0, count);
}

template <class T, int N, class Transposed12, class Single>
void multiplyUnit(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst, int64_t count,
                  int64_t whole) {
  constexpr int64_t row = N * static_cast<int64_t>(sizeof(T));
  const auto isRun = [count](const auto& x, bool single) {
    return single || (x.list == nullptr && (x.stride0 == N * row || count == 1));
  };
  if (src1.rowStep != row || src2.rowStep != row || dst.rowStep != row)
    multiplyObjects<T, N, Transposed12, Single, false>(src1, src2, dst, count);
  else if (!isRun(src1, Single::src1) || !isRun(src2, Single::src2) || !isRun(dst, false))
    multiplyObjects<T, N, Transposed12, Single, true>(src1, src2, dst, count);
  else if (isStreamed<T>(dst.origin, N * N * count, N * N * whole))
    multiplyStreaming<T, N, Transposed12, Single>(src1.origin, src2.origin, dst.origin, count);
  else
    multiplyRun<T, N, Transposed12, Single>(src1.origin, src2.origin, dst.origin, count);
}

} // namespace zelm
