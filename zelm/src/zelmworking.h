// Elimination in the caller's buffer: a copy of a square matrix, and behind it the order of its rows.
//
// Rows stay where they are; an exchange is one of two entries of the order. The buffer may lie at any address.
#pragma once

#include "zelmlane.h"

namespace zelm {

template <class T> class WorkingMatrix {
  using Row = StridedVectorView<T, UnitStep<T>>;

public:
  // Rows of `pitch` elements, the order behind `pitch` of them; all that is worked on has side rows and columns.
  WorkingMatrix(T* buffer, int pitch, int side)
      : origin_(reinterpret_cast<char*>(buffer)),
        rowStep_(pitch * static_cast<int64_t>(sizeof(T))), order_{origin_ + pitch * rowStep_, {}}, side_(side) {
    for (int i = 0; i < side; ++i)
      order_.store(i, i);
  }

  // Row i of the memory, whatever the order.
  Row stored(int i) const { return {origin_ + i * rowStep_, {}}; }
  // Row i of the order.
  Row row(int i) const { return stored(order_.load(i)); }

  // Of the rows from k on, the one with the largest magnitude in column k becomes row k: the first of equals. Whether
  // that was an exchange.
  bool choosePivot(int k) const {
    int best = k;
    T most = magnitude(row(k).load(k));
    for (int i = k + 1; i < side_; ++i)
      if (const T candidate = magnitude(row(i).load(k)); candidate > most) {
        most = candidate;
        best = i;
      }
    if (best == k)
      return false;
    const int32_t chosen = order_.load(best);
    order_.store(best, order_.load(k));
    order_.store(k, chosen);
    return true;
  }

  // Takes multiples of row k from the rows behind it; factor(x) is that of a row which has x in column k.
  template <class Factor> ZELM_INLINE void eliminate(int k, const Factor& factor) const {
    const Row pivots = row(k);
    for (int i = k + 1; i < side_; ++i) {
      const Row r = row(i);
      const T q = factor(r.load(k));
      for (int j = k + 1; j < side_; ++j)
        r.store(j, r.load(j) - pivots.load(j) * q);
    }
  }

private:
  char* origin_;
  int64_t rowStep_;
  StridedVectorView<int32_t, UnitStep<int32_t>> order_;
  int side_;
};

} // namespace zelm
