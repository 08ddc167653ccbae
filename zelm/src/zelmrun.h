// Runs: element-wise work of any number of sources, dst(k, i, j) = op(src1(k, i, j), src2(k, i, j), ...).
//
// A family gives an operation and names it in the rows of its kernels:
//
//   struct Plus { template <class L> ZELM_INLINE L operator()(L a, L b) const { return a + b; } };
//   KERNEL(ownzelmAdd_mam_32f,   MAM, S, UNIT, float, elementwise<Plus, Sizes<3, 4, 5, 6>>)
//   KERNEL(ownzelmAdd_mam_32f_P, MAM, P, ANY,  float, elementwise<Plus>)
//
// elementwise<Op, Sizes> takes a kernel's arguments as they stand: the sources, the result, its extents (width and
// height, or len), and count if there is one. Each argument before the result is a source: matrices, vectors, single or
// arrays, of any layout, constants by value, arrays of constants, IdentityMatrix. Op{} is called with one value of each
// in their order; L is an element or a vector of them. Sizes are the extents that have straight-line code: the sides of
// squares, the lengths of vectors. Swapped<Op> takes its two sources in the other order.
//
// An operation that carries values of its own (made from arguments that are no sources) is an object: call
// elementwiseOf(op, Sizes<...>{}, width, height, count, dst, sources...) with operands; height is Fixed<1>{} for
// vectors and count is Fixed<1>{} for single objects.
//
// Each result element depends on one element of each source, so loops run in whatever order is fastest:
//   - operands without gaps are one run of elements; a single source repeats in it with a period, constants of the
//     objects are spread over theirs;
//   - objects of straight-line extents go through registers, one row or the whole object at a time;
//   - others are a run a row;
//   - where neighbouring objects lie side by side (pointer layout, strides of an element), a run is one element of all
//     objects;
//   - where columns are contiguous, rows and columns change places before all that.
// Each element is computed once and read just before it is written, so in place works wherever an untransposed source
// lies exactly where dst does.
#pragma once

#include "zelmextent.h"
#include "zelmtile.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Operations

struct Plus {
  template <class L> ZELM_INLINE L operator()(const L& a, const L& b) const { return a + b; }
};
struct Minus {
  template <class L> ZELM_INLINE L operator()(const L& a, const L& b) const { return a - b; }
};
struct Times {
  template <class L> ZELM_INLINE L operator()(const L& a, const L& b) const { return a * b; }
};
struct Unchanged {
  template <class L> ZELM_INLINE L operator()(const L& a) const { return a; }
};
template <class Op> struct Swapped {
  template <class L> ZELM_INLINE L operator()(const L& a, const L& b) const { return Op{}(b, a); }
};

// ---------------------------------------------------------------------------------------------------------------------
// Sources of a run: at<L>(e) is its element e, or the elements from e on

// Vectors of W elements, single elements included.
template <class T, int W> struct LanesOrElement { using type = Lanes<T, W>; };
template <class T> struct LanesOrElement<T, 1> { using type = T; };
template <class T, int W> using LanesOrOne = typename LanesOrElement<T, W>::type;

template <class L, class T> constexpr int widthOf = static_cast<int>(sizeof(L) / sizeof(T));

// element(w) in lane w.
template <class T, class L, class F> ZELM_INLINE L eachLane(const F& element) {
  if constexpr (std::is_same_v<L, T>) {
    return element(0);
  } else {
    L lanes;
    ZELM_UNROLL
    for (int w = 0; w < widthOf<L, T>; ++w)
      lanes[w] = element(w);
    return lanes;
  }
}

// Elements one behind the other.
template <class T> struct Elements {
  const char* first;
  template <class L> ZELM_INLINE L at(int64_t e) const {
    return loadElement<L>(first + e * static_cast<int64_t>(sizeof(T)));
  }
};

// Elements at some distance.
template <class T> struct Spaced {
  const char* first;
  int64_t step;
  template <class L> ZELM_INLINE L at(int64_t e) const {
    return eachLane<T, L>([&](int w) ZELM_BODY { return loadElement<T>(first + (e + w) * step); });
  }
};

// The same value everywhere.
template <class T> struct Same {
  T value;
  template <class L> ZELM_INLINE L at(int64_t) const {
    if constexpr (std::is_same_v<L, T>)
      return value;
    else
      return value - L{};
  }
};

// A row of the identity matrix.
template <class T> struct IdentityRow {
  int64_t one;
  template <class L> ZELM_INLINE L at(int64_t e) const {
    if (one < e || one >= e + widthOf<L, T>)
      return L{};
    return eachLane<T, L>([&](int w) ZELM_BODY { return e + w == one ? T{1} : T{0}; });
  }
};

// A row whose elements are anywhere.
template <class View> struct ScatteredRow {
  View view;
  int64_t row;
  template <class L> ZELM_INLINE L at(int64_t e) const {
    return eachLane<typename View::Element, L>([&](int w) ZELM_BODY { return view.load(row, e + w); });
  }
};

template <class T> ZELM_INLINE bool liesAt(const char* dst, const Elements<T>& x) {
  return x.first == dst;
}
template <class S> ZELM_INLINE bool liesAt(const char*, const S&) {
  return false;
}

// ---------------------------------------------------------------------------------------------------------------------
// A run: dst[e] = op(source[e], ...) for n elements that lie one behind the other

// Whole vectors from element e on; returns the first element not done. Processors take loads and stores best in turns.
template <class T, bool Stream, class Op, class... S>
ZELM_INLINE int64_t runVectors(const Op& op, char* dst, int64_t e, int64_t n, const S&... s) {
  constexpr int64_t W = runLaneCount<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  for (; e + 4 * W <= n; e += 4 * W) {
    ZELM_UNROLL
    for (int u = 0; u < 4; ++u)
      putLanes<Stream>(dst + (e + u * W) * E, op(s.template at<RunLanes<T>>(e + u * W)...));
  }
  for (; e + W <= n; e += W)
    putLanes<Stream>(dst + e * E, op(s.template at<RunLanes<T>>(e)...));
  return e;
}

// The last elements from e on, less than 2 W of them: W, half as many, ..., one, as the bits of their number say.
template <class T, int W, class Op, class... S>
ZELM_INLINE void runRest(const Op& op, char* dst, int64_t e, int64_t left, const S&... s) {
  if ((left & W) != 0) {
    storeElement(dst + e * static_cast<int64_t>(sizeof(T)), op(s.template at<LanesOrOne<T, W>>(e)...));
    e += W;
  }
  if constexpr (W > 1)
    runRest<T, W / 2>(op, dst, e, left, s...);
}

// Where a run of n elements takes whole vectors from. A store across two cache lines takes twice as long: runs from
// some length on, which begin anywhere, take 8 to 40 % less time within the caches if their vectors begin at
// boundaries.
template <class T, class Op, class... S>
ZELM_INLINE int64_t runLead(const Op& op, char* dst, int64_t n, const S&... s) {
  constexpr int64_t least = (runBytes >= 64 ? 512 : 1536) / static_cast<int64_t>(sizeof(T));
  if (n < least || reinterpret_cast<std::uintptr_t>(dst) % runBytes == 0)
    return 0;
  const int64_t lead = elementsToAlignment<T>(dst);
  if (lead < 0)
    return 0;
  runRest<T, runLaneCount<T> / 2>(op, dst, 0, lead, s...);
  return lead;
}

template <class T, class Op, class... S> ZELM_INLINE void runKept(const Op& op, char* dst, int64_t n, const S&... s) {
  const int64_t e = runVectors<T, false>(op, dst, runLead<T>(op, dst, n, s...), n, s...);
  runRest<T, runLaneCount<T> / 2>(op, dst, e, n - e, s...);
}

// What whole periods leave.
template <class T, class Op, class... S>
ZELM_INLINE void runLast(const Op& op, char* dst, int64_t e, int64_t n, const S&... s) {
  constexpr int64_t W = runLaneCount<T>;
  for (; e + W <= n; e += W)
    storeLanes(dst + e * static_cast<int64_t>(sizeof(T)), op(s.template at<RunLanes<T>>(e)...));
  runRest<T, W / 2>(op, dst, e, n - e, s...);
}

template <class T, class Op, class... S> ZELM_NOINLINE void runStreamed(Op op, char* dst, int64_t n, S... s) {
  const int64_t lead = elementsToAlignment<T>(dst);
  for (int64_t e = 0; e < lead; ++e)
    storeElement(dst + e * static_cast<int64_t>(sizeof(T)), op(s.template at<T>(e)...));
  const int64_t e = runVectors<T, true>(op, dst, lead, n, s...);
  endStreams();
  runRest<T, runLaneCount<T> / 2>(op, dst, e, n - e, s...);
}

// Results beyond the caches are streamed past them, unless they take the place of a source; the run may be a part of
// `total` elements.
template <class T, class... S>
ZELM_INLINE bool isRunStreamed(const char* dst, int64_t n, int64_t total, const S&... s) {
  return isStreamed<T>(dst, n, total) && (!liesAt(dst, s) && ...);
}

template <class T, class Op, class... S>
ZELM_INLINE void run(const Op& op, char* dst, int64_t n, int64_t total, const S&... s) {
  if (isRunStreamed<T>(dst, n, total, s...))
    runStreamed<T>(op, dst, n, s...);
  else
    runKept<T>(op, dst, n, s...);
}

// ---------------------------------------------------------------------------------------------------------------------
// Objects of a source or of the result, as the operation sees them

template <class T> struct SameView {
  using Element = T;
  static constexpr bool isUniform = true;
  static constexpr bool unitRows = true;
  static constexpr bool unitColumns = true;
  T value;
  ZELM_INLINE T load(int64_t, int64_t) const { return value; }
};

template <class T> struct IdentityView {
  using Element = T;
  static constexpr bool isUniform = false;
  static constexpr bool unitRows = true;
  static constexpr bool unitColumns = true;
  int64_t above; // rows above that the view leaves out
  ZELM_INLINE T load(int64_t i, int64_t j) const { return i + above == j ? T{1} : T{0}; }
};

// Row i of a view as the source of a run.
template <class View> ZELM_INLINE auto rowOf(const View& x, int64_t i) {
  if constexpr (View::unitRows)
    return Elements<typename View::Element>{x.address(i, 0)};
  else
    return ScatteredRow<View>{x, i};
}
template <class T> ZELM_INLINE Same<T> rowOf(const SameView<T>& x, int64_t) {
  return {x.value};
}
template <class T> ZELM_INLINE IdentityRow<T> rowOf(const IdentityView<T>& x, int64_t i) {
  return {i + x.above};
}

// Whether a source has the same value everywhere.
template <class S>
constexpr bool isUniform = std::is_same_v<typename S::View, SameView<typename S::Element>> && !S::isConstants;

// The view without its first row.
template <class View> ZELM_INLINE View below(const View& x) {
  return {x.origin + x.rowStep, x.rowStep, x.columnStep};
}
template <class T> ZELM_INLINE SameView<T> below(const SameView<T>& x) {
  return x;
}
template <class T> ZELM_INLINE IdentityView<T> below(const IdentityView<T>& x) {
  return {x.above + 1};
}

// What all kinds of objects answer unless they know better. An operand is asked three things: is it an array, are its
// objects without gaps one behind the other (packed), are the rows of an object (dense).
struct ObjectsBase {
  static constexpr bool isArray = false;
  static constexpr bool isConstants = false;
  static constexpr bool isPointer = false;
  static constexpr bool isComputed = false;
  static constexpr bool isList = false;
  static constexpr bool isHeld = false; // a single object, worth having at hand for a batch
  static constexpr bool unitRows = true;
  template <class H> ZELM_INLINE bool dense(int64_t, H) const { return true; }
  template <class H, class N> ZELM_INLINE bool packed(int64_t, H, N) const { return true; }
};

// Object k at origin + k * stride0; a single one has a stride0 of 0.
template <class T, class RowStep, class ColumnStep, bool Array> struct StridedObjects : ObjectsBase {
  using View = StridedMatrixView<T, RowStep, ColumnStep>;
  using Element = typename View::Element;
  static constexpr bool isArray = Array;
  static constexpr bool isHeld = !Array;
  static constexpr bool unitRows = View::unitRows;
  Byte<T>* origin;
  int64_t stride0;
  RowStep rowStep;
  ColumnStep columnStep;
  StridedObjects(Byte<T>* x, int64_t s0, RowStep row, ColumnStep column)
      : origin(x), stride0(s0), rowStep(row), columnStep(column) {}
  ZELM_INLINE View view(int64_t k) const { return {origin + k * stride0, rowStep, columnStep}; }
  template <class H> ZELM_INLINE bool dense(int64_t width, H height) const {
    return (height == 1 || rowStep == width * static_cast<int64_t>(sizeof(T))) &&
           columnStep == static_cast<int64_t>(sizeof(T));
  }
  template <class H, class N> ZELM_INLINE bool packed(int64_t width, H height, N count) const {
    if constexpr (!Array)
      return true; // once more for each object
    else
      return dense(width, height) && (count == 1 || stride0 == width * height * static_cast<int64_t>(sizeof(T)));
  }
  ZELM_INLINE auto transposed() const {
    return StridedObjects<T, ColumnStep, RowStep, Array>{origin, stride0, columnStep, rowStep};
  }
  // Rows and columns exchanged, where the columns are contiguous.
  ZELM_INLINE bool hasColumns() const { return rowStep == static_cast<int64_t>(sizeof(T)); }
  ZELM_INLINE auto exchanged() const {
    return StridedObjects<T, AnyStep, UnitStep<T>, Array>{origin, stride0, columnStep, {}};
  }
  // Element (i, j) of all objects.
  ZELM_INLINE int64_t step() const { return stride0; }
  ZELM_INLINE Byte<T>* position(int64_t i, int64_t j) const { return view(0).address(i, j); }
  // Of one type with arrays: what only walks over the objects is compiled once for both.
  ZELM_INLINE auto asArray() const {
    return StridedObjects<T, RowStep, ColumnStep, true>{origin, stride0, rowStep, columnStep};
  }
};

// Object k at list[k] + shift.
template <class T, class RowStep, class ColumnStep> struct ListedObjects : ObjectsBase {
  using View = StridedMatrixView<T, RowStep, ColumnStep>;
  using Element = typename View::Element;
  static constexpr bool isArray = true;
  static constexpr bool isList = true;
  static constexpr bool unitRows = View::unitRows;
  T* const* list;
  int64_t shift;
  RowStep rowStep;
  ColumnStep columnStep;
  ListedObjects(T* const* x, int64_t bytes, RowStep row, ColumnStep column)
      : list(x), shift(bytes), rowStep(row), columnStep(column) {}
  ZELM_INLINE View view(int64_t k) const { return {reinterpret_cast<Byte<T>*>(list[k]) + shift, rowStep, columnStep}; }
  template <class H> ZELM_INLINE bool dense(int64_t width, H height) const {
    return (height == 1 || rowStep == width * static_cast<int64_t>(sizeof(T))) &&
           columnStep == static_cast<int64_t>(sizeof(T));
  }
  template <class H, class N> ZELM_INLINE bool packed(int64_t, H, N) const { return false; }
  ZELM_INLINE auto transposed() const {
    return ListedObjects<T, ColumnStep, RowStep>{list, shift, columnStep, rowStep};
  }
  ZELM_INLINE bool hasColumns() const { return rowStep == static_cast<int64_t>(sizeof(T)); }
  ZELM_INLINE auto exchanged() const { return ListedObjects<T, AnyStep, UnitStep<T>>{list, shift, columnStep, {}}; }
  ZELM_INLINE const ListedObjects& asArray() const { return *this; }
};

// Element (i, j) of object k at the list's entry for (i, j) + offset + k * stride0.
template <class T, bool Array> struct PointerObjects : ObjectsBase {
  using View = PointerMatrixView<T>;
  using Element = typename View::Element;
  static constexpr bool isArray = Array;
  static constexpr bool isPointer = true;
  static constexpr bool unitRows = false;
  View first;
  int64_t stride0;
  PointerObjects(const View& object, int64_t s0) : first(object), stride0(s0) {}
  ZELM_INLINE View view(int64_t k) const {
    return {first.list, first.offset + k * stride0, first.rowStep, first.columnStep};
  }
  ZELM_INLINE auto transposed() const { return PointerObjects{first.transposed(), stride0}; }
  ZELM_INLINE int64_t step() const { return stride0; }
  ZELM_INLINE Byte<T>* position(int64_t i, int64_t j) const { return first.address(i, j); }
};

// A source without memory: the same object for all.
template <class V> struct ComputedObjects : ObjectsBase {
  using View = V;
  using Element = typename View::Element;
  static constexpr bool isComputed = true;
  static constexpr bool isHeld = !View::isUniform;
  View value;
  explicit ComputedObjects(const View& x) : value(x) {}
  template <class H> ZELM_INLINE bool dense(int64_t, H height) const { return View::isUniform || height == 1; }
  ZELM_INLINE View view(int64_t) const { return value; }
  ZELM_INLINE bool hasColumns() const { return true; }
  ZELM_INLINE const ComputedObjects& exchanged() const { return *this; }
  ZELM_INLINE const ComputedObjects& asArray() const { return *this; }
};

// A constant for each object.
template <class C> struct ConstantObjects : ObjectsBase {
  using View = SameView<typename C::Element>;
  using Element = typename C::Element;
  static constexpr bool isConstants = true;
  C constants;
  explicit ConstantObjects(const C& x) : constants(x) {}
  ZELM_INLINE View view(int64_t k) const { return {constants.load(k)}; }
  ZELM_INLINE const ConstantObjects& asArray() const { return *this; }
  ZELM_INLINE int64_t step() const { return constants.stride0; }
  ZELM_INLINE const char* position(int64_t, int64_t) const { return reinterpret_cast<const char*>(constants.pointer); }
};

// The identity matrix as a single source.
template <class T> struct IdentityMatrix { using Element = T; };

// The objects of an operand whose stored rows have a length.
template <class T, class S> ZELM_INLINE auto objectsOf(const Matrix<T, S>& x, int64_t = 0) {
  return StridedObjects<T, AnyStep, typename S::template Step<T>, false>{reinterpret_cast<Byte<T>*>(x.pointer), 0,
                                                                         x.stride1, x.stride2};
}
template <class T, class S> ZELM_INLINE auto objectsOf(const Matrices<T, S>& x, int64_t = 0) {
  return StridedObjects<T, AnyStep, typename S::template Step<T>, true>{reinterpret_cast<Byte<T>*>(x.pointer),
                                                                        x.stride0, x.stride1, x.stride2};
}
template <class T, class S> ZELM_INLINE auto objectsOf(const MatricesL<T, S>& x, int64_t = 0) {
  return ListedObjects<T, AnyStep, typename S::template Step<T>>{x.list, x.shift, x.stride1, x.stride2};
}
template <class T, class S> ZELM_INLINE auto objectsOf(const Vector<T, S>& x, int64_t = 0) {
  return objectsOf(Matrix<T, S>{x.pointer, 0, x.stride2});
}
template <class T, class S> ZELM_INLINE auto objectsOf(const Vectors<T, S>& x, int64_t = 0) {
  return objectsOf(Matrices<T, S>{x.pointer, x.stride0, 0, x.stride2});
}
template <class T, class S> ZELM_INLINE auto objectsOf(const VectorsL<T, S>& x, int64_t = 0) {
  return objectsOf(MatricesL<T, S>{x.list, x.shift, 0, x.stride2});
}
template <class T> ZELM_INLINE auto objectsOf(const MatrixP<T>& x, int64_t rowLength) {
  return PointerObjects<T, false>{x.object(0, rowLength), 0};
}
template <class T> ZELM_INLINE auto objectsOf(const MatricesP<T>& x, int64_t rowLength) {
  return PointerObjects<T, true>{x.object(0, rowLength), x.stride0};
}
template <class T> ZELM_INLINE auto objectsOf(const VectorP<T>& x, int64_t = 0) {
  return PointerObjects<T, false>{PointerMatrixView<T>{x.list, x.shift, 0, 1}, 0};
}
template <class T> ZELM_INLINE auto objectsOf(const VectorsP<T>& x, int64_t = 0) {
  return PointerObjects<T, true>{PointerMatrixView<T>{x.list, x.offset, 0, 1}, x.stride0};
}
template <class T> ZELM_INLINE auto objectsOf(const Constant<T>& x, int64_t = 0) {
  return ComputedObjects<SameView<T>>{SameView<T>{x.value}};
}
template <class T> ZELM_INLINE auto objectsOf(const Constants<T>& x, int64_t = 0) {
  return ConstantObjects<Constants<T>>{x};
}
template <class T> ZELM_INLINE auto objectsOf(const ConstantsL<T>& x, int64_t = 0) {
  return ConstantObjects<ConstantsL<T>>{x};
}
template <class T> ZELM_INLINE auto objectsOf(const IdentityMatrix<T>&, int64_t = 0) {
  return ComputedObjects<IdentityView<T>>{IdentityView<T>{0}};
}
template <class Operand> ZELM_INLINE auto objectsOf(const Transposed<Operand>& x, int64_t rowLength) {
  return objectsOf(x.stored(), rowLength).transposed();
}

// ---------------------------------------------------------------------------------------------------------------------
// One object of known extents, in registers

// A W by W block of lanes, one vector a row.
template <class T, int W> struct SquareBlock { Lanes<T, W> row[W]; };

// The W by W block of a view at (i, j), one row of the operation a vector: an operand whose columns are contiguous is
// loaded by these and transposed.
template <int W, class View> ZELM_INLINE auto loadSquare(const View& x, int64_t i, int64_t j) {
  using T = typename View::Element;
  SquareBlock<T, W> block;
  ZELM_UNROLL
  for (int r = 0; r < W; ++r) {
    if constexpr (View::unitRows || !View::unitColumns)
      block.row[r] = rowOf(x, i + r).template at<Lanes<T, W>>(j);
    else
      block.row[r] = loadLanes<T, W>(x.address(i, j + r));
  }
  if constexpr (View::unitColumns && !View::unitRows)
    transposeSquare(block.row);
  return block;
}

// dst = op(x...) on Columns elements of a row from j on, W at a time as far as they go.
template <class T, int W, int Columns, class Op, class... R>
ZELM_INLINE void combineRow(const Op& op, int64_t j, char* dst, const R&... row) {
  if constexpr (Columns >= W) {
    storeElement(dst + j * static_cast<int64_t>(sizeof(T)), op(row.template at<LanesOrOne<T, W>>(j)...));
    combineRow<T, W, Columns - W>(op, j + W, dst, row...);
  } else if constexpr (Columns > 0) {
    combineRow<T, W / 2, Columns>(op, j, dst, row...);
  }
}

// Rows of elements one behind the other.
template <int W, int Rows, int Columns, class Op, class D, class... X>
ZELM_INLINE void combineRows(const Op& op, const D& dst, const X&... x) {
  combineRow<typename D::Element, W, Columns>(op, 0, dst.origin, rowOf(x, 0)...);
  if constexpr (Rows > 1)
    combineRows<W, Rows - 1, Columns>(op, below(dst), below(x)...);
}

// Rows by Columns elements at (i, j), in blocks of W and, at the edges, smaller ones; some columns are contiguous.
template <int W, int Rows, int Columns, class Op, class D, class... X>
ZELM_INLINE void combineBlocks(const Op& op, int64_t i, int64_t j, const D& dst, const X&... x) {
  using T = typename D::Element;
  if constexpr (Rows > 0 && Columns > 0) {
    if constexpr (Columns < W) {
      combineBlocks<W / 2, Rows, Columns>(op, i, j, dst, x...);
    } else if constexpr (Columns > W) {
      combineBlocks<W, Rows, W>(op, i, j, dst, x...);
      combineBlocks<W, Rows, Columns - W>(op, i, j + W, dst, x...);
    } else if constexpr (W > 1 && Rows >= W) {
      const auto combine = [&](const auto&... block) ZELM_BODY {
        ZELM_UNROLL
        for (int r = 0; r < W; ++r)
          storeLanes(dst.address(i + r, j), op(block.row[r]...));
      };
      combine(loadSquare<W>(x, i, j)...);
      combineBlocks<W, Rows - W, Columns>(op, i + W, j, dst, x...);
    } else if constexpr (W > 2 && Rows >= W / 2) {
      combineBlocks<W / 2, Rows, Columns>(op, i, j, dst, x...);
    } else {
      ZELM_UNROLL
      for (int r = 0; r < Rows; ++r)
        storeElement(dst.address(i + r, j), op(rowOf(x, i + r).template at<LanesOrOne<T, W>>(j)...));
    }
  }
}

// One object. Vectors are as wide as an object that is one row, at most four elements in rows of matrices, and single
// elements where rows or columns are scattered.
template <int Rows, int Columns, class Op, class D, class... X>
ZELM_INLINE void combineObject(const Op& op, const D& dst, const X&... x) {
  using T = typename D::Element;
  constexpr int widest = Rows == 1 ? runLaneCount<T> : smaller(rowLaneCount<T>, 4);
  if constexpr (D::unitRows && (X::unitRows && ...))
    combineRows<widest, Rows, Columns>(op, dst, x...);
  else
    combineBlocks<(D::unitRows && ((X::unitRows || X::unitColumns) && ...) ? widest : 1), Rows, Columns>(op, 0, 0, dst,
                                                                                                         x...);
}

template <int Rows, int Columns, class Op, class D, class... S>
ZELM_NOINLINE void eachObject(Op op, int64_t count, D dst, S... s) {
  for (int64_t k = 0; k < count; ++k)
    combineObject<Rows, Columns>(op, dst.view(k), s.view(k)...);
}

// ---------------------------------------------------------------------------------------------------------------------
// Packed objects of known extents, beside sources that have one object for all or a constant for each

// How many vectors it takes until an object begins with a vector again: all of `Size` if constants take part, which
// come W at a time; at least four otherwise.
template <class T, int Size, bool HasConstants> constexpr int periodVectors() {
  int vectors = HasConstants ? Size : 4;
  while (vectors * runLaneCount<T> % Size != 0)
    ++vectors;
  return vectors;
}

// A source's vectors v = 0, 1, ... of the block of objects that begins with element e, and its elements in a run.
template <class T> struct PackedBlocks : Elements<T> {
  template <class V> ZELM_INLINE RunLanes<T> vector(int64_t e, V v) const {
    return this->template at<RunLanes<T>>(e + v * runLaneCount<T>);
  }
  ZELM_INLINE void begin(int64_t) {}
  ZELM_INLINE void turn(int64_t) {}
};

template <class T> struct SameBlocks : Same<T> {
  template <class V> ZELM_INLINE RunLanes<T> vector(int64_t, V) const { return this->template at<RunLanes<T>>(0); }
  ZELM_INLINE void begin(int64_t) {}
  ZELM_INLINE void turn(int64_t) {}
};

// Whether the elements of a single source lie one behind the other.
template <int Rows, int Columns, class S> ZELM_INLINE bool isGapless(const S& s) {
  if constexpr (S::unitRows && S::isHeld && !S::isComputed)
    return s.dense(Columns, Fixed<Rows>{});
  else
    return false;
}

template <class S> ZELM_INLINE const char* firstElement(const S& s) {
  if constexpr (S::isComputed)
    return nullptr;
  else
    return s.view(0).address(0, 0);
}

template <int Columns, int Size, class S> ZELM_INLINE void copyElements(const S& s, char* to) {
  const auto x = s.view(0);
  ZELM_UNROLL
  for (int e = 0; e < Size; ++e)
    storeElement(to + e * static_cast<int>(sizeof(typename S::Element)), x.load(e / Columns, e % Columns));
}

template <class T, int Size, int Vectors> struct PeriodBlocks {
  static constexpr auto E = static_cast<int64_t>(sizeof(T));
  // Where they leave room for others, the period's vectors stay in registers.
  static constexpr bool held = Vectors <= 12;
  // The object twice and its first elements once more: a vector can be read from any place of it, and a period may
  // begin in its middle.
  static constexpr int length = 2 * Size + runLaneCount<T>;
  char window[length * sizeof(T)];
  int64_t first; // element of the object that the blocks begin with
  RunLanes<T> period[held ? Vectors : 1];
  template <int Columns, class S> ZELM_INLINE void fill(const S& source) {
    if (isGapless<Size / Columns, Columns>(source))
      std::memcpy(window, firstElement(source), Size * sizeof(T));
    else
      copyElements<Columns, Size>(source, window);
    ZELM_UNROLL
    for (int e = Size; e < length; e += Size)
      std::memcpy(window + e * E, window, static_cast<size_t>(smaller(Size, length - e)) * sizeof(T));
  }
  ZELM_INLINE void begin(int64_t e) {
    first = e % Size;
    if constexpr (held) {
      ZELM_UNROLL
      for (int v = 0; v < Vectors; ++v)
        period[v] = ofPeriod(v);
    }
  }
  ZELM_INLINE RunLanes<T> ofPeriod(int v) const {
    return loadElement<RunLanes<T>>(window + (first + v * runLaneCount<T> % Size) * E);
  }
  template <class L> ZELM_INLINE L at(int64_t e) const { return loadElement<L>(window + e % Size * E); }
  template <class V> ZELM_INLINE RunLanes<T> vector(int64_t, V v) const {
    if constexpr (held)
      return period[v];
    else
      return ofPeriod(v);
  }
  ZELM_INLINE void turn(int64_t) {}
};

template <class T, int Size, class C> struct ConstantBlocks {
  C constants;
  RunLanes<T> each;
  template <class L> ZELM_INLINE L at(int64_t e) const {
    return eachLane<T, L>([&](int w) ZELM_BODY { return constants.load((e + w) / Size); });
  }
  template <class V> ZELM_INLINE RunLanes<T> vector(int64_t, V v) const {
    return spread<v>(std::make_integer_sequence<int, runLaneCount<T>>{});
  }
  template <int Vector, int... I> ZELM_INLINE RunLanes<T> spread(std::integer_sequence<int, I...>) const {
    return __builtin_shufflevector(each, each, ((Vector * runLaneCount<T> + I) / Size)...);
  }
  ZELM_INLINE void begin(int64_t) {}
  ZELM_INLINE void turn(int64_t e) {
    const int64_t k = e / Size;
    if constexpr (std::is_same_v<C, Constants<const T>>) {
      if (constants.stride0 == static_cast<int64_t>(sizeof(T))) {
        each = loadElement<RunLanes<T>>(reinterpret_cast<const char*>(constants.pointer) + k * constants.stride0);
        return;
      }
    }
    each = eachLane<T, RunLanes<T>>([&](int w) ZELM_BODY { return constants.load(k + w); });
  }
};

template <int Size, int Columns, int Vectors, class S> ZELM_INLINE auto blocksOf(const S& s) {
  using T = typename S::Element;
  if constexpr (S::isConstants) {
    return ConstantBlocks<T, Size, decltype(s.constants)>{s.constants, {}};
  } else if constexpr (S::isArray) {
    return PackedBlocks<T>{{s.origin}};
  } else if constexpr (isUniform<S>) {
    return SameBlocks<T>{{s.value.value}};
  } else {
    PeriodBlocks<T, Size, Vectors> blocks;
    blocks.template fill<Columns>(s);
    return blocks;
  }
}

template <class> constexpr bool areConstantBlocks = false;
template <class T, int Size, class C> constexpr bool areConstantBlocks<ConstantBlocks<T, Size, C>> = true;

template <int Vectors, class T, class Op, class... B>
ZELM_INLINE void runBlocks(const Op& op, char* dst, int64_t n, int64_t total, B&&... blocks) {
  constexpr int64_t W = runLaneCount<T>;
  if (isRunStreamed<T>(dst, n, total, blocks...))
    return runStreamed<T>(op, dst, n, blocks...);
  int64_t e = 0;
  // The constants of a block are those of whole objects.
  if constexpr (!(areConstantBlocks<B> || ...))
    e = runLead<T>(op, dst, n, blocks...);
  (blocks.begin(e), ...);
  for (; e + Vectors * W <= n; e += Vectors * W) {
    (blocks.turn(e), ...);
    ascending(Fixed<0>{}, Fixed<Vectors>{}, [&](auto v) ZELM_BODY {
      storeLanes(dst + (e + v * W) * static_cast<int64_t>(sizeof(T)), op(blocks.vector(e, v)...));
    });
  }
  runLast<T>(op, dst, e, n, blocks...);
}

// ---------------------------------------------------------------------------------------------------------------------
// Packed objects of which some are transposed, as a whole: few shuffles go from half to half

// The vectors of an object, and what element is left.
template <class T, int Side> struct WholeObject;
template <class T> struct WholeObject<T, 3> {
  static constexpr int width = smaller(rowLaneCount<T>, 8);
  Lanes<T, width> vector[8 / width];
  T last;
};
template <class T> struct WholeObject<T, 4> {
  static constexpr int width = 8;
  Lanes<T, 8> vector[2];
  T last; // there is none
};
template <class T, int Side>
constexpr bool hasWholeObject = Side == 3 || (Side == 4 && sizeof(T) == 4 && rowLaneCount<T> >= 8);

template <int Side, class T> ZELM_INLINE auto loadWhole(const char* x) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  using Whole = WholeObject<T, Side>;
  Whole whole;
  ZELM_UNROLL
  for (int v = 0; v < static_cast<int>(sizeof whole.vector / sizeof whole.vector[0]); ++v)
    whole.vector[v] = loadLanes<T, Whole::width>(x + v * Whole::width * E);
  whole.last = Side == 3 ? loadElement<T>(x + 8 * E) : T{};
  return whole;
}

template <int Side, class T> ZELM_INLINE auto loadWholeTransposed(const char* x) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  WholeObject<T, Side> whole;
  if constexpr (Side == 4) {
    auto upper = loadLanes<T, 8>(x);
    auto lower = loadLanes<T, 8>(x + 8 * E);
    upper = __builtin_shufflevector(upper, upper, 0, 4, 2, 6, 1, 5, 3, 7);
    lower = __builtin_shufflevector(lower, lower, 0, 4, 2, 6, 1, 5, 3, 7);
    whole.vector[0] = __builtin_shufflevector(upper, lower, 0, 1, 8, 9, 4, 5, 12, 13);
    whole.vector[1] = __builtin_shufflevector(upper, lower, 2, 3, 10, 11, 6, 7, 14, 15);
    whole.last = T{};
  } else {
    // Elements in the order 0 3 6 1 4 7 2 5 8.
    if constexpr (whole.width == 8) {
      const auto v = loadLanes<T, 8>(x);
      whole.vector[0] = __builtin_shufflevector(v, v, 0, 3, 6, 1, 4, 7, 2, 5);
    } else if constexpr (whole.width == 4 && sizeof(T) == 8) {
      const auto pair = [x](int i, int j) ZELM_BODY {
        return Lanes<T, 2>{loadElement<T>(x + i * E), loadElement<T>(x + j * E)};
      };
      const auto quad = [](const Lanes<T, 2>& low, const Lanes<T, 2>& high)
                            ZELM_BODY { return __builtin_shufflevector(low, high, 0, 1, 2, 3); };
      whole.vector[0] = quad(pair(0, 3), pair(6, 1));
      whole.vector[1] = quad(pair(4, 7), pair(2, 5));
    } else if constexpr (whole.width == 4) {
      const auto v0123 = loadLanes<T, 4>(x);
      const auto v3456 = loadLanes<T, 4>(x + 3 * E);
      const auto v5678 = loadLanes<T, 4>(x + 5 * E);
      const auto v6611 = __builtin_shufflevector(v3456, v0123, 3, 3, 5, 5);
      const auto v4477 = __builtin_shufflevector(v3456, v5678, 1, 1, 6, 6);
      const auto v2255 = __builtin_shufflevector(v0123, v3456, 2, 2, 6, 6);
      whole.vector[0] = __builtin_shufflevector(v0123, v6611, 0, 3, 4, 6);
      whole.vector[1] = __builtin_shufflevector(v4477, v2255, 0, 2, 4, 6);
    } else {
      const auto v01 = loadLanes<T, 2>(x);
      const auto v23 = loadLanes<T, 2>(x + 2 * E);
      const auto v45 = loadLanes<T, 2>(x + 4 * E);
      const auto v67 = loadLanes<T, 2>(x + 6 * E);
      whole.vector[0] = __builtin_shufflevector(v01, v23, 0, 3);
      whole.vector[1] = __builtin_shufflevector(v67, v01, 0, 3);
      whole.vector[2] = __builtin_shufflevector(v45, v67, 0, 3);
      whole.vector[3] = __builtin_shufflevector(v23, v45, 0, 3);
    }
    whole.last = loadElement<T>(x + 8 * E);
  }
  return whole;
}

template <int Side, class S> ZELM_INLINE auto wholeObject(const S& s, int64_t k) {
  using T = typename S::Element;
  if constexpr (isUniform<S>) {
    WholeObject<T, Side> whole;
    for (auto& vector : whole.vector)
      vector = rowOf(s.view(k), 0).template at<Lanes<T, WholeObject<T, Side>::width>>(0);
    whole.last = s.view(k).value;
    return whole;
  } else if constexpr (S::unitRows) {
    return loadWhole<Side, T>(s.view(k).origin);
  } else {
    return loadWholeTransposed<Side, T>(s.view(k).origin);
  }
}

template <int Side, class Op, class D, class... S>
ZELM_NOINLINE void eachWholeObject(Op op, int64_t count, D dst, S... s) {
  using T = typename D::Element;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  for (int64_t k = 0; k < count; ++k) {
    char* const address = dst.view(k).origin;
    const auto combine = [&](const auto&... whole) ZELM_BODY {
      constexpr int width = WholeObject<T, Side>::width;
      ZELM_UNROLL
      for (int v = 0; v < Side * Side / width; ++v)
        storeLanes(address + v * width * E, op(whole.vector[v]...));
      if constexpr (Side == 3)
        storeElement<T>(address + 8 * E, op(whole.last...));
    };
    combine(wholeObject<Side>(s, k)...);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Batches, standard and list layout

// A single source of a batch, without gaps; others are what they are.
template <class S, int Rows, int Columns, bool Hold> struct HeldSource {
  const S& source;
  explicit HeldSource(const S& s) : source(s) {}
  ZELM_INLINE auto objects() const { return source.asArray(); }
};
template <class S, int Rows, int Columns> struct HeldSource<S, Rows, Columns, true> {
  using T = typename S::Element;
  alignas(64) T element[Rows * Columns];
  const char* first;
  ZELM_INLINE explicit HeldSource(const S& s) {
    if (isGapless<Rows, Columns>(s)) {
      first = firstElement(s);
    } else {
      copyElements<Columns, Rows * Columns>(s, reinterpret_cast<char*>(element));
      first = reinterpret_cast<const char*>(element);
    }
  }
  ZELM_INLINE auto objects() const {
    return StridedObjects<const T, AnyStep, UnitStep<const T>, true>{
        first, 0, Columns * static_cast<int>(sizeof(T)), {}};
  }
};

// Whether the stored rows of an object have no gaps.
template <class S> ZELM_INLINE bool isDenseAsStored(const S& s, int64_t side) {
  if constexpr (S::unitRows)
    return s.dense(side, side);
  else
    return s.transposed().dense(side, side);
}

// Objects of known extents.
template <int Rows, int Columns, class Op, class D, class... S>
ZELM_INLINE void fixedObjects(const Op& op, int64_t count, const D& dst, const S&... s) {
  if constexpr (D::unitRows && (S::unitRows && ...) && Rows > 1) {
    if (dst.dense(Columns, Rows) && (s.dense(Columns, Rows) && ...))
      return eachObject<1, Rows * Columns>(op, count, dst, s...);
  } else if constexpr (D::unitRows && !(S::unitRows && ...) && Rows == Columns &&
                       hasWholeObject<typename D::Element, Rows>) {
    if (dst.dense(Columns, Rows) && (isDenseAsStored(s, Rows) && ...))
      return eachWholeObject<Rows>(op, count, dst, s...);
  }
  eachObject<Rows, Columns>(op, count, dst, s...);
}

// One object of known extents.
template <int Rows, int Columns, class Op, class D, class... S>
ZELM_INLINE void fixedObject(const Op& op, const D& dst, const S&... s) {
  if constexpr (D::unitRows && (S::unitRows && ...) && Rows > 1) {
    if (dst.dense(Columns, Rows) && (s.dense(Columns, Rows) && ...))
      return combineObject<1, Rows * Columns>(op, dst.view(0), s.view(0)...);
  }
  combineObject<Rows, Columns>(op, dst.view(0), s.view(0)...);
}

// Objects of known extents whose rows are contiguous, or for some sources the columns.
template <int Rows, int Columns, class Op, class N, class D, class... S>
ZELM_INLINE void fixedUnitObjects(const Op& op, N objects, const D& dst, const S&... s) {
  using T = typename D::Element;
  [[maybe_unused]] constexpr int size = Rows * Columns;
  const int64_t count = objects;
  if constexpr (!D::isList && ((!S::isArray || S::unitRows) && ...) && ((S::isHeld || S::isConstants) || ...)) {
    constexpr int vectors = periodVectors<T, size, (S::isConstants || ...)>();
    if (count * size >= vectors * runLaneCount<T> && dst.packed(Columns, Rows, count) &&
        (s.packed(Columns, Rows, count) && ...)) {
      return runBlocks<vectors, T>(op, dst.origin, count * size, wholeOf(objects) * size,
                                   blocksOf<size, Columns, vectors>(s)...);
    }
  }
  const auto combine = [&](const auto&... held)
                           ZELM_BODY { fixedObjects<Rows, Columns>(op, count, dst, held.objects()...); };
  combine(HeldSource<S, Rows, Columns, S::isHeld>(s)...);
}

// Objects of any extents: a run a row, or a run an object.
template <class Op, class D, class... S>
ZELM_NOINLINE void anyObjects(Op op, int64_t width, int64_t height, int64_t count, D dst, S... s) {
  using T = typename D::Element;
  constexpr bool rows = D::unitRows && (S::unitRows && ...);
  if constexpr (rows) {
    if (dst.dense(width, height) && (s.dense(width, height) && ...)) {
      width *= height;
      height = 1;
    }
  }
  for (int64_t k = 0; k < count; ++k) {
    const auto result = dst.view(k);
    for (int64_t i = 0; i < height; ++i) {
      if constexpr (rows) {
        run<T>(op, result.address(i, 0), width, width, rowOf(s.view(k), i)...);
      } else {
        for (int64_t j = 0; j < width; ++j)
          result.store(i, j, op(s.view(k).load(i, j)...));
      }
    }
  }
}

// The straight-line size of an object: the side of a square, the length of a vector.
ZELM_INLINE int32_t straightSize(int32_t width, int32_t height) {
  return width == height ? width : 0;
}
ZELM_INLINE int32_t straightSize(int32_t width, Fixed<1>) {
  return width;
}

// Whether all operands are one run of elements.
template <class H, class N, class D, class... S>
ZELM_INLINE bool isOneRun(int32_t width, H height, N count, const D& dst, const S&... s) {
  if constexpr (D::isList || !D::unitRows || !(S::unitRows && ...) || ((S::isHeld || S::isConstants) || ...))
    return false;
  else
    return dst.packed(width, height, count) && (s.packed(width, height, count) && ...);
}

template <class H, class N, class Op, class D, class... S>
ZELM_INLINE void runOfAll(const Op& op, int32_t width, H height, N count, const D& dst, const S&... s) {
  if constexpr (D::unitRows && (S::unitRows && ...) && !D::isList) {
    const int64_t n = static_cast<int64_t>(width) * height * count;
    run<typename D::Element>(op, dst.origin, n, wholeOf(count) * width * height, rowOf(s.view(0), 0)...);
  }
}

// The rows of the result are contiguous, and the rows or the columns of each source.
template <class List, class Op, class H, class N, class D, class... S>
ZELM_INLINE ZelStatus unitObjects(List sizes, const Op& op, int32_t width, H height, N count, const D& dst,
                                  const S&... s) {
  if constexpr (!isFixed<N>) {
    if (isOneRun(width, height, count, dst, s...)) {
      runOfAll(op, width, height, count, dst, s...);
      return zelStatusOk;
    }
  }
  return forSize(
      sizes, straightSize(width, height),
      [&](auto size) ZELM_BODY {
        constexpr int rows = isFixed<H> ? 1 : size;
        if constexpr (isFixed<N>)
          fixedObject<rows, size>(op, dst, s...);
        else
          fixedUnitObjects<rows, size>(op, count, dst, s...);
        return zelStatusOk;
      },
      [&]() ZELM_BODY {
        if (isFixed<N> && isOneRun(width, height, count, dst, s...))
          runOfAll(op, width, height, count, dst, s...);
        else
          anyObjects(op, width, height, count, dst, s.asArray()...);
        return zelStatusOk;
      });
}

// The same for operands whose rows were their columns.
template <class List, class Op, class N, class D, class... S>
ZELM_NOINLINE ZelStatus exchangedObjects(List sizes, Op op, int32_t width, int32_t height, N count, D dst, S... s) {
  return unitObjects(sizes, op, width, height, count, dst, s...);
}
template <class List, class Op, class N, class D, class... S>
ZELM_INLINE ZelStatus exchangedObjectsOrRun(List sizes, const Op& op, int32_t width, int32_t height, N count,
                                            const D& dst, const S&... s) {
  if (isOneRun(width, height, count, dst, s...)) {
    runOfAll(op, width, height, count, dst, s...);
    return zelStatusOk;
  }
  return exchangedObjects(sizes, op, width, height, count, dst, s...);
}

// ---------------------------------------------------------------------------------------------------------------------
// Batches, position by position

// Element (i, j) of the objects from object k on.
template <bool SideBySide, class S> ZELM_INLINE auto positionOf(const S& s, int64_t i, int64_t j, int64_t k) {
  using T = typename S::Element;
  if constexpr (!S::isArray && !S::isConstants)
    return Same<T>{s.view(0).load(i, j)};
  else if constexpr (SideBySide)
    return Elements<T>{s.position(i, j) + k * s.step()};
  else
    return Spaced<T>{s.position(i, j) + k * s.step(), s.step()};
}

// Whether neighbouring objects lie side by side.
template <class S> ZELM_INLINE bool isSideBySide(const S& s) {
  if constexpr (S::isArray || S::isConstants)
    return s.step() == static_cast<int64_t>(sizeof(typename S::Element));
  else
    return true;
}

// Whether the elements of position (i, j) begin n elements behind the first one.
template <class S> ZELM_INLINE bool liesBehind(const S& s, int64_t i, int64_t j, int64_t n) {
  if constexpr (isUniform<S>)
    return true;
  else if constexpr (S::isArray)
    return s.position(i, j) == s.position(0, 0) + n * static_cast<int64_t>(sizeof(typename S::Element));
  else
    return false;
}
// Whether the planes of all operands, one for each position, lie one behind the other.
template <class H, class... S>
ZELM_INLINE bool areOnePlane(int32_t width, H height, int64_t count, const S&... operands) {
  for (int32_t i = 0; i < height; ++i)
    for (int32_t j = 0; j < width; ++j)
      if (!(liesBehind(operands, i, j, (int64_t{i} * width + j) * count) && ...))
        return false;
  return true;
}

template <class Op, class H, class N, class D, class... S>
ZELM_NOINLINE void positionsSideBySide(Op op, int32_t width, H height, N count, D dst, S... s) {
  using T = typename D::Element;
  const int64_t total = wholeOf(count) * width * height;
  const bool streams = total * static_cast<int64_t>(sizeof(T)) >= streamingBytes;
  int64_t n = count;
  int32_t rows = height;
  if (areOnePlane(width, height, count, dst, s...)) {
    n *= int64_t{width} * height;
    width = rows = 1;
  }
  for (int32_t i = 0; i < rows; ++i)
    for (int32_t j = 0; j < width; ++j) {
      if (__builtin_expect(streams, false))
        run<T>(op, dst.position(i, j), n, total, positionOf<true>(s, i, j, 0)...);
      else
        runKept<T>(op, dst.position(i, j), n, positionOf<true>(s, i, j, 0)...);
    }
}

// Scattered elements share cache lines between positions: some objects at a time keep these at hand.
template <class Op, class H, class D, class... S>
ZELM_NOINLINE void positionsApart(Op op, int32_t width, H height, int64_t count, D dst, S... s) {
  using T = typename D::Element;
  constexpr int64_t tile = 32;
  for (int64_t k = 0; k < count; k += tile) {
    const int64_t n = count - k < tile ? count - k : tile;
    for (int32_t i = 0; i < height; ++i)
      for (int32_t j = 0; j < width; ++j) {
        const auto combine = [&, address = dst.position(i, j) + k * dst.step()](const auto&... x) ZELM_BODY {
          for (int64_t e = 0; e < n; ++e)
            storeElement<T>(address + e * dst.step(), op(x.template at<T>(e)...));
        };
        combine(positionOf<false>(s, i, j, k)...);
      }
  }
}

template <class Op, class H, class N, class D, class... S>
ZELM_INLINE ZelStatus positions(const Op& op, int32_t width, H height, N count, const D& dst, const S&... s) {
  if (isSideBySide(dst) && (isSideBySide(s) && ...))
    positionsSideBySide(op, width, height, count, dst, s...);
  else
    positionsApart(op, width, height, count, dst, s...);
  return zelStatusOk;
}

// ---------------------------------------------------------------------------------------------------------------------
// Any operands

// Standard and list layout, any strides.
template <class List, class Op, class H, class N, class D, class... S>
ZELM_INLINE ZelStatus stridedObjects(List sizes, const Op& op, int32_t width, H height, N count, const D& dst,
                                     const S&... s) {
  if constexpr (!isFixed<H>) {
    if (dst.hasColumns() && (s.hasColumns() && ...))
      return exchangedObjectsOrRun(sizes, op, height, width, count, dst.exchanged(), s.exchanged()...);
  }
  if constexpr (!D::isList && !(S::isList || ...) && !isFixed<N>) {
    if (isSideBySide(dst) && (isSideBySide(s) && ...)) {
      positionsSideBySide(op, width, height, count, dst, s...);
      return zelStatusOk;
    }
  }
  return forSize(
      sizes, straightSize(width, height),
      [&](auto size) ZELM_BODY {
        eachObject<isFixed<H> ? 1 : size, size>(op, count, dst.asArray(), s.asArray()...);
        return zelStatusOk;
      },
      [&]() ZELM_BODY {
        anyObjects(op, width, height, count, dst.asArray(), s.asArray()...);
        return zelStatusOk;
      });
}

// Standard and list layout.
template <class List, class Op, class H, class N, class D, class... S>
ZELM_INLINE ZelStatus unitOrStrided(List sizes, const Op& op, int32_t width, H height, N count, const D& dst,
                                    const S&... s) {
  if constexpr (D::unitRows)
    return unitObjects(sizes, op, width, height, count, dst, s...);
  else
    return stridedObjects(sizes, op, width, height, count, dst, s...);
}

template <class List, class Op, class H, class N, class D, class... S>
ZELM_INLINE ZelStatus combineObjects(List sizes, const Op& op, int32_t width, H height, N count, const D& dst,
                                     const S&... s) {
  if constexpr (D::isPointer || (S::isPointer || ...)) {
    if constexpr (isFixed<N> || D::isList || (S::isList || ...)) {
      anyObjects(op, width, height, count, dst, s...);
      return zelStatusOk;
    } else {
      return positions(op, width, height, count, dst, s...);
    }
  } else if constexpr (isFixed<N>) {
    // One object: single sources are what arrays would be.
    return unitOrStrided(sizes, op, width, height, count, dst.asArray(), s.asArray()...);
  } else {
    return unitOrStrided(sizes, op, width, height, count, dst, s...);
  }
}

template <class List, class Op, class H, class N, class D, class... S>
ZELM_INLINE ZelStatus elementwiseOf(const Op& op, List sizes, int32_t width, H height, N count, const D& dst,
                                    const S&... s) {
  return combineObjects(sizes, op, width, height, count, objectsOf(dst, width),
                        objectsOf(s, isTransposed<S> ? static_cast<int32_t>(height) : width)...);
}

// ---------------------------------------------------------------------------------------------------------------------
// A kernel's arguments as they stand

template <int I, class First, class... Rest>
ZELM_INLINE const auto& argumentAt(const First& first, const Rest&... rest) {
  if constexpr (I == 0)
    return first;
  else
    return argumentAt<I - 1>(rest...);
}

template <class Op, class List, int... Source, class H, class N, class... A>
ZELM_INLINE ZelStatus elementwiseOn(std::integer_sequence<int, Source...>, int32_t width, H height, N count,
                                    const A&... a) {
  return elementwiseOf(Op{}, List{}, width, height, count, argumentAt<sizeof...(Source)>(a...),
                       argumentAt<Source>(a...)...);
}

template <class Op, class List = Sizes<>, class... A> ZELM_INLINE ZelStatus elementwise(const A&... a) {
  constexpr int extents = (std::is_same_v<A, Size> + ...);
  constexpr int counts = (std::is_same_v<A, Count> + ...);
  constexpr int result = static_cast<int>(sizeof...(A)) - extents - counts - 1;
  const int32_t width = argumentAt<result + 1>(a...);
  const auto withHeight = [&](auto height) ZELM_BODY {
    if constexpr (counts == 0)
      return elementwiseOn<Op, List>(std::make_integer_sequence<int, result>{}, width, height, Fixed<1>{}, a...);
    else
      return elementwiseOn<Op, List>(std::make_integer_sequence<int, result>{}, width, height,
                                     argumentAt<result + extents + 1>(a...), a...);
  };
  if constexpr (extents == 1)
    return withHeight(Fixed<1>{});
  else
    return withHeight(argumentAt<result + 2>(a...).value);
}

} // namespace zelm
