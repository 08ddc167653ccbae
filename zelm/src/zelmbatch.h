// What LU needs beside the blocks of zelmblock.h: choices lane by lane, since each object has pivots of its own, and
// elements found by an index that differs from lane to lane.
//
// Everything is read before anything is stored, so in place works as it does for one object.
#pragma once

#include "zelmblock.h"

namespace zelm {

// Matrices of other sides than 3 to 6 go in lanes, through memory, up to this one.
constexpr int luLaneSide = 16;

// ---------------------------------------------------------------------------------------------------------------------
// Choices lane by lane

// Exchanges x[k] with x[i] in the lanes of with[i], for all i behind k. No lane is in two of them.
template <class K, class L, int N> ZELM_INLINE void exchange(K k, const MaskOf<L> (&with)[N], L (&x)[N]) {
  LaneExchange<L> row(x[k]);
  ascending(next(k), Fixed<N>{}, [&](auto i) ZELM_BODY { row.with(with[i], x[i]); });
  x[k] = row.value();
}

// Pairs (a, b), a < b: exchanged one after the other wherever key a is greater than key b, they sort any N keys.
template <int N> struct SortingNetwork;
template <> struct SortingNetwork<3> { static constexpr int pair[][2] = {{0, 2}, {0, 1}, {1, 2}}; };
template <> struct SortingNetwork<4> { static constexpr int pair[][2] = {{0, 2}, {1, 3}, {0, 1}, {2, 3}, {1, 2}}; };
template <> struct SortingNetwork<5> {
  static constexpr int pair[][2] = {{0, 3}, {1, 4}, {0, 2}, {1, 3}, {0, 1}, {2, 4}, {1, 2}, {3, 4}, {2, 3}};
};
template <> struct SortingNetwork<6> {
  static constexpr int pair[][2] = {{0, 5}, {1, 3}, {2, 4}, {1, 2}, {3, 4}, {0, 3},
                                    {2, 5}, {0, 1}, {2, 3}, {4, 5}, {1, 2}, {3, 4}};
};

// Puts rows into an order of their own in every lane: row i is to be the one that was row p[i]. The exchanges that
// would sort p, in reverse.
template <class L, int N> class RowOrder {
  using I = IntegerOf<L>;

public:
  ZELM_INLINE explicit RowOrder(const I (&p)[N]) {
    L key[N];
    ascending(Fixed<0>{}, Fixed<N>{}, [&](auto i) ZELM_BODY { key[i] = reinterpret_cast<L>(p[i]); });
    ascending(Fixed<0>{}, Fixed<steps>{}, [&](auto s) ZELM_BODY {
      where_[s] = greater(reinterpret_cast<I>(key[Network::pair[s][0]]), reinterpret_cast<I>(key[Network::pair[s][1]]));
      exchange(s, key);
    });
    MaskOf<L> wrong{};
    ascending(Fixed<0>{}, Fixed<N>{},
              [&](auto i) ZELM_BODY { wrong = either(wrong, unequal(reinterpret_cast<I>(key[i]), I{} + i.value)); });
    isPermutation_ = !any(wrong);
  }
  // Otherwise there is no such order: a row appears twice.
  ZELM_INLINE bool isPermutation() const { return isPermutation_; }
  ZELM_INLINE void put(L (&x)[N]) const {
    descending(Fixed<0>{}, Fixed<steps>{}, [&](auto s) ZELM_BODY { exchange(s, x); });
  }

private:
  using Network = SortingNetwork<N>;
  static constexpr int steps = sizeof Network::pair / sizeof Network::pair[0];

  template <class S> ZELM_INLINE void exchange(S s, L (&x)[N]) const {
    L& a = x[Network::pair[s][0]];
    L& b = x[Network::pair[s][1]];
    const L old = a;
    a = select<L>(where_[s], b, a);
    b = select<L>(where_[s], old, b);
  }

  MaskOf<L> where_[steps];
  bool isPermutation_;
};

// ---------------------------------------------------------------------------------------------------------------------
// Rows by index: each lane has its own

// The entries of the objects of a block in a plain run.
template <class T, class I> struct PlainAddresses { I* of[laneCount<T>]; };
// Of neighbours, N entries an object.
template <int N, class T, class I> struct PlainRun {
  I* first;
  ZELM_INLINE operator PlainAddresses<T, I>() const {
    PlainAddresses<T, I> addresses;
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w)
      addresses.of[w] = first + w * N;
    return addresses;
  }
};
// A call of its own: inlined into every size of every kernel it would be larger than the arithmetic.
template <class T, class I> ZELM_NOINLINE auto plainAddresses(const Plain<I>& x, int64_t first, int last) {
  PlainAddresses<T, I> addresses;
  for (int w = 0; w < laneCount<T>; ++w)
    addresses.of[w] = x.pointer + (first + smaller(w, last)) * x.each;
  return addresses;
}
// of(block) is where the entries of a block are, N for each object.
template <int N, class T, class B, class I> ZELM_INLINE auto entriesOf(const Plain<I>& x, const B& block) {
  if constexpr (B::neighbours)
    return PlainRun<N, T, I>{x.pointer + block.first * N};
  else
    return plainAddresses<T>(x, block.first, block.last);
}

// Their first two entries, in lanes as wide as T.
template <class T> ZELM_INLINE void loadEntryPairs(const PlainAddresses<T, const int32_t>& index, Lanes<T>* lanes) {
  if constexpr (sizeof(T) == sizeof(int32_t)) {
    StridedBlock<const T, UnitStep<const T>> bits{{}, 0, {}};
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w)
      bits.objects.of[w] = reinterpret_cast<const char*>(index.of[w]);
    bits.load(0, 0, Fixed<2>{}, lanes);
  } else {
    for (int i = 0; i < 2; ++i) {
      IntegerOf<Lanes<T>> p{};
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; ++w)
        p[w] = index.of[w][i];
      lanes[i] = reinterpret_cast<Lanes<T>>(p);
    }
  }
}
template <class T> ZELM_INLINE void storeEntryPairs(const PlainAddresses<T, int32_t>& index, const Lanes<T>* lanes) {
  if constexpr (sizeof(T) == sizeof(int32_t)) {
    StridedBlock<T, UnitStep<T>> bits{{}, 0, {}};
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w)
      bits.objects.of[w] = reinterpret_cast<char*>(index.of[w]);
    bits.store(0, 0, Fixed<2>{}, lanes);
  } else {
    for (int i = 0; i < 2; ++i) {
      const auto p = reinterpret_cast<IntegerOf<Lanes<T>>>(lanes[i]);
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; ++w)
        index.of[w][i] = static_cast<int32_t>(p[w]);
    }
  }
}

// n elements of row index.of[w][i] of the object in lane w.
template <class T, class Objects, class Index, class N>
ZELM_INLINE void loadRowByIndex(const Objects& objects, const Index& index, int i, N n, Lanes<T>* lanes) {
  if constexpr (Objects::unit) {
    StridedBlock<const T, UnitStep<const T>> row{{}, 0, {}};
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w)
      row.objects.of[w] = objects.address(index.of[w][i], 0, w);
    row.load(0, 0, n, lanes);
  } else {
    ascending(Fixed<0>{}, n, [&](auto j) ZELM_BODY {
      lanes[j] = gatherLanes<T>([&](int w) ZELM_BODY { return objects.address(index.of[w][i], j, w); });
    });
  }
}
template <class T, class Objects, class Index, class N>
ZELM_INLINE void storeRowByIndex(const Objects& objects, const Index& index, int i, N n, const Lanes<T>* lanes) {
  if constexpr (Objects::unit) {
    StridedBlock<T, UnitStep<T>> row{{}, 0, {}};
    ZELM_UNROLL
    for (int w = 0; w < laneCount<T>; ++w)
      row.objects.of[w] = objects.address(index.of[w][i], 0, w);
    row.store(0, 0, n, lanes);
  } else {
    ascending(Fixed<0>{}, n, [&](auto j) ZELM_BODY {
      scatterLanes<T>([&](int w) ZELM_BODY { return objects.address(index.of[w][i], j, w); }, lanes[j]);
    });
  }
}
// Element index.of[w][i] of the vector in lane w.
template <class T, class Objects, class Index>
ZELM_INLINE Lanes<T> loadByIndex(const Objects& vectors, const Index& index, int i) {
  return gatherLanes<T>([&](int w) ZELM_BODY { return vectors.address(0, index.of[w][i], w); });
}

} // namespace zelm
