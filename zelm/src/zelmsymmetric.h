// Eigenvalues and eigenvectors of symmetric matrices: what the kernels load and store. The arithmetic is compiled once,
// apart from the layouts.
#pragma once

#include "zelmblock.h"
#include "zelmsymmetricsignature.h"

namespace zelm {

// The limits of all tests are absolute. Most kernels have their type's, but not all.
struct Epsilon32f {
  static constexpr double value = 0x1p-23;
};
struct Epsilon64f {
  static constexpr double value = 0x1p-52;
};
template <class T> constexpr T symmetricEpsilon = sizeof(T) == 4 ? T(Epsilon32f::value) : T(Epsilon64f::value);

// Sweeps for each value.
constexpr int symmetricSweeps = 30;

struct SymmetricLimits {
  double reduction; // of the tests of the reduction
  double product;   // of the product of the values
  bool array;
  // A single matrix with vectors is sorted before it is found singular.
  bool testsFirst() const { return array; }
};

// ---------------------------------------------------------------------------------------------------------------------
// Side 2: values, and V as rows

template <class T> struct SymmetricPair {
  T values[2];
  T vectors[4];
};

// False, with nothing that can be used, if the determinant is at most the limit in magnitude.
template <class T> bool symmetricPair(T a, T b, T d, double limit, SymmetricPair<T>& pair);
extern template bool symmetricPair(float, float, float, double, SymmetricPair<float>&);
extern template bool symmetricPair(double, double, double, double, SymmetricPair<double>&);

// ---------------------------------------------------------------------------------------------------------------------
// From side 3 on, one object or a vector of them. The matrix is in b, n * n in rows, which is used up; the vectors come
// into the columns of v. Of a vector of objects, any other status than zelStatusOk says only that one of them fails.

template <class L> using Square = Rectangle<L, int64_t>;
// Two vectors side by side: each chain of divisions and roots waits for the other.
template <class T> using SymmetricLane = Pair<Lanes<T>>;
template <class T> using AnyMatrixView = StridedMatrixView<T, AnyStep, AnyStep>;

template <class L> ZelStatus symmetricValuesOf(const Column<L>& b, const Column<L>& values, int n);
template <class L, class Vectors>
ZelStatus symmetricVectorsOf(const Column<L>& b, const Column<L>& values, const Vectors& v, int n,
                             const SymmetricLimits& limits);

// clang-format off
extern template ZelStatus symmetricValuesOf(const Column<float>&, const Column<float>&, int);
extern template ZelStatus symmetricValuesOf(const Column<double>&, const Column<double>&, int);
extern template ZelStatus symmetricValuesOf(const Column<Lanes<float>>&, const Column<Lanes<float>>&, int);
extern template ZelStatus symmetricValuesOf(const Column<Lanes<double>>&, const Column<Lanes<double>>&, int);
extern template ZelStatus symmetricValuesOf(const Column<SymmetricLane<float>>&, const Column<SymmetricLane<float>>&, int);
extern template ZelStatus symmetricValuesOf(const Column<SymmetricLane<double>>&, const Column<SymmetricLane<double>>&, int);
extern template ZelStatus symmetricVectorsOf(const Column<float>&, const Column<float>&, const AnyMatrixView<float>&, int, const SymmetricLimits&);
extern template ZelStatus symmetricVectorsOf(const Column<double>&, const Column<double>&, const AnyMatrixView<double>&, int, const SymmetricLimits&);
extern template ZelStatus symmetricVectorsOf(const Column<float>&, const Column<float>&, const PointerMatrixView<float>&, int, const SymmetricLimits&);
extern template ZelStatus symmetricVectorsOf(const Column<double>&, const Column<double>&, const PointerMatrixView<double>&, int, const SymmetricLimits&);
extern template ZelStatus symmetricVectorsOf(const Column<Lanes<float>>&, const Column<Lanes<float>>&, const Square<Lanes<float>>&, int, const SymmetricLimits&);
extern template ZelStatus symmetricVectorsOf(const Column<Lanes<double>>&, const Column<Lanes<double>>&, const Square<Lanes<double>>&, int, const SymmetricLimits&);
extern template ZelStatus symmetricVectorsOf(const Column<SymmetricLane<float>>&, const Column<SymmetricLane<float>>&, const Square<SymmetricLane<float>>&, int, const SymmetricLimits&);
extern template ZelStatus symmetricVectorsOf(const Column<SymmetricLane<double>>&, const Column<SymmetricLane<double>>&, const Square<SymmetricLane<double>>&, int, const SymmetricLimits&);
// clang-format on

// A view whose type does not tell the strides.
template <class T, class RowStep, class Step>
ZELM_INLINE AnyMatrixView<T> anyView(const StridedMatrixView<T, RowStep, Step>& x) {
  return {x.origin, int64_t{x.rowStep}, int64_t{x.columnStep}};
}
template <class T> ZELM_INLINE PointerMatrixView<T> anyView(const PointerMatrixView<T>& x) {
  return x;
}

// ---------------------------------------------------------------------------------------------------------------------
// Single objects

template <class T, class View> ZELM_INLINE void symmetricCopy(const View& src, T* b, int32_t n) {
  auto* to = reinterpret_cast<char*>(b);
  for (int64_t i = 0; i < n; ++i)
    for (int64_t j = 0; j < n; ++j, to += sizeof(T))
      storeElement<T>(to, src.load(i, j));
}

template <class T> ZELM_INLINE void storePlain(T* values, int i, T value) {
  storeElement<T>(reinterpret_cast<char*>(values + i), value);
}

// Determinant is the limit at side 2.
template <class Determinant, class T, class View>
ZELM_INLINE ZelStatus symmetricValuesObject(const View& src, T* b, T* values, int32_t n) {
  if (n == 1) {
    storePlain(values, 0, src.load(0, 0));
    return zelStatusOk;
  }
  if (n == 2) {
    SymmetricPair<T> pair;
    if (!symmetricPair(src.load(0, 0), src.load(0, 1), src.load(1, 1), Determinant::value, pair))
      return zelStatusSingular;
    storePlain(values, 0, pair.values[0]);
    storePlain(values, 1, pair.values[1]);
    return zelStatusOk;
  }
  symmetricCopy(src, b, n);
  return symmetricValuesOf(Column<T>{b}, Column<T>{values}, n);
}

template <class T, class View, class VectorsView>
ZELM_INLINE ZelStatus symmetricVectorsObject(const View& src, T* b, const VectorsView& v, T* values, int32_t n,
                                             const SymmetricLimits& limits) {
  if (n == 1) {
    storePlain(values, 0, src.load(0, 0));
    v.store(0, 0, T(1));
    return zelStatusOk;
  }
  if (n == 2) {
    SymmetricPair<T> pair;
    if (!symmetricPair(src.load(0, 0), src.load(0, 1), src.load(1, 1), double{symmetricEpsilon<T>}, pair))
      return zelStatusSingular;
    storePlain(values, 0, pair.values[0]);
    storePlain(values, 1, pair.values[1]);
    for (int i = 0; i < 4; ++i)
      v.store(i / 2, i % 2, pair.vectors[i]);
    return zelStatusOk;
  }
  symmetricCopy(src, b, n);
  return symmetricVectorsOf(Column<T>{b}, Column<T>{values}, anyView(v), n, limits);
}

// Single objects.
template <class Determinant, class Source, class T>
ZELM_INLINE ZelStatus symmetricValues(const Source& src, const Buffer<T>& buffer, const Plain<T>& values,
                                      int32_t side) {
  return symmetricValuesObject<Determinant>(src.object(0, side), buffer.pointer, values.pointer, side);
}

template <class Reduction, class Product, class Source, class T, class Result>
ZELM_INLINE ZelStatus symmetricVectors(const Source& src, const Buffer<T>& buffer, const Result& vectors,
                                       const Plain<T>& values, int32_t side) {
  return symmetricVectorsObject(src.object(0, side), buffer.pointer, vectors.object(0, side), values.pointer, side,
                                {Reduction::value, Product::value, false});
}

// ---------------------------------------------------------------------------------------------------------------------
// Batches: objects in lanes up to this side. A block in which an object fails is done again object by object.

constexpr int symmetricLaneSide = 12;
constexpr bool symmetricFitsLanes(int32_t side, int32_t count) {
  return count > 1 && side >= 3 && side <= symmetricLaneSide;
}
// Of N elements for each object of a block.
template <class T, int N> struct SymmetricScratch {
  Lanes<T> low[N];
  Lanes<T> high[N];
  ZELM_INLINE Column<SymmetricLane<T>> column() { return {low, high}; }
  ZELM_INLINE Column<Lanes<T>> lowColumn() { return {low}; }
};
template <class T> using SymmetricMatrix = SymmetricScratch<T, symmetricLaneSide * symmetricLaneSide>;
template <class T> using SymmetricColumn = SymmetricScratch<T, symmetricLaneSide>;

// The values of all objects as one vector operand.
template <class T> ZELM_INLINE Vectors<T, UnitStride> symmetricValuesOperand(const Plain<T>& values) {
  return {values.pointer, static_cast<int32_t>(values.each * static_cast<int64_t>(sizeof(T))), {}};
}

template <class Objects, class V> ZELM_NOINLINE void symmetricLoad(const Objects& objects, V* lanes, int n) {
  loadElements(objects, lanes, n, n);
}
template <class Objects, class V> ZELM_NOINLINE void symmetricStore(const Objects& objects, const V* lanes, int n) {
  storeElements(objects, lanes, n, n);
}

// Blocks of matrices or of values, of either half of a block of objects.
template <class T, class Blocks> struct SymmetricHalves {
  Blocks ofLow;
  Blocks ofHigh;
  explicit SymmetricHalves(const Blocks& blocks) : ofLow(blocks), ofHigh(blocks) {}
  template <class B> ZELM_INLINE auto low(const B& block) { return ofLow.at(block.template low<laneCount<T>>()); }
  template <class B> ZELM_INLINE auto high(const B& block) { return ofHigh.at(block.template high<laneCount<T>>()); }
};
// Do the objects of a block leave the second vector empty? Then there is none.
template <class T, class B> ZELM_INLINE bool fitsOneVector(const B& block) {
  return block.last < laneCount<T>;
}
template <class T, class Blocks> ZELM_INLINE SymmetricHalves<T, Blocks> halvesOf(const Blocks& blocks) {
  return SymmetricHalves<T, Blocks>(blocks);
}

template <class Determinant, class Source, class T>
ZELM_INLINE ZelStatus symmetricValues(const Source& src, const Buffer<T>& buffer, const Plain<T>& values, int32_t side,
                                      int32_t count) {
  const bool inLanes = symmetricFitsLanes(side, count);
  const auto valuesOperand = symmetricValuesOperand(values);
  auto sources = halvesOf<T>(matrixBlocks(src, side));
  auto results = halvesOf<T>(vectorBlocks(valuesOperand));
  SymmetricMatrix<T> matrix;
  SymmetricColumn<T> lanes;
  return forBlocks<2 * laneCount<T>, isPointerLayout<Source>>(
      count, areNeighbours(src),
      [&](auto block) ZELM_BODY {
        if (!inLanes)
          return false;
        const bool one = fitsOneVector<T>(block);
        symmetricLoad(sources.low(block), matrix.low, side);
        if (!one)
          symmetricLoad(sources.high(block), matrix.high, side);
        if ((one ? symmetricValuesOf(matrix.lowColumn(), lanes.lowColumn(), side)
                 : symmetricValuesOf(matrix.column(), lanes.column(), side)) != zelStatusOk)
          return false;
        results.low(block).store(0, 0, int{side}, lanes.low);
        if (!one)
          results.high(block).store(0, 0, int{side}, lanes.high);
        return true;
      },
      [&](int64_t k) ZELM_NOINLINE {
        return symmetricValuesObject<Determinant>(src.object(k, side), buffer.pointer, values.single(k).pointer, side);
      });
}

template <class Reduction, class Product, class Source, class T, class Result>
ZELM_INLINE ZelStatus symmetricVectors(const Source& src, const Buffer<T>& buffer, const Result& vectors,
                                       const Plain<T>& values, int32_t side, int32_t count) {
  const SymmetricLimits limits{Reduction::value, Product::value, true};
  const bool inLanes = symmetricFitsLanes(side, count);
  const auto valuesOperand = symmetricValuesOperand(values);
  auto sources = halvesOf<T>(matrixBlocks(src, side));
  auto columns = halvesOf<T>(matrixBlocks(vectors, side));
  auto results = halvesOf<T>(vectorBlocks(valuesOperand));
  SymmetricMatrix<T> matrix, vectorsOfLanes;
  SymmetricColumn<T> lanes;
  return forBlocks<2 * laneCount<T>, isPointerLayout<Source>>(
      count, areNeighbours(src) && areNeighbours(vectors),
      [&](auto block) ZELM_BODY {
        if (!inLanes)
          return false;
        const bool one = fitsOneVector<T>(block);
        symmetricLoad(sources.low(block), matrix.low, side);
        if (!one)
          symmetricLoad(sources.high(block), matrix.high, side);
        const Square<Lanes<T>> vectorsOfOne{vectorsOfLanes.lowColumn(), side};
        const Square<SymmetricLane<T>> vectorsOfTwo{vectorsOfLanes.column(), side};
        if ((one ? symmetricVectorsOf(matrix.lowColumn(), lanes.lowColumn(), vectorsOfOne, side, limits)
                 : symmetricVectorsOf(matrix.column(), lanes.column(), vectorsOfTwo, side, limits)) != zelStatusOk)
          return false;
        symmetricStore(columns.low(block), vectorsOfLanes.low, side);
        results.low(block).store(0, 0, int{side}, lanes.low);
        if (!one) {
          symmetricStore(columns.high(block), vectorsOfLanes.high, side);
          results.high(block).store(0, 0, int{side}, lanes.high);
        }
        return true;
      },
      [&](int64_t k) ZELM_NOINLINE {
        return symmetricVectorsObject(src.object(k, side), buffer.pointer, vectors.object(k, side),
                                      values.single(k).pointer, side, limits);
      });
}

} // namespace zelm
