// Minors: determinants of some rows of a matrix and of as many of its columns, the larger ones built of smaller ones.
//
// A minor is named by its columns, as a set of bits. Which rows it is of follows from how it was built. L is a lane
// type: one object, or one a lane.
#pragma once

#include "zelmextent.h"
#include "zelmtile.h"

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Sets of columns

constexpr int columnCount(int set) {
  int n = 0;
  for (; set != 0; set &= set - 1)
    ++n;
  return n;
}

// The t-th column of a set, ascending from 0.
constexpr int columnAt(int set, int t) {
  for (; t > 0; --t)
    set &= set - 1;
  int column = 0;
  while ((set >> column & 1) == 0)
    ++column;
  return column;
}

// How many sets of as many columns have a smaller number.
constexpr int setPlace(int set) {
  int place = 0;
  for (int s = 0; s < set; ++s)
    place += columnCount(s) == columnCount(set);
  return place;
}

// The inverse of setPlace.
constexpr int setAt(int columns, int place) {
  for (int set = 0;; ++set)
    if (columnCount(set) == columns && place-- == 0)
      return set;
}

// How many sets of K of N columns there are.
constexpr int setCount(int n, int k) {
  int count = 1;
  for (int i = 1; i <= k; ++i)
    count = count * (n - k + i) / i;
  return count;
}

// body(set) for every set of K of N columns.
template <int N, int K, class F> ZELM_INLINE void forSets(const F& body) {
  ascending(Fixed<0>{}, Fixed<setCount(N, K)>{}, [&](auto place) ZELM_BODY { body(Fixed<setAt(K, place)>{}); });
}

// ---------------------------------------------------------------------------------------------------------------------
// Minors of K rows of N columns

template <class L, int N, int K> struct Minors {
  L of[setCount(N, K)];
  template <int Set> ZELM_INLINE L& operator[](Fixed<Set>) { return of[setPlace(Set)]; }
  template <int Set> ZELM_INLINE const L& operator[](Fixed<Set>) const { return of[setPlace(Set)]; }
};

// A row is its own minors.
template <class L, int N> using MatrixRow = Minors<L, N, 1>;

// Expansion along a row below the minors: its element of the highest column of the set first, then with alternating
// signs down to the lowest one; the first `Terms` of these.
template <int Set, int Terms = columnCount(Set), class L, int N, int K>
ZELM_INLINE L expandBelow(const Minors<L, N, K>& minors, const MatrixRow<L, N>& row) {
  static_assert(columnCount(Set) == K + 1);
  const auto term = [&](auto t) ZELM_BODY {
    constexpr int column = columnAt(Set, K - t);
    return row.of[column] * minors[Fixed<(Set & ~(1 << column))>{}];
  };
  L sum = term(Fixed<0>{});
  ascending(Fixed<1>{}, Fixed<Terms>{}, [&](auto t) ZELM_BODY { sum = t % 2 == 1 ? sum - term(t) : sum + term(t); });
  return sum;
}

// The same for a row above them: the lowest column first.
template <int Set, class L, int N, int K>
ZELM_INLINE L expandAbove(const MatrixRow<L, N>& row, const Minors<L, N, K>& minors) {
  static_assert(columnCount(Set) == K + 1);
  const auto term = [&](auto t) ZELM_BODY {
    constexpr int column = columnAt(Set, t);
    return row.of[column] * minors[Fixed<(Set & ~(1 << column))>{}];
  };
  L sum = term(Fixed<0>{});
  ascending(Fixed<1>{}, Fixed<K + 1>{}, [&](auto t) ZELM_BODY { sum = t % 2 == 1 ? sum - term(t) : sum + term(t); });
  return sum;
}

// How many columns of `rest` lie below some of `part`, each counted once for each: the sign of the product of a minor
// of `part` with one of `rest` is negative if this is odd.
constexpr int crossings(int part, int rest) {
  int n = 0;
  for (; part != 0; part &= part - 1)
    n += columnCount(rest & ((part & -part) - 1));
  return n;
}

// Expansion along several rows: the sum of the products of minors of the upper rows with those of the lower rows that
// have the other columns of the set.
template <int Set, class L, int N, int U, int D>
ZELM_INLINE L expandBetween(const Minors<L, N, U>& upper, const Minors<L, N, D>& lower) {
  static_assert(columnCount(Set) == U + D);
  L sum;
  forSets<N, U>([&](auto part) ZELM_BODY {
    if constexpr ((part & ~Set) == 0) {
      constexpr int rest = Set & ~part;
      const L product = upper[part] * lower[Fixed<rest>{}];
      if constexpr (columnAt(part, U - 1) == columnAt(Set, U - 1))
        sum = product; // the lowest columns
      else
        sum = crossings(part, rest) % 2 == 1 ? sum - product : sum + product;
    }
  });
  return sum;
}

template <class L, int N, int K>
ZELM_INLINE auto withRowBelow(const Minors<L, N, K>& minors, const MatrixRow<L, N>& row) {
  Minors<L, N, K + 1> larger;
  forSets<N, K + 1>([&](auto set) ZELM_BODY { larger[set] = expandBelow<set>(minors, row); });
  return larger;
}
template <class L, int N, int K>
ZELM_INLINE auto withRowAbove(const MatrixRow<L, N>& row, const Minors<L, N, K>& minors) {
  Minors<L, N, K + 1> larger;
  forSets<N, K + 1>([&](auto set) ZELM_BODY { larger[set] = expandAbove<set>(row, minors); });
  return larger;
}

} // namespace zelm
