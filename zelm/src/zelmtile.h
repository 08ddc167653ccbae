// Tiles: small matrices and vectors whose elements are lanes.
//
// A tile with scalar lanes holds one object. A tile with vector lanes holds as many objects as a vector has elements,
// one a lane: neighbours of the pointer layout as they lie, objects of the other layouts through a transposition in
// registers. Arithmetic written on tiles serves both.
#pragma once

#include "zelmkernel.h"
#include "zelmlane.h"

#include <utility>

namespace zelm {

// ---------------------------------------------------------------------------------------------------------------------
// Lanes: a lane type L is an element type or a vector of one

template <class L> struct LaneTraits {
  using Element = L;
  static constexpr int width = 1;
};
template <class T, int W> struct VectorLaneTraits {
  using Element = T;
  static constexpr int width = W;
};
template <> struct LaneTraits<Lanes<float, 4>> : VectorLaneTraits<float, 4> {};
template <> struct LaneTraits<Lanes<double, 2>> : VectorLaneTraits<double, 2> {};
template <> struct LaneTraits<Lanes<float, 8>> : VectorLaneTraits<float, 8> {};
template <> struct LaneTraits<Lanes<double, 4>> : VectorLaneTraits<double, 4> {};

template <class L> using ElementOf = typename LaneTraits<L>::Element;

// The same value in every lane, signed zeros and NaN included.
template <class L> ZELM_INLINE L splat(ElementOf<L> value) {
  if constexpr (LaneTraits<L>::width == 1)
    return value;
  else
    return value - L{};
}

// Lane w: element(w).
template <class L, class F> ZELM_INLINE L lanesOf(const F& element) {
  if constexpr (LaneTraits<L>::width == 1) {
    return element(0);
  } else {
    L lanes;
    ZELM_UNROLL
    for (int w = 0; w < LaneTraits<L>::width; ++w)
      lanes[w] = element(w);
    return lanes;
  }
}

#ifndef __AVX2__
// The same lane in all. Shuffles of integers need no copy of their operand.
template <class V> ZELM_INLINE V spreadLane(const V& v, int lane) {
  const auto bits = reinterpret_cast<__m128i>(v);
  if (sizeof(v[0]) == 8)
    return reinterpret_cast<V>(lane == 0 ? _mm_shuffle_epi32(bits, 0x44) : _mm_shuffle_epi32(bits, 0xee));
  switch (lane) {
  case 0:
    return reinterpret_cast<V>(_mm_shuffle_epi32(bits, 0x00));
  case 1:
    return reinterpret_cast<V>(_mm_shuffle_epi32(bits, 0x55));
  case 2:
    return reinterpret_cast<V>(_mm_shuffle_epi32(bits, 0xaa));
  default:
    return reinterpret_cast<V>(_mm_shuffle_epi32(bits, 0xff));
  }
}
#endif

// The compiler keeps the value in a register here: it neither reads it from memory again nor forms it later.
template <class V> ZELM_INLINE void holdInRegister(V& v) {
  asm volatile("" : "+x"(v));
}

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

// A square of elements, one row a vector. Wide vectors keep to their halves first.
template <class T> ZELM_INLINE void transposeSquare(Lanes<T, 4> (&v)[4]) {
  if constexpr (sizeof(T) == 8) {
    const auto a0 = __builtin_shufflevector(v[0], v[1], 0, 4, 2, 6);
    const auto a1 = __builtin_shufflevector(v[0], v[1], 1, 5, 3, 7);
    const auto a2 = __builtin_shufflevector(v[2], v[3], 0, 4, 2, 6);
    const auto a3 = __builtin_shufflevector(v[2], v[3], 1, 5, 3, 7);
    v[0] = __builtin_shufflevector(a0, a2, 0, 1, 4, 5);
    v[1] = __builtin_shufflevector(a1, a3, 0, 1, 4, 5);
    v[2] = __builtin_shufflevector(a0, a2, 2, 3, 6, 7);
    v[3] = __builtin_shufflevector(a1, a3, 2, 3, 6, 7);
  } else {
    const auto a0 = __builtin_shufflevector(v[0], v[1], 0, 4, 1, 5);
    const auto a1 = __builtin_shufflevector(v[0], v[1], 2, 6, 3, 7);
    const auto a2 = __builtin_shufflevector(v[2], v[3], 0, 4, 1, 5);
    const auto a3 = __builtin_shufflevector(v[2], v[3], 2, 6, 3, 7);
    v[0] = __builtin_shufflevector(a0, a2, 0, 1, 4, 5);
    v[1] = __builtin_shufflevector(a0, a2, 2, 3, 6, 7);
    v[2] = __builtin_shufflevector(a1, a3, 0, 1, 4, 5);
    v[3] = __builtin_shufflevector(a1, a3, 2, 3, 6, 7);
  }
}
template <class T> ZELM_INLINE void transposeSquare(Lanes<T, 2> (&v)[2]) {
  const auto a0 = __builtin_shufflevector(v[0], v[1], 0, 2);
  const auto a1 = __builtin_shufflevector(v[0], v[1], 1, 3);
  v[0] = a0;
  v[1] = a1;
}

// The first element of each of the objects.
template <class T, class C> struct ObjectAddresses { C* of[laneCount<T>]; };

#ifdef __AVX2__
ZELM_INLINE Lanes<float, 8> joinHalves(Lanes<float, 4> low, Lanes<float, 4> high) {
  return __builtin_shufflevector(low, high, 0, 1, 2, 3, 4, 5, 6, 7);
}
ZELM_INLINE Lanes<double, 4> joinHalves(Lanes<double, 2> low, Lanes<double, 2> high) {
  return __builtin_shufflevector(low, high, 0, 1, 2, 3);
}
ZELM_INLINE Lanes<float, 4> lowHalf(Lanes<float, 8> v) {
  return __builtin_shufflevector(v, v, 0, 1, 2, 3);
}
ZELM_INLINE Lanes<float, 4> highHalf(Lanes<float, 8> v) {
  return __builtin_shufflevector(v, v, 4, 5, 6, 7);
}
ZELM_INLINE Lanes<double, 2> lowHalf(Lanes<double, 4> v) {
  return __builtin_shufflevector(v, v, 0, 1);
}
ZELM_INLINE Lanes<double, 2> highHalf(Lanes<double, 4> v) {
  return __builtin_shufflevector(v, v, 2, 3);
}

ZELM_INLINE void transposeChunk(Lanes<float, 8> (&v)[4]) {
  const auto a0 = __builtin_shufflevector(v[0], v[1], 0, 8, 1, 9, 4, 12, 5, 13);
  const auto a1 = __builtin_shufflevector(v[0], v[1], 2, 10, 3, 11, 6, 14, 7, 15);
  const auto a2 = __builtin_shufflevector(v[2], v[3], 0, 8, 1, 9, 4, 12, 5, 13);
  const auto a3 = __builtin_shufflevector(v[2], v[3], 2, 10, 3, 11, 6, 14, 7, 15);
  v[0] = __builtin_shufflevector(a0, a2, 0, 1, 8, 9, 4, 5, 12, 13);
  v[1] = __builtin_shufflevector(a0, a2, 2, 3, 10, 11, 6, 7, 14, 15);
  v[2] = __builtin_shufflevector(a1, a3, 0, 1, 8, 9, 4, 5, 12, 13);
  v[3] = __builtin_shufflevector(a1, a3, 2, 3, 10, 11, 6, 7, 14, 15);
}
ZELM_INLINE void transposeChunk(Lanes<double, 4> (&v)[2]) {
  const auto a0 = __builtin_shufflevector(v[0], v[1], 0, 4, 2, 6);
  const auto a1 = __builtin_shufflevector(v[0], v[1], 1, 5, 3, 7);
  v[0] = a0;
  v[1] = a1;
}
#endif
ZELM_INLINE void transposeChunk(Lanes<float, 4> (&v)[4]) {
  transposeSquare<float>(v);
}
ZELM_INLINE void transposeChunk(Lanes<double, 2> (&v)[2]) {
  transposeSquare<double>(v);
}

// Chunk of each object at `offset` bytes: lanes[e] gets element e of every object. The transposition is its own
// inverse.
template <class T, class C>
ZELM_INLINE void loadChunk(const ObjectAddresses<T, C>& x, int64_t offset, Lanes<T> (&lanes)[chunkElements<T>]) {
  constexpr int Q = chunkElements<T>;
  ZELM_UNROLL
  for (int q = 0; q < Q; ++q) {
#ifdef __AVX2__
    lanes[q] = joinHalves(loadLanes<T, Q>(x.of[q] + offset), loadLanes<T, Q>(x.of[q + Q] + offset));
#else
    lanes[q] = loadLanes<T, Q>(x.of[q] + offset);
#endif
  }
  transposeChunk(lanes);
}

template <class T>
ZELM_INLINE void storeChunk(const ObjectAddresses<T, char>& x, int64_t offset, Lanes<T> (&lanes)[chunkElements<T>]) {
  constexpr int Q = chunkElements<T>;
  transposeChunk(lanes);
  ZELM_UNROLL
  for (int q = 0; q < Q; ++q) {
#ifdef __AVX2__
    storeLanes(x.of[q] + offset, lowHalf(lanes[q]));
    storeLanes(x.of[q + Q] + offset, highHalf(lanes[q]));
#else
    storeLanes(x.of[q] + offset, lanes[q]);
#endif
  }
}

// Three elements of one object.
ZELM_INLINE Lanes<float, 4> loadTriple(const char* address) {
  const auto two = _mm_set_sd(loadElement<double>(address));
  const auto third = _mm_set_ss(loadElement<float>(address + 8));
  return _mm_movelh_ps(_mm_castpd_ps(two), third);
}
ZELM_INLINE void storeTriple(char* address, Lanes<float, 4> v) {
  storeElement(address, _mm_cvtsd_f64(_mm_castps_pd(v)));
  storeElement(address + 8, _mm_cvtss_f32(_mm_movehl_ps(v, v)));
}

// N neighbouring elements of each object at `offset` bytes, into lanes[0 .. N-1]. The last chunk of a run of at least
// one chunk overlaps its neighbour; three elements are two and one; a shorter run goes element by element.
template <int N, class T, class C>
ZELM_INLINE void loadRun(const ObjectAddresses<T, C>& x, int64_t offset, Lanes<T>* lanes) {
  constexpr int Q = chunkElements<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  if constexpr (N >= Q) {
    ZELM_UNROLL
    for (int e = 0; e < N; e += Q) {
      const int from = e + Q <= N ? e : N - Q;
      Lanes<T> chunk[Q];
      loadChunk<T>(x, offset + from * E, chunk);
      ZELM_UNROLL
      for (int q = e - from; q < Q; ++q)
        lanes[from + q] = chunk[q];
    }
  } else if constexpr (N == 3) {
    Lanes<T> chunk[Q];
    ZELM_UNROLL
    for (int q = 0; q < Q; ++q) {
#ifdef __AVX2__
      chunk[q] = joinHalves(loadTriple(x.of[q] + offset), loadTriple(x.of[q + Q] + offset));
#else
      chunk[q] = loadTriple(x.of[q] + offset);
#endif
    }
    transposeChunk(chunk);
    ZELM_UNROLL
    for (int e = 0; e < N; ++e)
      lanes[e] = chunk[e];
  } else {
    ZELM_UNROLL
    for (int e = 0; e < N; ++e) {
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; ++w)
        lanes[e][w] = loadElement<T>(x.of[w] + offset + e * E);
    }
  }
}

// The same back. All lanes have been computed before the first is stored, so what overlaps is written twice alike.
template <int N, class T>
ZELM_INLINE void storeRun(const ObjectAddresses<T, char>& x, int64_t offset, const Lanes<T>* lanes) {
  constexpr int Q = chunkElements<T>;
  constexpr auto E = static_cast<int64_t>(sizeof(T));
  if constexpr (N >= Q) {
    ZELM_UNROLL
    for (int e = 0; e < N; e += Q) {
      const int from = e + Q <= N ? e : N - Q;
      Lanes<T> chunk[Q];
      ZELM_UNROLL
      for (int q = 0; q < Q; ++q)
        chunk[q] = lanes[from + q];
      storeChunk<T>(x, offset + from * E, chunk);
    }
  } else if constexpr (N == 3) {
    Lanes<T> chunk[Q] = {lanes[0], lanes[1], lanes[2], lanes[2]};
    transposeChunk(chunk);
    ZELM_UNROLL
    for (int q = 0; q < Q; ++q) {
#ifdef __AVX2__
      storeTriple(x.of[q] + offset, lowHalf(chunk[q]));
      storeTriple(x.of[q + Q] + offset, highHalf(chunk[q]));
#else
      storeTriple(x.of[q] + offset, chunk[q]);
#endif
    }
  } else {
    ZELM_UNROLL
    for (int e = 0; e < N; ++e) {
      ZELM_UNROLL
      for (int w = 0; w < laneCount<T>; ++w)
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
  Tile<Lanes<T>, R, C> tile;
  ZELM_UNROLL
  for (int i = 0; i < R; ++i) {
    ZELM_UNROLL
    for (int j = 0; j < C; ++j)
      tile(i, j) = loadLanes<T>(view.address(i, j));
  }
  return tile;
}

// The same for vectors of N elements: a tile of one row.
template <int N, class Operand> ZELM_INLINE auto loadVectorTiles(const Operand& x, int64_t k) {
  using T = typename Operand::Element;
  const auto view = x.object(k);
  Tile<Lanes<T>, 1, N> tile;
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    tile(0, j) = loadLanes<T>(view.address(j));
  return tile;
}

template <int N, class Operand>
ZELM_INLINE void storeVectorTiles(const Operand& x, int64_t k,
                                  const Tile<Lanes<typename Operand::Element>, 1, N>& tile) {
  const auto view = x.object(k);
  ZELM_UNROLL
  for (int j = 0; j < N; ++j)
    storeLanes(view.address(j), tile(0, j));
}

} // namespace zelm
