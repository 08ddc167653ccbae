// Blocks: objects k, k + 1, ... of a batch side by side in lanes, whatever their layout; Cholesky, QR and LU run on
// them.
//
// A block has one object a lane. Where the batch ends within a block, the lanes behind its last object repeat that
// object: they are read, computed and stored alike, so that the rest of a batch takes the code of a whole block. Only
// the elements that are asked for are read or written.
#pragma once

#include "zelmextent.h"
#include "zelmtile.h"

#include <new>

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// One element of each object

// address(w) is the element's in lane w.
template <class T, class A> ZELM_INLINE Lanes<T> gatherLanes(const A& address) {
  return lanesOf<Lanes<T>>([&](int w) ZELM_BODY { return loadElement<T>(address(w)); });
}

template <class T, class A> ZELM_INLINE void scatterLanes(const A& address, const Lanes<T>& lanes) {
  ZELM_UNROLL
  for (int w = 0; w < laneCount<T>; ++w)
    storeElement<T>(address(w), lanes[w]);
}

// Two neighbouring elements of each object, eight bytes at a time. Of four objects, whose elements a part of a vector
// has, the first two make a part of one vector and the others a part of another.
template <class C> ZELM_INLINE void loadPairs(const ObjectAddresses<float, C>& x, int64_t offset, Lanes<float>* lanes) {
  const auto twoFrom = [&](int first) ZELM_BODY {
    const auto at = [&](int w) ZELM_BODY { return loadElement<double>(x.of[w / 2 * 4 + first + w % 2] + offset); };
    return reinterpret_cast<Lanes<float>>(lanesOf<Lanes<double>>(at));
  };
  const auto p = twoFrom(0);
  const auto q = twoFrom(2);
  lanes[0] = pick<0, 2, 4, 6>(p, q);
  lanes[1] = pick<1, 3, 5, 7>(p, q);
}
ZELM_INLINE void storePairs(const ObjectAddresses<float, char>& x, int64_t offset, const Lanes<float>* lanes) {
  const auto p = reinterpret_cast<Lanes<double>>(pick<0, 4, 1, 5>(lanes[0], lanes[1]));
  const auto q = reinterpret_cast<Lanes<double>>(pick<2, 6, 3, 7>(lanes[0], lanes[1]));
  ZELM_UNROLL
  for (int w = 0; w < laneCount<double>; ++w) {
    storeElement<double>(x.of[w / 2 * 4 + w % 2] + offset, p[w]);
    storeElement<double>(x.of[w / 2 * 4 + w % 2 + 2] + offset, q[w]);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Blocks by layout. load and store take a run of n elements of row i from
// column j on, n known to the compiler or not; `straight` are those with
// vector loads and stores, for which it should be.

// Standard and list layout; a vector is a row. The addresses of the objects are the block's own or those of another
// block, which are not copied: what was just written one by one cannot be read in larger pieces without a delay.
template <class T, class ColumnStep, bool OwnAddresses = true> struct StridedBlock {
  using Element = std::remove_const_t<T>;
  using Addresses = ObjectAddresses<Element, Byte<T>>;
  static constexpr bool unit = std::is_same_v<ColumnStep, UnitStep<T>>;
  static constexpr bool straight = true;
  static constexpr int chunk = chunkElements<Element>;
  static constexpr auto elementBytes = static_cast<int64_t>(sizeof(Element));
  std::conditional_t<OwnAddresses, Addresses, const Addresses&> objects;
  int64_t rowStep;
  ColumnStep columnStep;

  // Whether rows of this width follow each other without gaps, and so are one
  // run.
  ZELM_INLINE bool gapless(int width) const { return unit && rowStep == width * elementBytes; }

  // Element (i, j) of the object in lane w.
  ZELM_INLINE Byte<T>* address(int64_t i, int64_t j, int w) const {
    return objects.of[w] + i * rowStep + j * columnStep;
  }

  // With any steps: whether the elements of a row, or those of a column, are neighbours after all; and the same objects
  // as rows of these, the columns' with the axes exchanged.
  ZELM_INLINE bool unitRows() const { return columnStep == elementBytes; }
  ZELM_INLINE bool unitColumns() const { return rowStep == elementBytes; }
  using Rows = StridedBlock<T, UnitStep<T>, false>;
  ZELM_INLINE Rows byRows() const { return {objects, rowStep, {}}; }
  ZELM_INLINE Rows byColumns() const { return {objects, columnStep, {}}; }

  template <class N> ZELM_INLINE void load(int i, int j, N n, Lanes<Element>* lanes) const {
    const int64_t offset = i * rowStep + j * columnStep;
    if constexpr (unit && isFixed<N>)
      loadFixed(offset, n, lanes);
    else if constexpr (unit)
      loadUnit(offset, n, lanes);
    else
      ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY { lanes[e] = gather(offset + e * columnStep); });
  }

  template <class N> ZELM_INLINE void store(int i, int j, N n, const Lanes<Element>* lanes) const {
    const int64_t offset = i * rowStep + j * columnStep;
    if constexpr (unit && isFixed<N>)
      storeFixed(offset, n, lanes);
    else if constexpr (unit)
      storeUnit(offset, n, lanes);
    else
      ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY { scatter(offset + e * columnStep, lanes[e]); });
  }

private:
  ZELM_INLINE Lanes<Element> gather(int64_t offset) const {
    return gatherLanes<Element>([&](int w) ZELM_BODY { return objects.of[w] + offset; });
  }
  ZELM_INLINE void scatter(int64_t offset, const Lanes<Element>& lanes) const {
    scatterLanes<Element>([&](int w) ZELM_BODY { return objects.of[w] + offset; }, lanes);
  }

  template <int N> ZELM_INLINE void loadFixed(int64_t offset, Fixed<N>, Lanes<Element>* lanes) const {
    if constexpr (N == 1)
      lanes[0] = gather(offset);
    else if constexpr ((N == 2 || N == 3) && chunk == 4) {
      // Three elements as two and one.
      loadPairs(objects, offset, lanes);
      if constexpr (N == 3)
        lanes[2] = gather(offset + 2 * elementBytes);
    } else
      loadRun<N, Element>(objects, offset, lanes);
  }
  template <int N> ZELM_INLINE void storeFixed(int64_t offset, Fixed<N>, const Lanes<Element>* lanes) const {
    if constexpr (N == 1)
      scatter(offset, lanes[0]);
    else if constexpr ((N == 2 || N == 3) && chunk == 4) {
      storePairs(objects, offset, lanes);
      if constexpr (N == 3)
        scatter(offset + 2 * elementBytes, lanes[2]);
    } else
      storeRun<N, Element>(objects, offset, lanes);
  }

  ZELM_INLINE void loadUnit(int64_t offset, int n, Lanes<Element>* lanes) const {
    if (n < chunk) {
      for (int e = 0; e < n; ++e)
        lanes[e] = gather(offset + e * elementBytes);
      return;
    }
    for (int e = 0; e < n; e += chunk) {
      const int from = e + chunk <= n ? e : n - chunk;
      loadRun<chunk, Element>(objects, offset + from * elementBytes, lanes + from);
    }
  }
  ZELM_INLINE void storeUnit(int64_t offset, int n, const Lanes<Element>* lanes) const {
    if (n < chunk) {
      for (int e = 0; e < n; ++e)
        scatter(offset + e * elementBytes, lanes[e]);
      return;
    }
    for (int e = 0; e < n; e += chunk) {
      const int from = e + chunk <= n ? e : n - chunk;
      storeRun<chunk, Element>(objects, offset + from * elementBytes, lanes + from);
    }
  }
};

// The length of the rows as stored, in the pointer layout: known to the compiler or not.
template <class N> using RowLength = std::conditional_t<isFixed<N>, N, int64_t>;

// Pointer layout, any stride0.
template <class T, class Length> struct PositionBlock {
  using Element = std::remove_const_t<T>;
  T* const* list;
  Length rowLength;
  int64_t offset[laneCount<Element>];

  static constexpr bool unit = false;
  static constexpr bool straight = false;
  static constexpr bool gapless(int) { return false; }
  ZELM_INLINE Byte<T>* address(int64_t i, int64_t j, int w) const {
    return reinterpret_cast<Byte<T>*>(list[i * rowLength + j]) + offset[w];
  }
  template <class N> ZELM_INLINE void load(int i, int j, N n, Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY {
      auto* const position = reinterpret_cast<const char*>(list[i * rowLength + j + e]);
      lanes[e] = gatherLanes<Element>([&](int w) ZELM_BODY { return position + offset[w]; });
    });
  }
  template <class N> ZELM_INLINE void store(int i, int j, N n, const Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY {
      auto* const position = reinterpret_cast<char*>(list[i * rowLength + j + e]);
      scatterLanes<Element>([&](int w) ZELM_BODY { return position + offset[w]; }, lanes[e]);
    });
  }
};

// Pointer layout where stride0 is the element size: at each position the
// objects are neighbours.
template <class T, class Length> struct NeighbourBlock {
  using Element = std::remove_const_t<T>;
  T* const* list;
  Length rowLength;
  int64_t offset;

  static constexpr bool unit = false;
  static constexpr bool straight = true;
  static constexpr bool gapless(int) { return false; }
  ZELM_INLINE Byte<T>* address(int64_t i, int64_t j, int w) const {
    return reinterpret_cast<Byte<T>*>(list[i * rowLength + j]) + offset + w * static_cast<int>(sizeof(T));
  }
  template <class N> ZELM_INLINE void load(int i, int j, N n, Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY {
      lanes[e] = loadLanes<Element>(reinterpret_cast<const char*>(list[i * rowLength + j + e]) + offset);
    });
  }
  template <class N> ZELM_INLINE void store(int i, int j, N n, const Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY {
      storeLanes(reinterpret_cast<char*>(list[i * rowLength + j + e]) + offset, lanes[e]);
    });
  }
};

// ---------------------------------------------------------------------------------------------------------------------
// Blocks of an operand

// Which block of a batch: the objects first, ..., first + last, at most a
// vector full. Neighbours: all operands have the objects of the block as
// neighbours, and the block is whole.
template <bool Neighbours> struct Block {
  static constexpr bool neighbours = Neighbours;
  int64_t first;
  int last;
  // The two vectors of a block of W objects each.
  template <int W> Block low() const { return {first, last < W ? last : W - 1}; }
  template <int W> Block high() const { return {last < W ? first + last : first + W, last < W ? 0 : last - W}; }
};

template <class> constexpr bool isPointerLayout = false;
template <class T> constexpr bool isPointerLayout<MatrixP<T>> = true;
template <class T> constexpr bool isPointerLayout<MatricesP<T>> = true;
template <class T> constexpr bool isPointerLayout<VectorP<T>> = true;
template <class T> constexpr bool isPointerLayout<VectorsP<T>> = true;

template <class T, class RowStep, class Step, class N>
ZELM_INLINE StridedBlock<T, Step> blockOf(const StridedMatrixView<T, RowStep, Step>& view, N) {
  return {{}, view.rowStep, view.columnStep};
}
template <class T, class Step, class N>
ZELM_INLINE StridedBlock<T, Step> blockOf(const StridedVectorView<T, Step>& view, N) {
  return {{}, 0, view.step};
}
template <class T, class N>
ZELM_INLINE PositionBlock<T, RowLength<N>> blockOf(const PointerMatrixView<T>& view, N rowLength) {
  return {view.list, rowLength, {}};
}
template <class T, class N>
ZELM_INLINE PositionBlock<T, RowLength<N>> blockOf(const PointerVectorView<T>& view, N rowLength) {
  return {view.list, rowLength, {}};
}

// The kind of block that its neighbours make, in the pointer layout.
struct NoNeighbours {};
template <class T, class Step> NoNeighbours neighboursOf(const StridedBlock<T, Step>&);
template <class T, class Length> NeighbourBlock<T, Length> neighboursOf(const PositionBlock<T, Length>&);

// One operand's blocks, one after the other in the same place: only the
// addresses change. (Blocks that were made anew would be copied, in pieces of
// another size than they were written.) The place is made at the first block:
// a few objects that go one by one do without.
template <class Operand, class N, class View> class BlocksOf {
public:
  // view(k) is object k.
  ZELM_INLINE BlocksOf(const Operand& operand, N rowLength, const View& view)
      : operand_(operand), rowLength_(rowLength), view_(view) {}

  template <class B> ZELM_INLINE const auto& at(const B& block) {
    if (!made_) {
      new (&block_) Kind(blockOf(view_(0), rowLength_));
      made_ = true;
    }
    if constexpr (isPointerLayout<Operand>) {
      if constexpr (B::neighbours) {
        neighbours_ = {block_.list, block_.rowLength, operand_.offset + block.first * operand_.stride0};
        return neighbours_;
      } else {
        place(block, block_.offset, [&](int64_t k) ZELM_BODY { return operand_.offset + k * operand_.stride0; });
        return block_;
      }
    } else {
      place(block, block_.objects.of, [&](int64_t k) ZELM_BODY { return view_(k).origin; });
      return block_;
    }
  }

private:
  using Kind = decltype(blockOf(std::declval<View>()(0), std::declval<N>()));

  template <class B, class Place, int W, class F>
  ZELM_INLINE static void place(const B& block, Place (&places)[W], const F& of) {
    if (block.last == W - 1) {
      ZELM_UNROLL
      for (int w = 0; w < W; ++w)
        places[w] = of(block.first + w);
    } else {
      for (int w = 0; w < W; ++w)
        places[w] = of(block.first + (w < block.last ? w : block.last));
    }
  }

  const Operand& operand_;
  N rowLength_;
  View view_;
  bool made_ = false;
  union {
    Kind block_;
  };
  decltype(neighboursOf(std::declval<decltype(block_)>())) neighbours_;
};

// A matrix operand; rowLength is the width of its rows as stored.
template <class Operand, class N> ZELM_INLINE auto matrixBlocks(const Operand& x, N rowLength) {
  return BlocksOf(x, rowLength, [&x, rowLength](int64_t k) ZELM_BODY { return x.object(k, rowLength); });
}
template <class Operand> ZELM_INLINE auto vectorBlocks(const Operand& x) {
  return BlocksOf(x, Fixed<0>{}, [&x](int64_t k) ZELM_BODY { return x.object(k); });
}

// The single vector of a batch: the same in every lane.
template <class View> struct SameObject {
  using T = typename View::Element;
  View view;
  template <int N> ZELM_INLINE Lanes<T> chunks(int, int64_t offset) const {
    return vectorOfParts<T, laneCount<T>>([&](int) ZELM_BODY {
      if constexpr (N == chunkElements<T>)
        return loadLanes<T, N>(view.address(0) + offset);
      else
        return loadTriple(view.address(0) + offset);
    });
  }
  ZELM_INLINE Lanes<T> vector(int, int64_t offset) const { return loadLanes<T>(view.address(0) + offset); }
  ZELM_INLINE T element(int, int64_t offset) const { return loadElement<T>(view.address(0) + offset); }
};
template <class View> struct SameBlock {
  using Element = typename View::Element;
  static constexpr bool unit = View::unitRows;
  static constexpr bool straight = true;
  SameObject<View> objects;
  template <class N> ZELM_INLINE void load(int, int j, N n, Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, n, [&](auto e) ZELM_BODY { lanes[e] = splat<Lanes<Element>>(objects.view.load(j + e)); });
  }
};
template <class View> struct SameBlocks {
  SameBlock<View> block;
  template <class B> ZELM_INLINE const auto& at(const B&) const { return block; }
};

// The vectors that a batch reads, an array or a single one.
template <class Operand> ZELM_INLINE auto sourceBlocks(const Operand& x) {
  if constexpr (Operand::isArray)
    return vectorBlocks(x);
  else
    return SameBlocks<decltype(x.object(0))>{{{x.object(0)}}};
}

// Neighbours at positions that are known: their addresses need not be read again after each store.
template <class T, int N> struct HeldNeighbours {
  using Element = std::remove_const_t<T>;
  static constexpr bool unit = false;
  Byte<T>* position[N];
  template <class M> ZELM_INLINE void load(int, int, M, Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, M{}, [&](auto e) ZELM_BODY { lanes[e] = loadLanes<Element>(position[e]); });
  }
  template <class M> ZELM_INLINE void store(int, int, M, const Lanes<Element>* lanes) const {
    ascending(Fixed<0>{}, M{}, [&](auto e) ZELM_BODY { storeLanes(position[e], lanes[e]); });
  }
};

// at(k) is the block of the vectors k, k + 1, ... of N elements, as many as a vector has lanes, for work so short that
// where they lie must not take longer: in registers, or the same for all. In the pointer layout they are neighbours.
template <int N, class Operand> ZELM_INLINE auto wholeBlocks(const Operand& x) {
  using T = typename Operand::Element;
  const auto first = x.object(0);
  if constexpr (!Operand::isArray) {
    return [first](int64_t) ZELM_BODY { return SameBlock<decltype(x.object(0))>{{first}}; };
  } else if constexpr (isPointerLayout<Operand>) {
    using C = std::remove_pointer_t<decltype(first.address(0))>;
    using Held = HeldNeighbours<std::conditional_t<std::is_const_v<C>, const T, T>, N>;
    Held held;
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto e) ZELM_BODY { held.position[e] = first.address(e); });
    return [held](int64_t k) ZELM_BODY {
      Held block;
      ascending(Fixed<0>{}, Fixed<N>{},
                [&](auto e) ZELM_BODY { block.position[e] = held.position[e] + k * static_cast<int64_t>(sizeof(T)); });
      return block;
    };
  } else {
    return [&x, first](int64_t k) ZELM_BODY {
      auto block = blockOf(first, Fixed<0>{});
      ascending(Fixed<0>{}, Fixed<laneCount<T>>{},
                [&](auto w) ZELM_BODY { block.objects.of[w] = x.object(k + w).address(0); });
      return block;
    };
  }
}

// The values of a block's objects, to a plain run that has one for each object of the batch.
template <class B, class T> ZELM_INLINE void storeValues(const Plain<T>& run, const B& block, const Lanes<T>& values) {
  char* const at = reinterpret_cast<char*>(run.pointer + block.first);
  if (block.last == laneCount<T> - 1)
    storeLanes(at, values);
  else
    for (int w = 0; w <= block.last; ++w)
      storeElement<T>(at + w * static_cast<int>(sizeof(T)), values[w]);
}

template <class Operand> ZELM_INLINE bool areNeighbours(const Operand& x) {
  if constexpr (isPointerLayout<Operand>)
    return x.objectStride() == static_cast<int64_t>(sizeof(typename Operand::Element));
  else
    return false;
}

// A dense matrix of each object, row after row in lanes. Where the steps are known at run time only, columns whose
// elements are neighbours are loaded and stored as rows are; that they are columns is a matter of an index.
template <class> constexpr bool hasAnySteps = false;
template <class T> constexpr bool hasAnySteps<StridedBlock<T, AnyStep>> = true;

// Columns of unknown length go in pieces, of which the last overlaps its neighbour: body(from, n) for the elements from
// `first` on.
constexpr int pieceElements = 8;
template <class N> constexpr int pieceRoom = pieceElements;
template <int N> constexpr int pieceRoom<Fixed<N>> = N;
template <class Body> ZELM_INLINE void forPieces(int first, int end, const Body& body) {
  const int n = smaller(pieceElements, end - first);
  for (int i = first; i < end; i += pieceElements)
    body(smaller(i, end - n), n);
}

template <class Columns, class L, class Width, class Height>
ZELM_INLINE void loadColumns(const Columns& columns, L* lanes, Width width, Height height);
template <class Columns, class L, class Width, class Height>
ZELM_INLINE void storeColumns(const Columns& columns, const L* lanes, Width width, Height height);

template <class Objects, class L, class Width, class Height>
ZELM_INLINE void loadElements(const Objects& objects, L* lanes, Width width, Height height) {
  if (objects.gapless(width)) {
    objects.load(0, 0, product(width, height), lanes);
  } else {
    if constexpr (hasAnySteps<Objects>)
      if (objects.unitColumns())
        return loadColumns(objects.byColumns(), lanes, width, height);
    ascending(Fixed<0>{}, height, [&](auto i) ZELM_BODY { objects.load(i, 0, width, lanes + i * width); });
  }
}
template <class Objects, class L, class Width, class Height>
ZELM_INLINE void storeElements(const Objects& objects, const L* lanes, Width width, Height height) {
  if (objects.gapless(width)) {
    objects.store(0, 0, product(width, height), lanes);
  } else {
    if constexpr (hasAnySteps<Objects>)
      if (objects.unitColumns())
        return storeColumns(objects.byColumns(), lanes, width, height);
    ascending(Fixed<0>{}, height, [&](auto i) ZELM_BODY { objects.store(i, 0, width, lanes + i * width); });
  }
}

template <class Columns, class L, class Width, class Height>
ZELM_INLINE void loadColumns(const Columns& columns, L* lanes, Width width, Height height) {
  if constexpr (isFixed<Width> && isFixed<Height>) {
    L exchanged[width * height];
    loadElements(columns, exchanged, height, width);
    ascending(Fixed<0>{}, height, [&](auto i) ZELM_BODY {
      ascending(Fixed<0>{}, width, [&](auto j) ZELM_BODY { lanes[i * width + j] = exchanged[j * height + i]; });
    });
  } else {
    for (int j = 0; j < width; ++j)
      forPieces(0, height, [&](int from, int n) ZELM_BODY {
        L piece[pieceElements];
        columns.load(j, from, n, piece);
        for (int i = 0; i < n; ++i)
          lanes[(from + i) * width + j] = piece[i];
      });
  }
}
template <class Columns, class L, class Width, class Height>
ZELM_INLINE void storeColumns(const Columns& columns, const L* lanes, Width width, Height height) {
  if constexpr (isFixed<Width> && isFixed<Height>) {
    L exchanged[width * height];
    ascending(Fixed<0>{}, height, [&](auto i) ZELM_BODY {
      ascending(Fixed<0>{}, width, [&](auto j) ZELM_BODY { exchanged[j * height + i] = lanes[i * width + j]; });
    });
    storeElements(columns, exchanged, height, width);
  } else {
    for (int j = 0; j < width; ++j)
      forPieces(0, height, [&](int from, int n) ZELM_BODY {
        L piece[pieceElements];
        for (int i = 0; i < n; ++i)
          piece[i] = lanes[(from + i) * width + j];
        columns.store(j, from, n, piece);
      });
  }
}

// A column of each object.
template <class Objects, class L, class N> ZELM_INLINE void loadColumn(const Objects& objects, int j, L* lanes, N n) {
  if constexpr (hasAnySteps<Objects>)
    if (objects.unitColumns())
      return objects.byColumns().load(j, 0, n, lanes);
  ascending(Fixed<0>{}, n, [&](auto i) ZELM_BODY { objects.load(i, j, Fixed<1>{}, lanes + i); });
}
template <class Objects, class L, class N>
ZELM_INLINE void storeColumn(const Objects& objects, int j, const L* lanes, N n) {
  if constexpr (hasAnySteps<Objects>)
    if (objects.unitColumns())
      return objects.byColumns().store(j, 0, n, lanes);
  ascending(Fixed<0>{}, n, [&](auto i) ZELM_BODY { objects.store(i, j, Fixed<1>{}, lanes + i); });
}

// A vector of each object.
template <class Objects, class L, class N> ZELM_INLINE void loadVector(const Objects& objects, L* lanes, N n) {
  if constexpr (hasAnySteps<Objects>)
    if (objects.unitRows())
      return objects.byRows().load(0, 0, n, lanes);
  objects.load(0, 0, n, lanes);
}
template <class Objects, class L, class N> ZELM_INLINE void storeVector(const Objects& objects, const L* lanes, N n) {
  if constexpr (hasAnySteps<Objects>)
    if (objects.unitRows())
      return objects.byRows().store(0, 0, n, lanes);
  objects.store(0, 0, n, lanes);
}

// The lower triangle of a square matrix of each object, row after row: row i begins at element i * (i + 1) / 2. What
// lies above the diagonal is neither read nor written.
constexpr int triangleElements(int n) {
  return n * (n + 1) / 2;
}

// body(j, from, n) for the columns from the diagonal down, whole or in pieces.
template <class Side, class Body> ZELM_INLINE void forTriangleColumns(Side side, const Body& body) {
  ascending(Fixed<0>{}, side, [&](auto j) ZELM_BODY {
    if constexpr (isFixed<Side>)
      body(j, j, Fixed<side - j>{});
    else
      forPieces(j, side, [&](int from, int n) ZELM_BODY { body(j, from, n); });
  });
}
template <class Objects, class L, class Side>
ZELM_INLINE void loadTriangle(const Objects& objects, L* lanes, Side side) {
  if constexpr (hasAnySteps<Objects>)
    if (objects.unitColumns()) {
      const auto columns = objects.byColumns();
      return forTriangleColumns(side, [&](auto j, auto from, auto n) ZELM_BODY {
        L piece[pieceRoom<decltype(n)>];
        columns.load(j, from, n, piece);
        ascending(Fixed<0>{}, n, [&](auto i) ZELM_BODY { lanes[triangleElements(from + i) + j] = piece[i]; });
      });
    }
  ascending(Fixed<0>{}, side, [&](auto i) ZELM_BODY { objects.load(i, 0, next(i), lanes + triangleElements(i)); });
}
template <class Objects, class L, class Side>
ZELM_INLINE void storeTriangle(const Objects& objects, const L* lanes, Side side) {
  if constexpr (hasAnySteps<Objects>)
    if (objects.unitColumns()) {
      const auto columns = objects.byColumns();
      return forTriangleColumns(side, [&](auto j, auto from, auto n) ZELM_BODY {
        L piece[pieceRoom<decltype(n)>];
        ascending(Fixed<0>{}, n, [&](auto i) ZELM_BODY { piece[i] = lanes[triangleElements(from + i) + j]; });
        columns.store(j, from, n, piece);
      });
    }
  ascending(Fixed<0>{}, side, [&](auto i) ZELM_BODY { objects.store(i, 0, next(i), lanes + triangleElements(i)); });
}

template <class Operand> ZELM_INLINE bool areNeighboursOrSame(const Operand& x) {
  if constexpr (Operand::isArray)
    return areNeighbours(x);
  else
    return true;
}

// As many systems of a side are solved one by one before they would take as long as a block of Width: the straight-line
// sides only, known to the compiler.
template <int Width> constexpr int fewSystems(int side) {
  return side > 4 || Width < 4 ? Width / 2 : smaller(Width - 1, 7);
}

// Runs through a batch in blocks of Width objects: a vector full, or twice that for two vectors side by side.
// lanes(block) returns whether the block is done; one that is not has stored nothing, and goes through single(k) object
// by object, as do the last Few objects where no more are left. single returns a status; the first failure ends the
// batch.
template <int Width, bool HasNeighbours, int Few = 1, class ForLanes, class ForSingle>
ZELM_INLINE ZelStatus forBlocks(int32_t count, bool neighbours, const ForLanes& lanes, const ForSingle& single) {
  constexpr int W = Width;
  for (int64_t k = 0; k < count; k += W) {
    const int last = count - k < W ? static_cast<int>(count - k) - 1 : W - 1;
    bool done = false;
    if (HasNeighbours && neighbours && last == W - 1) {
      if constexpr (HasNeighbours)
        done = lanes(Block<true>{k, last});
    } else if (last >= Few) {
      done = lanes(Block<false>{k, last});
    }
    for (int64_t object = k; !done && object <= k + last; ++object)
      if (const ZelStatus status = single(object); status != zelStatusOk)
        return status;
  }
  return zelStatusOk;
}

} // namespace zelm

// A kernel as KERNEL of zelmkernel.h makes it, but without copies of its operands. What passes on the address of an
// operand has its copy in memory, written in wider pieces than the caller has just stored the fields in: that waits for
// the stores, 10 ns a call.
#define KERNEL_IN_BLOCKS(KERNEL_NAME, SIG, Y, V, T, ...)                                                               \
  extern "C" ZelStatus KERNEL_NAME(SIG(V, Y, T)) {                                                                     \
    using namespace zelm;                                                                                              \
    return __VA_ARGS__(SIG(NAME, Y, T));                                                                               \
  }
