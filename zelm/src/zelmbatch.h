// What LU needs beside the blocks of zelmblock.h: choices lane by lane, since each object has pivots of its own, and
// elements found by an index that differs from lane to lane.
//
// The last block of a batch is filled up with the batch's last object. Its lanes compute the same values and store them
// to the same place, so no lane needs to be left out. Everything is read before anything is stored, so in place works
// as it does for one object.
#pragma once

#include "zelmblock.h"

namespace zelm {

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
// Objects whose rows lie together

// body(w, object) for the lanes of the block that starts at object k.
template <class T, class Body> ZELM_INLINE void forLanes(int64_t k, int64_t count, const Body& body) {
  constexpr int W = laneCount<T>;
  if (k + W <= count) {
    ZELM_UNROLL
    for (int w = 0; w < W; ++w)
      body(w, k + w);
  } else {
    for (int w = 0; w < W; ++w)
      body(w, k + w < count ? k + w : count - 1);
  }
}

// The first element of objects k, k + 1, ...: matrices, vectors, and plain arrays of `each` elements an object. Calls
// of their own: inlined into every size of every kernel they would be larger than all the arithmetic.
template <class Operand> ZELM_NOINLINE auto matrixAddresses(const Operand& x, int64_t k, int64_t count) {
  using T = typename Operand::Element;
  using C = std::remove_pointer_t<decltype(x.object(0, 0).address(0, 0))>;
  ObjectAddresses<T, C> addresses;
  forLanes<T>(k, count, [&](int w, int64_t object) { addresses.of[w] = x.object(object, 0).address(0, 0); });
  return addresses;
}
template <class Operand> ZELM_NOINLINE auto vectorAddresses(const Operand& x, int64_t k, int64_t count) {
  using T = typename Operand::Element;
  using C = std::remove_pointer_t<decltype(x.object(0).address(0))>;
  ObjectAddresses<T, C> addresses;
  forLanes<T>(k, count, [&](int w, int64_t object) { addresses.of[w] = x.object(object).address(0); });
  return addresses;
}
template <class T, class I> struct PlainAddresses { I* of[laneCount<T>]; };
// Of a whole block, N elements an object.
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
template <class T, class I> ZELM_NOINLINE auto plainAddresses(const Plain<I>& x, int64_t k, int64_t count) {
  PlainAddresses<T, I> addresses;
  forLanes<T>(k, count, [&](int w, int64_t object) { addresses.of[w] = x.pointer + object * x.each; });
  return addresses;
}

// R rows of C elements, rowStep bytes apart.
template <class T, class B, int R, int C>
ZELM_INLINE void loadRows(const ObjectAddresses<T, B>& x, int64_t rowStep, Tile<Lanes<T>, R, C>& tile) {
  if (rowStep == C * static_cast<int64_t>(sizeof(T))) {
    loadRun<R * C, T>(x, 0, tile.element);
  } else {
    ZELM_UNROLL
    for (int i = 0; i < R; ++i)
      loadRun<C, T>(x, i * rowStep, tile.element + i * C);
  }
}
template <class T, int R, int C>
ZELM_INLINE void storeRows(const ObjectAddresses<T, char>& x, int64_t rowStep, const Tile<Lanes<T>, R, C>& tile) {
  if (rowStep == C * static_cast<int64_t>(sizeof(T))) {
    storeRun<R * C, T>(x, 0, tile.element);
  } else {
    ZELM_UNROLL
    for (int i = 0; i < R; ++i)
      storeRun<C, T>(x, i * rowStep, tile.element + i * C);
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// Objects whose elements lie anywhere: any strides, pointer layout

// Element e of object k is at position[e] + object(k); the sum is an address. Each of the two alone need not be one.
template <int Elements> struct Positions { std::intptr_t of[Elements]; };

template <int N, class Operand> ZELM_INLINE auto matrixPositions(const Operand& x) {
  Positions<N * N> positions;
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) {
      if constexpr (decltype(x.object(0, 0))::strided)
        positions.of[i * N + j] = i * static_cast<int64_t>(x.stride1) + j * static_cast<int64_t>(x.stride2);
      else
        positions.of[i * N + j] = reinterpret_cast<std::intptr_t>(x.list[i * N + j]);
    }
  return positions;
}
template <int N, class Operand> ZELM_INLINE auto vectorPositions(const Operand& x) {
  Positions<N> positions;
  for (int j = 0; j < N; ++j) {
    if constexpr (decltype(x.object(0))::strided)
      positions.of[j] = j * static_cast<int64_t>(x.stride2);
    else
      positions.of[j] = reinterpret_cast<std::intptr_t>(x.list[j]);
  }
  return positions;
}

template <class T> struct ObjectOffsets {
  std::intptr_t of[laneCount<T>];
  ZELM_INLINE char* address(std::intptr_t position, int w) const { return reinterpret_cast<char*>(position + of[w]); }
  ZELM_INLINE Lanes<T> load(std::intptr_t position) const {
    return gatherLanes<T>([&](int w) ZELM_BODY { return address(position, w); });
  }
  ZELM_INLINE void store(std::intptr_t position, const Lanes<T>& lanes) const {
    scatterLanes<T>([&](int w) ZELM_BODY { return address(position, w); }, lanes);
  }
};

// Pointer layout where stride0 is the element size: the objects of a whole block are neighbours at each position.
template <class T> struct NeighbourOffsets {
  std::intptr_t first;
  ZELM_INLINE char* address(std::intptr_t position, int w) const {
    return reinterpret_cast<char*>(position + first) + w * static_cast<int>(sizeof(T));
  }
  ZELM_INLINE Lanes<T> load(std::intptr_t position) const { return loadLanes<T>(address(position, 0)); }
  ZELM_INLINE void store(std::intptr_t position, const Lanes<T>& lanes) const {
    storeLanes(address(position, 0), lanes);
  }
};

template <class Operand> ZELM_INLINE std::intptr_t objectOffset(const Operand& x, int64_t k) {
  return reinterpret_cast<std::intptr_t>(x.object(k, 0).address(0, 0));
}
template <class T, class Stride> ZELM_INLINE std::intptr_t objectOffset(const Vectors<T, Stride>& x, int64_t k) {
  return reinterpret_cast<std::intptr_t>(x.object(k).address(0));
}
template <class T, class Stride> ZELM_INLINE std::intptr_t objectOffset(const VectorsL<T, Stride>& x, int64_t k) {
  return reinterpret_cast<std::intptr_t>(x.object(k).address(0));
}
template <class T> ZELM_INLINE std::intptr_t objectOffset(const MatricesP<T>& x, int64_t k) {
  return x.offset + k * x.stride0;
}
template <class T> ZELM_INLINE std::intptr_t objectOffset(const VectorsP<T>& x, int64_t k) {
  return x.offset + k * x.stride0;
}

template <class Operand> ZELM_NOINLINE auto objectOffsets(const Operand& x, int64_t k, int64_t count) {
  using T = typename Operand::Element;
  ObjectOffsets<T> offsets;
  forLanes<T>(k, count, [&](int w, int64_t object) { offsets.of[w] = objectOffset(x, object); });
  return offsets;
}

} // namespace zelm
