// Products of any shape: functions of their own, once for all forms, layouts and strides.
#pragma once

#include "zelmlane.h"
#include "zelmoperand.h"

namespace zelm {

// The matrices of a batch as a product sees them: element (i, j) lies i * rowStep + j * columnStep bytes behind the
// first of its object. A single matrix is every object, a vector a matrix of one column.
template <class T> struct Objects {
  Byte<T>* origin;
  T* const* list;  // or null
  int64_t stride0; // with a list the shift
  int64_t rowStep;
  int64_t columnStep;
  bool single;

  ZELM_INLINE Byte<T>* operator[](int64_t k) const {
    return list == nullptr ? origin + k * stride0 : reinterpret_cast<Byte<T>*>(list[k]) + stride0;
  }
  ZELM_INLINE Objects transposed() const { return {origin, list, stride0, columnStep, rowStep, single}; }
  // Are the rows runs, or the columns?
  ZELM_INLINE bool unitRows() const { return columnStep == static_cast<int64_t>(sizeof(T)); }
  ZELM_INLINE bool unitColumns() const { return rowStep == static_cast<int64_t>(sizeof(T)); }
};

template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const Matrix<T, S>& x) {
  return {reinterpret_cast<Byte<T>*>(x.pointer), nullptr, 0, x.stride1, x.stride2, true};
}
template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const Matrices<T, S>& x) {
  return {reinterpret_cast<Byte<T>*>(x.pointer), nullptr, x.stride0, x.stride1, x.stride2, false};
}
template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const MatricesL<T, S>& x) {
  return {nullptr, x.list, x.shift, x.stride1, x.stride2, false};
}
template <class Operand> ZELM_INLINE auto objectsOf(const Transposed<Operand>& x) {
  return objectsOf(x.stored()).transposed();
}
template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const Vector<T, S>& x) {
  return {reinterpret_cast<Byte<T>*>(x.pointer), nullptr, 0, x.stride2, 0, true};
}
template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const Vectors<T, S>& x) {
  return {reinterpret_cast<Byte<T>*>(x.pointer), nullptr, x.stride0, x.stride2, 0, false};
}
template <class T, class S> ZELM_INLINE Objects<T> objectsOf(const VectorsL<T, S>& x) {
  return {nullptr, x.list, x.shift, x.stride2, 0, false};
}

// dst = src1 * src2
struct ProductShape {
  int32_t rows;
  int32_t terms;
  int32_t columns;

  // Those of the transposed product, whose factors change places.
  constexpr ProductShape transposed() const { return {columns, terms, rows}; }
};

// What a sum begins with: +0.0, or its first term, which is what -0.0 leaves as it is.
template <class T> constexpr T zeroFirst = T(0);
template <class T> constexpr T termFirst = -T(0);

// Ascending sums. They may begin with their first term where no extent is longer than a short one, and rows or columns
// are runs in all operands.
constexpr int longestShort = 6;
template <class T>
void multiplyShape(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                   const ProductShape& shape, T first, int64_t count);

template <class A, class B, class D>
void multiplyGeneral(const A& a, const B& b, const D& d, int64_t rows, int64_t columns, int64_t n);

// The same with one object a lane, for some objects that are small. The sums begin with `first` and the term `from`,
// and end with the term before that; src3, if not null, is added last.
constexpr int laneElements = 144; // of each operand
constexpr bool goesInLanes(const ProductShape& shape, int64_t count) {
  const auto isSmall = [](int32_t rows, int32_t columns) { return int64_t{rows} * columns <= laneElements; };
  return count >= 3 && isSmall(shape.rows, shape.terms) && isSmall(shape.terms, shape.columns) &&
         isSmall(shape.rows, shape.columns);
}
// For square matrices of elements apart, whose loads and stores are most of the work.
template <class T> constexpr bool paysInLanes(int side) {
  return side > 3 && side * laneCount<T> >= 24;
}
template <class T>
void multiplyInLanes(const Objects<const T>& src1, const Objects<const T>& src2, const Objects<T>& dst,
                     const ProductShape& shape, T first, int64_t count);

} // namespace zelm
