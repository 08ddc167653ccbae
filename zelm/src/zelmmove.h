// Elements moved as they stand from one operand to another: Copy and Extract; and LoadIdentity.
//
// Where the objects of one side are neighbours at each position (pointer layout with a stride0 of an element) and those
// of the other have contiguous rows, rows become columns. Everything else is a run.
#pragma once

#include "zelmmovesignature.h"
#include "zelmrun.h"
#include "zelmturn.h"

namespace zelm {

// Row i of the objects from object k on, each object's elements neighbours.
template <class T, class RowStep, class ColumnStep, bool Array>
ZELM_INLINE auto rowsOfObjects(const StridedObjects<T, RowStep, ColumnStep, Array>& x, int64_t i, int64_t k) {
  return EvenRows<Byte<T>>{x.view(k).address(i, 0), x.stride0};
}
template <class T, class RowStep, class ColumnStep>
ZELM_INLINE auto rowsOfObjects(const ListedObjects<T, RowStep, ColumnStep>& x, int64_t i, int64_t k) {
  return listedRows(x.list + k, 1, x.shift + i * x.rowStep);
}
// The positions of row i, the objects from object k on neighbours.
template <class T, bool Array>
ZELM_INLINE auto rowsOfPositions(const PointerObjects<T, Array>& x, int64_t i, int64_t k) {
  return listedRows(x.first.list + i * x.first.rowStep, x.first.columnStep, x.first.offset + k * x.stride0);
}
// The entries of all rows are one list.
template <class T, bool Array> ZELM_INLINE bool isOneList(const PointerObjects<T, Array>& x, int64_t width) {
  return x.first.columnStep == 1 && x.first.rowStep == width;
}

// turn(i, k, n) for row i of the n objects from object k on: several rows of some objects, before the next objects.
template <class Turn> ZELM_INLINE void eachRowOfObjects(int64_t height, int64_t count, const Turn& turn) {
  const int64_t atATime = height == 1 ? count : 256;
  for (int64_t k = 0; k < count; k += atATime)
    for (int64_t i = 0; i < height; ++i)
      turn(i, k, count - k < atATime ? count - k : atATime);
}

// Between objects with contiguous rows and neighbours at each position.
template <class H, class S, class T, bool Array>
ZELM_INLINE void turnObjects(int64_t width, H height, int64_t count, const PointerObjects<T, Array>& dst,
                             const S& src) {
  const bool oneRow = src.dense(width, height) && isOneList(dst, width);
  const int64_t length = oneRow ? width * height : width;
  eachRowOfObjects(oneRow ? 1 : height, count, [&](int64_t i, int64_t k, int64_t n) {
    turnRows<T>(rowsOfObjects(src, i, k), rowsOfPositions(dst, i, k), n, length);
  });
}
template <class H, class D, class T, bool Array>
ZELM_INLINE void turnObjects(int64_t width, H height, int64_t count, const D& dst,
                             const PointerObjects<T, Array>& src) {
  const bool oneRow = dst.dense(width, height) && isOneList(src, width);
  const int64_t length = oneRow ? width * height : width;
  eachRowOfObjects(oneRow ? 1 : height, count, [&](int64_t i, int64_t k, int64_t n) {
    turnRows<std::remove_const_t<T>>(rowsOfPositions(src, i, k), rowsOfObjects(dst, i, k), length, n);
  });
}

// Objects as zelmrun.h has them; height is Fixed<1> for vectors, count for single objects.
template <class List, class H, class N, class D, class S>
ZELM_INLINE ZelStatus moveObjects(int32_t width, H height, N count, const D& dst, const S& src) {
  using T = typename D::Element;
  if constexpr (D::isPointer && S::unitRows && !isFixed<N>) {
    if (isSideBySide(dst)) {
      turnObjects(width, height, count, dst, src);
      return zelStatusOk;
    }
  } else if constexpr (S::isPointer && D::unitRows && !isFixed<N>) {
    if (isSideBySide(src)) {
      turnObjects(width, height, count, dst, src);
      return zelStatusOk;
    }
  } else if constexpr (D::unitRows && !S::unitRows && S::View::unitColumns) {
    if (!isStraight(List{}, width, height)) {
      for (int64_t k = 0; k < count; ++k) {
        const auto from = src.view(k);
        const auto to = dst.view(k);
        turnRows<T>(EvenRows<const char>{from.origin, from.columnStep}, EvenRows<char>{to.origin, to.rowStep}, width,
                    height);
      }
      return zelStatusOk;
    }
  }
  return combineObjects(List{}, Unchanged{}, width, height, count, dst, src);
}

template <class Operand> ZELM_INLINE auto sourceObjects(const Operand& x, int32_t width, int32_t height) {
  return objectsOf(x, isTransposed<Operand> ? height : width);
}

// ---------------------------------------------------------------------------------------------------------------------
// The functions' arguments as they stand

using MovedSizes = Sizes<3, 4, 5, 6>;

template <class S, class D>
ZELM_INLINE ZelStatus copy(const S& src, const D& dst, Size width, Size height, Count count) {
  return moveObjects<MovedSizes>(width, height.value, count.value, objectsOf(dst, width), objectsOf(src, width));
}
template <class S, class D> ZELM_INLINE ZelStatus copy(const S& src, const D& dst, Size len, Count count) {
  return moveObjects<MovedSizes>(len, Fixed<1>{}, count.value, objectsOf(dst), objectsOf(src));
}

// The objects of a plain result, without gaps one behind the other.
template <class T> ZELM_INLINE auto packedObjects(const Plain<T>& dst, int64_t width, int64_t height) {
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  return StridedObjects<T, AnyStep, UnitStep<T>, true>{
      reinterpret_cast<char*>(dst.pointer), width * height * E, width * E, {}};
}

template <class S, class T>
ZELM_INLINE ZelStatus extract(const S& src, const Plain<T>& dst, Size width, Size height, Count count) {
  return moveObjects<MovedSizes>(width, height.value, count.value, packedObjects(dst, width, height),
                                 sourceObjects(src, width, height));
}
template <class S, class T> ZELM_INLINE ZelStatus extract(const S& src, const Plain<T>& dst, Size width, Size height) {
  return moveObjects<MovedSizes>(width, height.value, Fixed<1>{}, packedObjects(dst, width, height),
                                 sourceObjects(src, width, height));
}
template <class S, class T> ZELM_INLINE ZelStatus extract(const S& src, const Plain<T>& dst, Size len, Count count) {
  return moveObjects<MovedSizes>(len, Fixed<1>{}, count.value, packedObjects(dst, len, 1), objectsOf(src));
}
template <class S, class T> ZELM_INLINE ZelStatus extract(const S& src, const Plain<T>& dst, Size len) {
  return moveObjects<MovedSizes>(len, Fixed<1>{}, Fixed<1>{}, packedObjects(dst, len, 1), objectsOf(src));
}

template <class List, class D> ZELM_INLINE ZelStatus loadIdentity(const D& dst, Size width, Size height, Count count) {
  return elementwise<Unchanged, List>(IdentityMatrix<typename D::Element>{}, dst, width, height, count);
}

} // namespace zelm
