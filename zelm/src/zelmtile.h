// Tiles: small matrices and vectors whose elements are lanes.
//
// A tile with scalar lanes holds one object. A tile with vector lanes holds as many objects as a vector has elements,
// one a lane: neighbours of the pointer layout as they lie, objects of the other layouts through a transposition in
// registers. Arithmetic written on tiles serves both.
#pragma once

#include "zelmextent.h"
#include "zelmkernel.h"
#include "zelmlane.h"

#include <utility>

namespace zelm {

template <class L, int R, int C> struct Tile {
  L element[R * C];
  ZELM_INLINE L& operator()(int i, int j) { return element[i * C + j]; }
  ZELM_INLINE const L& operator()(int i, int j) const { return element[i * C + j]; }
};

// ---------------------------------------------------------------------------------------------------------------------
// One object

template <int R, int C, class View> ZELM_INLINE auto loadTile(const View& x) {
  Tile<typename View::Element, R, C> tile;
  ZELM_UNROLL
  for (int i = 0; i < R; ++i) {
    ZELM_UNROLL
    for (int j = 0; j < C; ++j)
      tile(i, j) = x.load(i, j);
  }
  return tile;
}

// ---------------------------------------------------------------------------------------------------------------------
// As many objects as a vector has elements, from the addresses of their elements

// Sixteen bytes of each object.
template <class T> constexpr int chunkElements = 16 / static_cast<int>(sizeof(T));

// Chunks of as many objects as a vector is wide: vector q has the objects q, q + chunkElements, ... in its sixteen-byte
// parts. Transposed, vector e has element e of every object, in order; the transposition is its own inverse.
template <class V> ZELM_INLINE void transposeChunk(V (&v)[4]) {
  const auto a0 = pick<0, 4, 1, 5>(v[0], v[1]);
  const auto a1 = pick<2, 6, 3, 7>(v[0], v[1]);
  const auto a2 = pick<0, 4, 1, 5>(v[2], v[3]);
  const auto a3 = pick<2, 6, 3, 7>(v[2], v[3]);
  v[0] = pick<0, 1, 4, 5>(a0, a2);
  v[1] = pick<2, 3, 6, 7>(a0, a2);
  v[2] = pick<0, 1, 4, 5>(a1, a3);
  v[3] = pick<2, 3, 6, 7>(a1, a3);
}
template <class V> ZELM_INLINE void transposeChunk(V (&v)[2]) {
  const auto a0 = pick<0, 2>(v[0], v[1]);
  const auto a1 = pick<1, 3>(v[0], v[1]);
  v[0] = a0;
  v[1] = a1;
}

// Exchanges the parts of a whose number has bit `distance` with those of b whose number hasn't, in order.
template <int distance, class V, int... w>
ZELM_INLINE void exchangeParts(V& a, V& b, std::integer_sequence<int, w...>) {
  constexpr int W = sizeof...(w);
  constexpr int D = distance * chunkElements<ElementOf<V>>;
  const V first = __builtin_shufflevector(a, b, ((w & D) == 0 ? w : w - D + W)...);
  b = __builtin_shufflevector(a, b, ((w & D) == 0 ? w + D : w + W)...);
  a = first;
}
// A square of elements, one row a vector: within sixteen bytes first, then these change places.
template <int distance, class V, int W> ZELM_INLINE void transposeParts(V (&v)[W]) {
  constexpr int D = distance * chunkElements<ElementOf<V>>;
  if constexpr (D < W) {
    ZELM_UNROLL
    for (int i = 0; i < W; ++i)
      if ((i & D) == 0)
        exchangeParts<distance>(v[i], v[i + D], std::make_integer_sequence<int, W>{});
    transposeParts<2 * distance>(v);
  }
}
template <class V, int W> ZELM_INLINE void transposeSquare(V (&v)[W]) {
  constexpr int Q = smaller(W, chunkElements<ElementOf<V>>);
  ZELM_UNROLL
  for (int i = 0; i < W; i += Q)
    transposeChunk(reinterpret_cast<V(&)[Q]>(v[i]));
  transposeParts<1>(v);
}

// The vector whose part p is part(p), and store(p, part) for each part of a vector.
template <class T, int W, class F> ZELM_INLINE Lanes<T, W> vectorOfParts(const F& part) {
  constexpr int count = W / chunkElements<T>;
  Lanes<T, chunkElements<T>> parts[count];
  ZELM_UNROLL
  for (int p = 0; p < count; ++p)
    parts[p] = part(p);
  return joinParts(parts);
}
template <class V, class F, int... p>
ZELM_INLINE void forParts(const V& v, const F& store, std::integer_sequence<int, p...>) {
  (store(p, partOf<p>(v)), ...);
}
template <class V, class F> ZELM_INLINE void forParts(const V& v, const F& store) {
  forParts(v, store, std::make_integer_sequence<int, static_cast<int>(sizeof v) / 16>{});
}

// The first element of each of the objects, and what lies `offset` bytes behind it: N neighbouring elements of the
// objects q, q + chunkElements, ... (a chunk, or three of four), a vector full of object w, one element of object w.
// Whatever answers the same, such as products of two of these, can be transposed by the functions below.
template <class T, class C, int W = laneCount<T>> struct ObjectAddresses {
  C* of[W];

  template <int N> ZELM_INLINE Lanes<T, W> chunks(int q, int64_t offset) const {
    constexpr int Q = chunkElements<T>;
    return vectorOfParts<T, W>([&](int p) ZELM_BODY {
      if constexpr (N == Q)
        return loadLanes<T, Q>(of[q + p * Q] + offset);
      else
        return loadTriple(of[q + p * Q] + offset);
    });
  }
  ZELM_INLINE Lanes<T, W> vector(int w, int64_t offset) const { return loadLanes<T, W>(of[w] + offset); }
  ZELM_INLINE T element(int w, int64_t offset) const { return loadElement<T>(of[w] + offset); }
};

// Chunk of each object at `offset` bytes: lanes[e] gets element e of every object.
template <class T, class Objects, class V>
ZELM_INLINE void loadChunk(const Objects& x, int64_t offset, V (&lanes)[chunkElements<T>]) {
  constexpr int Q = chunkElements<T>;
  ZELM_UNROLL
  for (int q = 0; q < Q; ++q)
    lanes[q] = x.template chunks<Q>(q, offset);
  transposeChunk(lanes);
}

template <class T, int W>
ZELM_INLINE void storeChunk(const ObjectAddresses<T, char, W>& x, int64_t offset,
                            LanesOf<T, W> (&lanes)[chunkElements<T>]) {
  constexpr int Q = chunkElements<T>;
  transposeChunk(lanes);
  ZELM_UNROLL
  for (int q = 0; q < Q; ++q)
    forParts(lanes[q], [&](int p, const auto& part) { storeLanes(x.of[q + p * Q] + offset, part); });
}

// N neighbouring elements of each object at `offset` bytes, into lanes[0 .. N-1]. The last chunk of a run of at least
// one chunk overlaps its neighbour; three elements are two and one; a shorter run goes element by element.
template <int N, class T, class Objects, class V> ZELM_INLINE void loadRun(const Objects& x, int64_t offset, V* lanes) {
  constexpr int Q = chunkElements<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  if constexpr (N >= Q) {
    ZELM_UNROLL
    for (int e = 0; e < N; e += Q) {
      const int from = e + Q <= N ? e : N - Q;
      V chunk[Q];
      loadChunk<T>(x, offset + from * E, chunk);
      ZELM_UNROLL
      for (int q = e - from; q < Q; ++q)
        lanes[from + q] = chunk[q];
    }
  } else if constexpr (N == 3) {
    V chunk[Q];
    ZELM_UNROLL
    for (int q = 0; q < Q; ++q)
      chunk[q] = x.template chunks<N>(q, offset);
    transposeChunk(chunk);
    ZELM_UNROLL
    for (int e = 0; e < N; ++e)
      lanes[e] = chunk[e];
  } else {
    ZELM_UNROLL
    for (int e = 0; e < N; ++e)
      lanes[e] = lanesOf<V>([&](int w) ZELM_BODY { return x.element(w, offset + e * E); });
  }
}

// The same back. All lanes have been computed before the first is stored, so what overlaps is written twice alike.
template <int N, class T, int W>
ZELM_INLINE void storeRun(const ObjectAddresses<T, char, W>& x, int64_t offset, const LanesOf<T, W>* lanes) {
  constexpr int Q = chunkElements<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  if constexpr (N >= Q) {
    ZELM_UNROLL
    for (int e = 0; e < N; e += Q) {
      const int from = e + Q <= N ? e : N - Q;
      Lanes<T, W> chunk[Q];
      ZELM_UNROLL
      for (int q = 0; q < Q; ++q)
        chunk[q] = lanes[from + q];
      storeChunk(x, offset + from * E, chunk);
    }
  } else if constexpr (N == 3) {
    Lanes<T, W> chunk[Q] = {lanes[0], lanes[1], lanes[2], lanes[2]};
    transposeChunk(chunk);
    ZELM_UNROLL
    for (int q = 0; q < Q; ++q)
      forParts(chunk[q], [&](int p, const auto& part) { storeTriple(x.of[q + p * Q] + offset, part); });
  } else {
    ZELM_UNROLL
    for (int e = 0; e < N; ++e) {
      ZELM_UNROLL
      for (int w = 0; w < W; ++w)
        storeElement<T>(x.of[w] + offset + e * E, lanes[e][w]);
    }
  }
}

// ---------------------------------------------------------------------------------------------------------------------
// As many objects as a vector has elements, from an operand of the pointer layout that has them side by side

// Objects k, k + 1, ... of an untransposed matrix operand of R by C elements, one a lane.
template <int R, int C, class Operand> ZELM_INLINE auto loadTiles(const Operand& x, int64_t k) {
  using T = typename Operand::Element;
  const auto view = x.object(k, C);
  Tile<RowLanes<T>, R, C> tile;
  ZELM_UNROLL
  for (int i = 0; i < R; ++i) {
    ZELM_UNROLL
    for (int j = 0; j < C; ++j)
      tile(i, j) = loadRowLanes<T>(view.address(i, j));
  }
  return tile;
}

// The same for vectors of N elements: a tile of one row.
template <int N, class Operand> ZELM_INLINE auto loadVectorTiles(const Operand& x, int64_t k) {
  using T = typename Operand::Element;
  const auto view = x.object(k);
  Tile<RowLanes<T>, 1, N> tile;
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    tile(0, j) = loadRowLanes<T>(view.address(j));
  return tile;
}

template <int N, class Operand>
ZELM_INLINE void storeVectorTiles(const Operand& x, int64_t k,
                                  const Tile<RowLanes<typename Operand::Element>, 1, N>& tile) {
  const auto view = x.object(k);
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    storeLanes(view.address(j), tile(0, j));
}

// ---------------------------------------------------------------------------------------------------------------------
// Lane values in memory

// Lanes or, as the caller's scratch, elements at any address; the two vectors of a pair each in its own place.
template <class L> struct Column {
  L* element;
  ZELM_INLINE L load(int64_t i) const {
    L value;
    std::memcpy(&value, element + i, sizeof value);
    return value;
  }
  ZELM_INLINE void store(int64_t i, L value) const { std::memcpy(element + i, &value, sizeof value); }
};
template <class V> struct Column<Pair<V>> {
  V* low;
  V* high;
  ZELM_INLINE Pair<V> load(int64_t i) const { return {low[i], high[i]}; }
  ZELM_INLINE void store(int64_t i, const Pair<V>& value) const {
    low[i] = value.low;
    high[i] = value.high;
  }
};

// A dense matrix, row after row.
template <class L, class Width> struct Rectangle {
  Column<L> elements;
  Width width;
  ZELM_INLINE L load(int64_t i, int64_t j) const { return elements.load(i * width + j); }
  ZELM_INLINE void store(int64_t i, int j, const L& value) const { elements.store(i * width + j, value); }
};

} // namespace zelm
