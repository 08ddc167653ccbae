// Mul, matrix by matrix: dst(i, j) is the sum of src1(i, k) * src2(k, j) over ascending k.
//
// Each result element is one running sum in the element type, whatever the path: vectors run over result columns or
// over objects. The straight-line sizes start the sum from the first product, the general loop from +0.0, which shows
// in the sign of a zero alone.
#pragma once

#include "zelmmulsignature.h"
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

// An operand of the standard or list layout whose rows are runs; a single one is every object.
template <class T> struct Objects {
  Byte<T>* origin;
  T* const* list;  // or null
  int64_t stride0; // with a list the shift
  int64_t stride1;
  ZELM_INLINE Byte<T>* operator[](int64_t k) const {
    return list == nullptr ? origin + k * stride0 : reinterpret_cast<Byte<T>*>(list[k]) + stride0;
  }
};
template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const Matrix<T, S>& x) {
  return {reinterpret_cast<Byte<T>*>(x.pointer), nullptr, 0, x.stride1};
}
template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const Matrices<T, S>& x) {
  return {reinterpret_cast<Byte<T>*>(x.pointer), nullptr, x.stride0, x.stride1};
}
template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const MatricesL<T, S>& x) {
  return {nullptr, x.list, x.shift, x.stride1};
}

// Objects of side N one behind the other without gaps.
template <class T, int N> struct PackedRun {
  static constexpr int64_t stride1 = N * static_cast<int64_t>(sizeof(T));
  Byte<T>* origin;
  ZELM_INLINE Byte<T>* operator[](int64_t k) const { return origin + k * (N * stride1); }
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

template <bool first, bool second> struct Which {
  static constexpr bool src1 = first;
  static constexpr bool src2 = second;
};

// Packed: the rows of every object follow each other without gaps, in all operands. The operands are copies, which
// stores to the result cannot change.
template <class T, int N, class Transposed12, class Single, bool packed, bool past = false, class A, class B, class D>
ZELM_INLINE void multiplyObjects(const A src1, const B src2, const D dst, int64_t count) {
  using Cut = RowVectors<T, N, Transposed12::src2, past>;
  constexpr bool transposed = Transposed12::src1;
  // The sums of some rows of the result run side by side, and a vector of src2 is loaded once for all of them, where
  // its rows overflow the registers, and where that has been measured to be quicker.
  constexpr bool quickTogether = rowBytes == 16 && N == 4 && (sizeof(T) == 4 || Single::src1);
  constexpr bool together = (Cut::overflows && !Single::src2 && !Transposed12::src2) || quickTogether;
  constexpr int64_t step = Cut::objectsAtOnce;
  constexpr int64_t row = N * static_cast<int64_t>(sizeof(T));
  const auto firstOf = [&](int64_t k) __attribute__((always_inline)) {
    const int64_t stride1 = packed ? row : src1.stride1;
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
    const int64_t stride1 = packed ? row : src2.stride1;
    const auto group = groupOf<Cut>(src2, k, Single::src2 ? 1 : count);
#if ZELM_ROW_BYTES == 32
    if constexpr (joinsTails<T, N, Transposed12::src2>)
      return SixRows{group.of[0], stride1};
    else
#endif
        if constexpr (Transposed12::src2)
      return loadColumns<T, N, packed, Cut>(group, stride1);
    else if constexpr (together && !Single::src2)
      return RowsInMemory<T, N, packed, Cut>{group, stride1};
    else
      return loadRows<T, N, packed, Cut>(group, stride1);
  };
  const auto multiplyAt = [&](int64_t k, const auto& a, const auto& b) __attribute__((always_inline)) {
    const int64_t stride1 = packed ? row : dst.stride1;
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
// Transposed objects in vectors of four floats: the nine elements of the result as they lie, four, four and one.
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
ZELM_NOINLINE void multiplyUnit(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                                int64_t count, int64_t whole) {
  constexpr int64_t row = N * static_cast<int64_t>(sizeof(T));
  const auto isRun = [count](const auto& x, bool single) {
    return single || (x.list == nullptr && (x.stride0 == N * row || count == 1));
  };
  if (src1.stride1 != row || src2.stride1 != row || dst.stride1 != row)
    multiplyObjects<T, N, Transposed12, Single, false>(src1, src2, dst, count);
  else if (!isRun(src1, Single::src1) || !isRun(src2, Single::src2) || !isRun(dst, false))
    multiplyObjects<T, N, Transposed12, Single, true>(src1, src2, dst, count);
  else if (isStreamed<T>(dst.origin, N * N * count, N * N * whole))
    multiplyStreaming<T, N, Transposed12, Single>(src1.origin, src2.origin, dst.origin, count);
  else
    multiplyRun<T, N, Transposed12, Single>(src1.origin, src2.origin, dst.origin, count);
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
template <class T, int N, class Single, int i = 0>
ZELM_INLINE void multiplyWalking(const Walk<const char>& src1, const Walk<const char>& src2, const Walk<char>& dst,
                                 int64_t offset) {
  constexpr int R = smaller(N - i, 2);
  const auto rowOfFirst = [&](int r) { return src1.from((i + r) * N, Single::src1 ? 0 : offset); };
  Walk<const char> first[2] = {rowOfFirst(0), rowOfFirst(R - 1)};
  Walk<const char> second = src2.from(0, Single::src2 ? 0 : offset);
  RowLanes<T> sum[R][N];
  ZELM_UNROLL
  for (int k = 0; k < N; ++k) {
    RowLanes<T> factor[R];
    ZELM_UNROLL
    for (int r = 0; r < R; ++r)
      factor[r] = loadNeighbours<T, Single::src1>(first[r].next(), 0);
    ZELM_UNROLL
    for (int j = 0; j < N; ++j) {
      const RowLanes<T> b = loadNeighbours<T, Single::src2>(second.next(), 0);
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
    multiplyWalking<T, N, Single, i + R>(src1, src2, dst, offset);
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
        multiplyWalking<T, N, Single>(a, b, d, (k + W <= count ? k : count - W) * E);
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

// ---------------------------------------------------------------------------------------------------------------------
// General path: any sizes; every sum starts from +0.0

// Rows k, k + 1, ... of W neighbouring columns from j on, of a factor whose stored rows are its columns.
template <class V> struct Turned { V row[chunkElements<typename LaneTraits<V>::Element>]; };
template <int W, class B> ZELM_INLINE auto turnColumns(const B& b, int64_t k, int64_t j) {
  using T = typename B::Element;
  constexpr int Q = chunkElements<T>;
  Turned<Lanes<T, W>> turned;
  ZELM_UNROLL
  for (int q = 0; q < Q; ++q) {
    if constexpr (W == 2 * Q)
      turned.row[q] = joinHalves(loadLanes<T, Q>(b.address(k, j + q)), loadLanes<T, Q>(b.address(k, j + q + Q)));
    else
      turned.row[q] = loadLanes<T, Q>(b.address(k, j + q));
  }
  transposeChunk(turned.row);
  return turned;
}

// R rows of the result from row i on, V vectors of W columns from columns j[] on.
template <int W, int R, int V, class A, class B, class D>
ZELM_INLINE void multiplyPanel(const A& a, const B& b, const D& d, int64_t i, const int64_t (&j)[V], int64_t n) {
  using T = typename D::Element;
  using L = std::conditional_t<W == 1, T, Lanes<T, W>>;
  constexpr int Q = chunkElements<T>;
  L sum[R * V] = {};
  const auto add = [&](int64_t k, const L* row) __attribute__((always_inline)) {
    ZELM_UNROLL
    for (int r = 0; r < R; ++r) {
      const L factor = splat<L>(a.load(i + r, k));
      ZELM_UNROLL
      for (int v = 0; v < V; ++v)
        sum[r * V + v] = sum[r * V + v] + factor * row[v];
    }
  };
  int64_t k = 0;
  if constexpr (W > 1 && !B::unitRows) {
    for (; k + Q <= n; k += Q) {
      L rows[Q][V];
      ZELM_UNROLL
      for (int v = 0; v < V; ++v) {
        const auto turned = turnColumns<W>(b, k, j[v]);
        ZELM_UNROLL
        for (int q = 0; q < Q; ++q)
          rows[q][v] = turned.row[q];
      }
      ZELM_UNROLL
      for (int q = 0; q < Q; ++q)
        add(k + q, rows[q]);
    }
  }
  for (; k < n; ++k) {
    L row[V];
    ZELM_UNROLL
    for (int v = 0; v < V; ++v) {
      if constexpr (W == 1) {
        row[v] = b.load(k, j[v]);
      } else if constexpr (B::unitRows) {
        row[v] = loadLanes<T, W>(b.address(k, j[v]));
      } else {
        L gathered{};
        ZELM_UNROLL
        for (int w = 0; w < W; ++w)
          gathered[w] = b.load(k, j[v] + w);
        row[v] = gathered;
      }
    }
    add(k, row);
  }
  ZELM_UNROLL
  for (int r = 0; r < R; ++r)
    ZELM_UNROLL
  for (int v = 0; v < V; ++v) {
    if constexpr (W == 1)
      d.store(i + r, j[v], sum[r * V + v]);
    else
      storeLanes(d.address(i + r, j[v]), sum[r * V + v]);
  }
}

// All rows of a panel of columns, four at a time.
template <int W, int V, class A, class B, class D>
ZELM_INLINE void multiplyPanels(const A& a, const B& b, const D& d, const int64_t (&j)[V], int64_t rows, int64_t n) {
  int64_t i = 0;
  for (; i + 4 <= rows; i += 4)
    multiplyPanel<W, 4, V>(a, b, d, i, j, n);
  switch (rows - i) {
  case 3:
    multiplyPanel<W, 3, V>(a, b, d, i, j, n);
    break;
  case 2:
    multiplyPanel<W, 2, V>(a, b, d, i, j, n);
    break;
  case 1:
    multiplyPanel<W, 1, V>(a, b, d, i, j, n);
    break;
  default:
    break;
  }
}

// Vectors of the widest W that the columns fill, two at a time; the last one is moved back to end with the row.
template <int W, class A, class B, class D>
ZELM_INLINE void multiplyWide(const A& a, const B& b, const D& d, int64_t rows, int64_t columns, int64_t n) {
  if constexpr (W > 1) {
    if (columns < W)
      return multiplyWide<(W > chunkElements<typename D::Element> ? W / 2 : 1)>(a, b, d, rows, columns, n);
  }
  const auto from = [columns](int64_t j) { return j + W <= columns ? j : columns - W; };
  int64_t j = 0;
  for (; j + W < columns; j += 2 * W)
    multiplyPanels<W, 2>(a, b, d, {j, from(j + W)}, rows, n);
  if (j < columns)
    multiplyPanels<W, 1>(a, b, d, {from(j)}, rows, n);
}

template <class A, class B, class D>
ZELM_NOINLINE void multiplyGeneral(const A& a, const B& b, const D& d, int64_t rows, int64_t columns, int64_t n) {
  constexpr bool vectors = D::unitRows && (B::unitRows || B::unitColumns);
  multiplyWide<vectors ? rowLaneCount<typename D::Element> : 1>(a, b, d, rows, columns, n);
}

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
      multiplyNeighboursGeneral<SingleSources<A, B, D>>(src1.object(0, src1Width), src2.object(0, src2Width),
                                                        dst.object(0, columns), rows, columns, n, count);
      return zelStatusOk;
    }
  }
  for (int32_t k = 0; k < count; ++k)
    multiplyGeneral(anySteps(src1.object(k, src1Width)), src2.object(k, src2Width), dst.object(k, columns), rows,
                    columns, n);
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
        objectsOf(asStored(src1)), objectsOf(asStored(src2)), objectsOf(dst), count, wholeOf(count));
  } else {
    if constexpr (D::isArray && isNeighbour<View>) {
      if (liesSideBySide(src1, src2, dst, count)) {
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
