// Products of any shape.
#include "zelmmul_rows.h"
#include "zelmshortproduct.h"

namespace zelm {
namespace {

// ---------------------------------------------------------------------------------------------------------------------
// One object a lane: the elements of an operand are loaded in the order in which they lie in memory, whichever axis
// that is, and stay in the first cache level while the sums are formed

// Where element (i, j) is among the lanes of a matrix.
struct LaneSteps {
  int row;
  int column;
};

// How the elements of an operand lie: as runs of neighbours, or apart.
struct Arrangement {
  int runs;
  int length;
  int64_t runStep; // bytes
  int64_t elementStep;
  LaneSteps steps;
};

template <class T> Arrangement arrange(const Objects<T>& x, int rows, int columns) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  const bool byColumns = columns == 1 || (rows > 1 && !x.unitRows() && x.unitColumns());
  Arrangement lie = byColumns ? Arrangement{columns, rows, x.columnStep, x.rowStep, {1, rows}}
                              : Arrangement{rows, columns, x.rowStep, x.columnStep, {columns, 1}};
  if (lie.length == 1)
    lie.elementStep = E;
  if (lie.runs == 1 || (lie.elementStep == E && lie.runStep == lie.length * E)) {
    lie.length *= lie.runs;
    lie.runs = 1;
  }
  return lie;
}

// Objects k, k + 1, ...; behind the last one of the batch that one again, so that the rest of a batch is a block too.
template <class T> ZELM_INLINE auto addressesOf(const Objects<T>& x, int64_t k, int64_t count) {
  using Element = std::remove_const_t<T>;
  constexpr int W = laneCount<Element>;
  ObjectAddresses<Element, Byte<T>> addresses;
  if (k + W <= count && x.list == nullptr) {
    Byte<T>* const first = x.origin + k * x.stride0;
    ZELM_UNROLL
    for (int w = 0; w < W; ++w)
      addresses.of[w] = first + w * x.stride0;
  } else {
    for (int w = 0; w < W; ++w)
      addresses.of[w] = x[k + w < count ? k + w : count - 1];
  }
  return addresses;
}

template <class T>
void loadLanesOf(const Objects<const T>& x, const Arrangement& lie, int64_t k, int64_t count, Lanes<T>* lanes) {
  constexpr int Q = chunkElements<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  const auto objects = addressesOf(x, k, count);
  for (int r = 0; r < lie.runs; ++r, lanes += lie.length) {
    const int64_t run = r * lie.runStep;
    if (lie.elementStep != E || (lie.length < Q && lie.length != 3)) {
      for (int e = 0; e < lie.length; ++e)
        lanes[e] = lanesOf<Lanes<T>>([&](int w) ZELM_BODY { return objects.element(w, run + e * lie.elementStep); });
    } else if (Q == 4 && lie.length == 3) {
      loadRun<3, T>(objects, run, lanes);
    } else {
      for (int e = 0; e < lie.length; e += Q) {
        const int from = e + Q <= lie.length ? e : lie.length - Q;
        loadRun<Q, T>(objects, run + from * E, lanes + from);
      }
    }
  }
}

template <class T>
void storeLanesOf(const Objects<T>& x, const Arrangement& lie, int64_t k, int64_t count, const Lanes<T>* lanes) {
  constexpr int Q = chunkElements<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  const auto objects = addressesOf(x, k, count);
  for (int r = 0; r < lie.runs; ++r, lanes += lie.length) {
    const int64_t run = r * lie.runStep;
    if (lie.elementStep != E || (lie.length < Q && lie.length != 3)) {
      for (int e = 0; e < lie.length; ++e) {
        ZELM_UNROLL
        for (int w = 0; w < laneCount<T>; ++w)
          storeElement<T>(objects.of[w] + run + e * lie.elementStep, lanes[e][w]);
      }
    } else if (Q == 4 && lie.length == 3) {
      storeRun<3, T>(objects, run, lanes);
    } else {
      for (int e = 0; e < lie.length; e += Q) {
        const int from = e + Q <= lie.length ? e : lie.length - Q;
        storeRun<Q, T>(objects, run + from * E, lanes + from);
      }
    }
  }
}

template <class T> struct LaneMatrix {
  Lanes<T>* element;
  LaneSteps steps;
  ZELM_INLINE Lanes<T>& operator()(int i, int j) const { return element[i * steps.row + j * steps.column]; }
};

// A product whose matrices are lanes.
template <class T> struct LaneProduct {
  LaneMatrix<T> src1;
  LaneMatrix<T> src2;
  LaneMatrix<T> dst;
  ProductShape shape;
  T first;

  // R rows of the result from row i on, V columns from column j on.
  template <int R, int V> ZELM_INLINE void multiplyPart(int i, int j) const {
    Lanes<T> sum[R * V];
    ZELM_UNROLL
    for (auto& each : sum)
      each = splat<Lanes<T>>(first);
    const Lanes<T>* a = &src1(i, 0);
    const Lanes<T>* b = &src2(0, j);
    for (int k = 0; k < shape.terms; ++k, a += src1.steps.column, b += src2.steps.row) {
      ZELM_UNROLL
      for (int v = 0; v < V; ++v) {
        const Lanes<T> factor = b[v * src2.steps.column];
        ZELM_UNROLL
        for (int r = 0; r < R; ++r)
          sum[r * V + v] = sum[r * V + v] + a[r * src1.steps.row] * factor;
      }
    }
    ZELM_UNROLL
    for (int r = 0; r < R; ++r)
      ZELM_UNROLL
    for (int v = 0; v < V; ++v)
      dst(i + r, j + v) = sum[r * V + v];
  }
  template <int R> ZELM_INLINE void multiplyRows(int i) const {
    int j = 0;
    for (; j + 4 <= shape.columns; j += 4)
      multiplyPart<R, 4>(i, j);
    if (j + 2 <= shape.columns) {
      multiplyPart<R, 2>(i, j);
      j += 2;
    }
    if (j < shape.columns)
      multiplyPart<R, 1>(i, j);
  }
  ZELM_INLINE void multiply() const {
    int i = 0;
    for (; shape.columns == 1 && i + 4 <= shape.rows; i += 4)
      multiplyPart<4, 1>(i, 0);
    for (; i + 2 <= shape.rows; i += 2)
      multiplyRows<2>(i);
    if (i < shape.rows)
      multiplyRows<1>(i);
  }
};

} // namespace

template <class T>
ZELM_NOINLINE void multiplyInLanes(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                                   const ProductShape& shape, T first, int64_t count) {
  const Arrangement lie1 = arrange(src1, shape.rows, shape.terms);
  const Arrangement lie2 = arrange(src2, shape.terms, shape.columns);
  const Arrangement lie = arrange(dst, shape.rows, shape.columns);
  Lanes<T> lanes1[laneElements];
  Lanes<T> lanes2[laneElements];
  Lanes<T> result[laneElements];
  const LaneProduct<T> product{{lanes1, lie1.steps}, {lanes2, lie2.steps}, {result, lie.steps}, shape, first};
  for (int64_t k = 0; k < count; k += laneCount<T>) {
    if (k == 0 || !src1.single)
      loadLanesOf(src1, lie1, k, count, lanes1);
    if (k == 0 || !src2.single)
      loadLanesOf(src2, lie2, k, count, lanes2);
    product.multiply();
    storeLanesOf(dst, lie, k, count, result);
  }
}

namespace {

// ---------------------------------------------------------------------------------------------------------------------
// Object by object, of any size; every sum starts from +0.0

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

} // namespace

template <class A, class B, class D>
void multiplyGeneral(const A& a, const B& b, const D& d, int64_t rows, int64_t columns, int64_t n) {
  constexpr bool vectors = D::unitRows && (B::unitRows || B::unitColumns);
  multiplyWide<vectors ? rowLaneCount<typename D::Element> : 1>(a, b, d, rows, columns, n);
}

namespace {

// Object k of an operand, its steps known to the compiler or not.
template <class T> ZELM_INLINE auto anyView(const Objects<T>& x, int64_t k) {
  return StridedMatrixView<T, AnyStep, AnyStep>{x[k], x.rowStep, x.columnStep};
}
template <class T> ZELM_INLINE auto unitRowsView(const Objects<T>& x, int64_t k) {
  return StridedMatrixView<T, AnyStep, UnitStep<T>>{x[k], x.rowStep, {}};
}

template <class T>
void multiplyEach(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                  const ProductShape& shape, int64_t count) {
  const auto multiplyObject = [&](const auto& a, const auto& b, const auto& d) {
    multiplyGeneral(a, b, d, shape.rows, shape.columns, shape.terms);
  };
  for (int64_t k = 0; k < count; ++k) {
    const auto a = anyView(src1, k);
    if (dst.unitRows() && src2.unitRows())
      multiplyObject(a, unitRowsView(src2, k), unitRowsView(dst, k));
    else if (dst.unitRows() && src2.unitColumns())
      multiplyObject(a, unitRowsView(src2.transposed(), k).transposed(), unitRowsView(dst, k));
    else
      multiplyObject(a, anyView(src2, k), anyView(dst, k));
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Short rows that are runs: a row of the result in few vectors, those of src2 in registers

// How C columns are cut into vectors of W: the last one is moved back to end with the row.
template <class T, int C> struct ShortRow {
  static constexpr int W = C == 1 ? 1 : C <= chunkElements<T> ? chunkElements<T> : rowLaneCount<T>;
  static constexpr int vectors = (C + W - 1) / W;
  static constexpr int used = smaller(C, W);
  using L = std::conditional_t<W == 1, T, LanesOf<T, larger(W, 2)>>;
  static constexpr int64_t at(int v) { return larger(0, smaller(v * W, C - W)) * static_cast<int64_t>(sizeof(T)); }

  ZELM_INLINE static L load(const char* row, int v) {
    if constexpr (W == 1)
      return loadElement<T>(row);
    else if constexpr (W == 4 && used == 2)
      return loadTwo(row);
    else
      return loadPart<T, W, used>(row + at(v), false);
  }
  ZELM_INLINE static void store(char* row, int v, const L& lanes) {
    if constexpr (W == 1)
      storeElement<T>(row, lanes);
    else if constexpr (W == 4 && used == 2)
      storeElement(row, lowBits(lanes));
    else
      storePart<T, W, used>(row + at(v), lanes, false);
  }
};

template <class T, int K, int C>
void multiplyShortRows(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst, int rows,
                       T first, int64_t count) {
  using Row = ShortRow<T, C>;
  using L = typename Row::L;
  struct Rows {
    L of[K][Row::vectors];
  };
  const int64_t rowStep1 = src1.rowStep;
  const int64_t rowStep = dst.rowStep;
  int64_t term[K];
  for (int k = 0; k < K; ++k)
    term[k] = k * src1.columnStep;
  const auto loadSecond = [&](int64_t object) ZELM_BODY {
    Rows second;
    const char* const b = src2[object];
    ZELM_UNROLL
    for (int k = 0; k < K; ++k)
      ZELM_UNROLL
    for (int v = 0; v < Row::vectors; ++v)
      second.of[k][v] = Row::load(b + k * src2.rowStep, v);
    return second;
  };
  const auto multiplyRow = [&](const char* a, const Rows& second, char* d) ZELM_BODY {
    L sum[Row::vectors];
    ZELM_UNROLL
    for (auto& each : sum)
      each = splat<L>(first);
    ZELM_UNROLL
    for (int k = 0; k < K; ++k) {
      const L factor = splat<L>(loadElement<T>(a + term[k]));
      ZELM_UNROLL
      for (int v = 0; v < Row::vectors; ++v)
        sum[v] = sum[v] + factor * second.of[k][v];
    }
    ZELM_UNROLL
    for (int v = 0; v < Row::vectors; ++v)
      Row::store(d, v, sum[v]);
  };
  for (int64_t object = 0; object < count; ++object) {
    const char* a = src1[object];
    char* d = dst[object];
    const Rows second = loadSecond(object);
    int i = rows;
    do {
      multiplyRow(a, second, d);
      a += rowStep1;
      d += rowStep;
    } while (--i > 0);
  }
}

// One column of H rows, object by object: sums side by side. Few objects, and those that lie apart, take a sixth less
// than row by row.
template <class T, int K, int H>
void multiplyShortColumn(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst, int,
                         T first, int64_t count) {
  for (int64_t object = 0; object < count; ++object) {
    const char* const a = src1[object];
    const char* const b = src2[object];
    char* const d = dst[object];
    T second[K];
    ZELM_UNROLL
    for (int k = 0; k < K; ++k)
      second[k] = loadElement<T>(b + k * src2.rowStep);
    T sum[H];
    ZELM_UNROLL
    for (int i = 0; i < H; ++i) {
      sum[i] = first;
      ZELM_UNROLL
      for (int k = 0; k < K; ++k)
        sum[i] = sum[i] + loadElement<T>(a + i * src1.rowStep + k * src1.columnStep) * second[k];
    }
    ZELM_UNROLL
    for (int i = 0; i < H; ++i)
      storeElement<T>(d + i * dst.rowStep, sum[i]);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// One column: one object a lane, rows that are runs of at least sixteen bytes

template <class T> bool rowsAreLong(const Objects<const T>& src1, const ProductShape& shape) {
  return !src1.single && src1.unitRows() && shape.terms >= chunkElements<T>;
}
// Few terms in few lanes are as quick row by row.
template <class T> bool paysForColumn(const Objects<const T>& src1, const ProductShape& shape) {
  if (shape.terms > longestShort)
    return true;
  return shape.rows > longestShort && laneCount<T> >= 8 && (src1.single || shape.terms > 2);
}
template <class T>
ZELM_NOINLINE void multiplyLongColumns(const Objects<const T>& src1, const Objects<const T>& src2,
                                       const Objects<T>& dst, const ProductShape& shape, T first, int64_t count) {
  constexpr int Q = chunkElements<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  const Arrangement lie2 = arrange(src2, shape.terms, 1);
  const Arrangement lie = arrange(dst, shape.rows, 1);
  Lanes<T> vector[laneElements];
  Lanes<T> result[laneElements];
  for (int64_t k = 0; k < count; k += laneCount<T>) {
    if (k == 0 || !src2.single)
      loadLanesOf(src2, lie2, k, count, vector);
    const auto rows = addressesOf(src1, k, count);
    for (int i = 0; i < shape.rows; ++i) {
      Lanes<T> sum = splat<Lanes<T>>(first);
      for (int e = 0; e < shape.terms; e += Q) {
        const int from = e + Q <= shape.terms ? e : shape.terms - Q;
        Lanes<T> chunk[Q];
        loadChunk<T>(rows, i * src1.rowStep + from * E, chunk);
        ZELM_UNROLL
        for (int q = 0; q < Q; ++q)
          if (from + q >= e)
            sum = sum + chunk[q] * vector[from + q];
      }
      result[i] = sum;
    }
    storeLanesOf(dst, lie, k, count, result);
  }
}

template <class T>
using ShortProduct = void (*)(const Objects<const T>&, const Objects<const T>&, const Objects<T>&, int, T, int64_t);
using EachPair = std::make_integer_sequence<int, longestShort * longestShort>; // of terms and columns
template <class T, int... i> ShortProduct<T> shortRows(int terms, int columns, std::integer_sequence<int, i...>) {
  static constexpr ShortProduct<T> table[] = {multiplyShortRows<T, i / longestShort + 1, i % longestShort + 1>...};
  return table[(terms - 1) * longestShort + columns - 1];
}
template <class T, int... i> ShortProduct<T> shortColumn(int terms, int rows, std::integer_sequence<int, i...>) {
  static constexpr ShortProduct<T> table[] = {multiplyShortColumn<T, i / longestShort + 1, i % longestShort + 1>...};
  return table[(terms - 1) * longestShort + rows - 1];
}

// Objects k, k + 1, ...
template <class T> Objects<T> objectsFrom(const Objects<T>& x, int64_t k) {
  Objects<T> rest = x;
  if (x.list != nullptr)
    rest.list += k;
  else
    rest.origin += k * x.stride0;
  return rest;
}
// Second factors whose columns are runs are turned first, some objects at a time, where that pays: for tall first
// factors, and for one that is the same for all. Half the time of 19 rows of 3.
template <class T>
void multiplyTurnedRows(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                        const ProductShape& shape, T first, int64_t count) {
  constexpr int64_t together = 16;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  const int elements = shape.terms * shape.columns;
  T turned[together * longestShort * longestShort];
  for (int64_t k = 0; k < count; k += together) {
    const int64_t n = k + together <= count ? together : count - k;
    for (int64_t object = 0; object < (src2.single ? 1 : n); ++object)
      for (int i = 0; i < shape.terms; ++i)
        for (int j = 0; j < shape.columns; ++j)
          turned[object * elements + i * shape.columns + j] =
              loadElement<T>(src2[k + object] + i * src2.rowStep + j * src2.columnStep);
    const Objects<const T> second{reinterpret_cast<const char*>(turned),
                                  nullptr,
                                  src2.single ? 0 : elements * E,
                                  shape.columns * E,
                                  E,
                                  src2.single};
    shortRows<T>(shape.terms, shape.columns, EachPair{})(objectsFrom(src1, k), second, objectsFrom(dst, k), shape.rows,
                                                         first, n);
  }
}

} // namespace

template <class T>
void multiplyShape(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                   const ProductShape& shape, T first, int64_t count) {
  if (multiplyShort(src1, src2, dst, shape, first, count))
    return;
  // Vectors run along the rows of the result; where its columns are the runs these are the rows of the transposed
  // product. One column is one for a matrix whose columns are runs too.
  const bool turned = shape.columns == 1 ? shape.rows > 1 && src1.unitColumns() && dst.unitColumns()
                                         : !dst.unitRows() && dst.unitColumns();
  if (turned)
    return multiplyShape<T>(src2.transposed(), src1.transposed(), dst.transposed(), shape.transposed(), first, count);
  if (shape.columns == 1 && paysForColumn(src1, shape) && goesInLanes(shape, count))
    return rowsAreLong(src1, shape) ? multiplyLongColumns<T>(src1, src2, dst, shape, first, count)
                                    : multiplyInLanes<T>(src1, src2, dst, shape, first, count);
  const bool runs = shape.columns == 1 || (dst.unitRows() && src2.unitRows());
  // Long rows fill vectors by themselves, and of doubles short ones nearly do.
  const bool fills = runs && (shape.columns >= rowLaneCount<T> || sizeof(T) == 8 || laneCount<T> < 8);
  if (shape.columns == 1 && shape.terms <= longestShort && shape.rows <= longestShort)
    shortColumn<T>(shape.terms, shape.rows, EachPair{})(src1, src2, dst, shape.rows, first, count);
  else if (runs && shape.terms <= longestShort && shape.columns <= longestShort)
    shortRows<T>(shape.terms, shape.columns, EachPair{})(src1, src2, dst, shape.rows, first, count);
  else if (dst.unitRows() && src2.unitColumns() && (shape.rows > longestShort || src2.single) &&
           shape.terms <= longestShort && shape.columns <= longestShort)
    multiplyTurnedRows<T>(src1, src2, dst, shape, first, count);
  else if (goesInLanes(shape, count) && !fills)
    multiplyInLanes<T>(src1, src2, dst, shape, first, count);
  else
    multiplyEach<T>(src1, src2, dst, shape, count);
}

#define ZELM_PRODUCTS(T)                                                                                               \
  template void multiplyInLanes(const Objects<const T>&, const Objects<const T>&, const Objects<T>&,                   \
                                const ProductShape&, T, int64_t);                                                      \
  template void multiplyShape(const Objects<const T>&, const Objects<const T>&, const Objects<T>&,                     \
                              const ProductShape&, T, int64_t);                                                        \
  template void multiplyGeneral(const PointerMatrixView<const T>&, const PointerMatrixView<const T>&,                  \
                                const PointerMatrixView<T>&, int64_t, int64_t, int64_t);
ZELM_PRODUCTS(float)
ZELM_PRODUCTS(double)

} // namespace zelm
