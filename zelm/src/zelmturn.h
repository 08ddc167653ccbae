// Rows become columns: `rows` source rows of `columns` elements each are written as `columns` result rows of `rows`
// elements each.
//
// That is the transposition of a matrix. It is also how objects that lie one behind the other become positions of the
// pointer layout (a source row is an object, a result row a position), and how positions become objects.
//
// The elements of a row are neighbours on both sides; where the rows lie is up to the caller. Elements keep their bits.
#pragma once

#include "zelmoperand.h"

namespace zelm {

// Rows at one distance.
template <class C> struct EvenRows {
  C* origin;
  int64_t step;
  ZELM_INLINE C* operator()(int64_t row) const { return origin + row * step; }
  // Without gaps, rows of so many bytes.
  ZELM_INLINE bool gapless(int64_t bytes) const { return step == bytes; }
  ZELM_INLINE EvenRows from(int64_t row) const { return {origin + row * step, step}; }
};

// Rows where every `step`th entry of a list leads.
template <class C> struct ListedRows {
  C* const* list;
  int64_t step;
  int64_t offset;
  ZELM_INLINE C* operator()(int64_t row) const { return list[row * step] + offset; }
  ZELM_INLINE bool gapless(int64_t) const { return false; }
  ZELM_INLINE ListedRows from(int64_t row) const { return {list + row * step, step, offset}; }
};
template <class T> ZELM_INLINE auto listedRows(T* const* list, int64_t step, int64_t offset) {
  return ListedRows<Byte<T>>{reinterpret_cast<Byte<T>* const*>(list), step, offset};
}

// T is float or double; each side is EvenRows or ListedRows.
template <class T, class Source, class Result>
void turnRows(Source source, Result result, int64_t rows, int64_t columns);

} // namespace zelm
