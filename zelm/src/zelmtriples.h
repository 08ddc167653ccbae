// Triples without gaps: as many vectors of three elements as a vector has lanes, one behind the other in memory.
#pragma once

#include "zelmtile.h"

namespace zelm {

// Three vectors as they lie in memory. Vectors of two halves take the low
// halves from the first three chunks and the high ones from the next: chunks are loaded and stored faster than
// whole vectors, which cross lines more often.
template <class L> struct Three { L p, q, r; };

template <class T> ZELM_INLINE Three<RowLanes<T>> loadThree(const char* address) {
#if ZELM_ROW_BYTES == 32
  constexpr int H = rowLaneCount<T> / 2;
  const auto join = [address](int chunk) {
    return joinHalves(loadLanes<T, H>(address + chunk * 16), loadLanes<T, H>(address + 48 + chunk * 16));
  };
  return {join(0), join(1), join(2)};
#else
  return {loadRowLanes<T>(address), loadRowLanes<T>(address + rowBytes), loadRowLanes<T>(address + 2 * rowBytes)};
#endif
}

template <bool Stream, class T>
ZELM_INLINE void storeThree(char* address, const RowLanes<T>& p, const RowLanes<T>& q, const RowLanes<T>& r) {
#if ZELM_ROW_BYTES == 32
  putLanes<Stream>(address, lowHalf(p));
  putLanes<Stream>(address + 16, lowHalf(q));
  putLanes<Stream>(address + 32, lowHalf(r));
  putLanes<Stream>(address + 48, highHalf(p));
  putLanes<Stream>(address + 64, highHalf(q));
  putLanes<Stream>(address + 80, highHalf(r));
#else
  putLanes<Stream>(address, p);
  putLanes<Stream>(address + rowBytes, q);
  putLanes<Stream>(address + 2 * rowBytes, r);
#endif
}

template <class L> ZELM_INLINE Tile<L, 1, 3> triplesOf(const Three<L>& three) {
  const auto& [p, q, r] = three;
  if constexpr (sizeof(ElementOf<L>) == 4) {
    // p = x0 y0 z0 x1, q = y1 z1 x2 y2, r = z2 x3 y3 z3
    const auto pq = pick<1, 2, 4, 5>(p, q); // y0 z0 y1 z1
    const auto qr = pick<2, 3, 5, 6>(q, r); // x2 y2 x3 y3
    return {{pick<0, 3, 4, 6>(p, qr), pick<0, 2, 5, 7>(pq, qr), pick<1, 3, 4, 7>(pq, r)}};
  } else {
    // p = x0 y0, q = z0 x1, r = y1 z1
    return {{pick<0, 3>(p, q), pick<1, 2>(p, r), pick<0, 3>(q, r)}};
  }
}
template <class T> ZELM_INLINE Tile<RowLanes<T>, 1, 3> loadTriples(const char* address) {
  return triplesOf(loadThree<T>(address));
}

// Stream needs an address that is a multiple of 16.
template <bool Stream, class L> ZELM_INLINE void storeTriples(char* address, const Tile<L, 1, 3>& tile) {
  const L x = tile(0, 0);
  const L y = tile(0, 1);
  const L z = tile(0, 2);
  if constexpr (sizeof(ElementOf<L>) == 4) {
    const auto xy = pick<0, 2, 4, 6>(x, y); // x0 x2 y0 y2
    const auto yz = pick<1, 3, 5, 7>(y, z); // y1 y3 z1 z3
    const auto zx = pick<0, 2, 5, 7>(z, x); // z0 z2 x1 x3
    storeThree<Stream, float>(address, pick<0, 2, 4, 6>(xy, zx), pick<0, 2, 5, 7>(yz, xy), pick<1, 3, 5, 7>(zx, yz));
  } else {
    storeThree<Stream, double>(address, pick<0, 2>(x, y), pick<0, 3>(z, x), pick<1, 3>(y, z));
  }
}

// The same with the objects of the lanes in an order of their own, which is quicker for vectors of two halves: for what
// is the same for all objects.

// Lane w of vector Source::of(w).
template <class Source, int v = 1, class V, int N, int... w>
ZELM_INLINE V chooseLanes(const V (&x)[N], const V& before, std::integer_sequence<int, w...> lanes) {
  constexpr int W = sizeof...(w);
  const V chosen = __builtin_shufflevector(before, x[v], (Source::of(w) == v ? w + W : w)...);
  if constexpr (v + 1 < N)
    return chooseLanes<Source, v + 1>(x, chosen, lanes);
  else
    return chosen;
}
// Lane (w + by) % W as lane w.
template <int by, class V, int... w> ZELM_INLINE V rotateLanes(const V& v, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(v, v, (w + by) % static_cast<int>(sizeof...(w))...);
}

// W objects of N elements without gaps are N vectors. Where N is odd, element c of object t lies in lane (N * t + c) %
// W of one of them, and no two objects share a lane: choosing lanes gives all elements c, those of c = 1, 2, ... as
// many lanes further on.
template <int W, int N, int c> struct VectorOfElement {
  static constexpr int of(int w) {
    int v = 0;
    while ((v * W + w) % N != c)
      ++v;
    return v;
  }
};
// Element c of all objects, that of object t in lane N * t % W.
template <int c, class V, int N> ZELM_INLINE V turnedElement(const V (&x)[N]) {
  constexpr int W = LaneTraits<V>::width;
  const std::make_integer_sequence<int, W> lanes;
  return rotateLanes<c % W>(chooseLanes<VectorOfElement<W, N, c>>(x, x[0], lanes), lanes);
}
// From that order to the objects' own.
template <int N, class V, int... w> ZELM_INLINE V turnBack(const V& v, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(v, v, N * w % static_cast<int>(sizeof...(w))...);
}

#if ZELM_ROW_BYTES == 32
template <int W, int vector> struct ElementOfVector {
  static constexpr int of(int w) { return (vector * W + w) % 3; }
};

template <class T> ZELM_INLINE Tile<RowLanes<T>, 1, 3> loadTurnedTriples(const char* x) {
  const RowLanes<T> v[] = {loadRowLanes<T>(x), loadRowLanes<T>(x + rowBytes), loadRowLanes<T>(x + 2 * rowBytes)};
  return {{turnedElement<0>(v), turnedElement<1>(v), turnedElement<2>(v)}};
}
template <class T, bool Stream = false>
ZELM_INLINE void storeTurnedTriples(char* x, const Tile<RowLanes<T>, 1, 3>& tile) {
  constexpr int W = rowLaneCount<T>;
  const std::make_integer_sequence<int, W> lanes;
  const RowLanes<T> v[] = {tile(0, 0), rotateLanes<W - 1>(tile(0, 1), lanes), rotateLanes<W - 2>(tile(0, 2), lanes)};
  putLanes<Stream>(x, chooseLanes<ElementOfVector<W, 0>>(v, v[0], lanes));
  putLanes<Stream>(x + rowBytes, chooseLanes<ElementOfVector<W, 1>>(v, v[0], lanes));
  putLanes<Stream>(x + 2 * rowBytes, chooseLanes<ElementOfVector<W, 2>>(v, v[0], lanes));
}
#else
template <class T> ZELM_INLINE Tile<RowLanes<T>, 1, 3> loadTurnedTriples(const char* x) {
  return loadTriples<T>(x);
}
template <class T, bool Stream = false>
ZELM_INLINE void storeTurnedTriples(char* x, const Tile<RowLanes<T>, 1, 3>& tile) {
  storeTriples<Stream>(x, tile);
}
#endif

// Results dst of a batch, triples without gaps: block(stream, k) does as many from k on as a row's vector has lanes,
// single(k) one. Streamed results are aligned first: vectors of triples can be, wherever elements are.
template <class T, class Block, class Single>
ZELM_INLINE void forTriples(int64_t count, const char* dst, bool streamed, const Block& block, const Single& single) {
  constexpr int64_t W = rowLaneCount<T>;
  int64_t k = 0;
  if (streamed) {
    for (; elementsToAlignment<T>(dst + k * 3 * static_cast<int64_t>(sizeof(T))) != 0; ++k)
      single(k);
    for (; k + W <= count; k += W)
      block(std::true_type{}, k);
    endStreams();
  } else {
    for (; k + W <= count; k += W)
      block(std::false_type{}, k);
  }
  for (; k < count; ++k)
    single(k);
}

// ---------------------------------------------------------------------------------------------------------------------
// Triples times what is the same for all: lanes in the order of memory, and nothing is turned

// Three elements: W vectors lie in three vectors v of W lanes. Term j of lane w takes element j of vector
// (v * W + w) / 3, which is lane of(w) of what lies `at` + j elements behind the first; lanes from W on are those of
// the W elements behind.
template <int W, int v> struct Window {
  static constexpr int at = smaller(v * W / 3 * 3, 2 * W - 2);
  static constexpr int of(int w) { return (v * W + w) / 3 * 3 - at; }
  static constexpr bool isBehind(int lane) {
    for (int w = 0; w < W; ++w)
      if (of(w) == lane + W)
        return true;
    return false;
  }
  static constexpr bool reachesBehind = of(W - 1) >= W;
};
template <class T, int v, int... w>
ZELM_INLINE RowLanes<T> spreadTriples(const char* x, std::integer_sequence<int, w...>) {
  constexpr int W = rowLaneCount<T>;
  using Of = Window<W, v>;
  auto lanes = loadRowLanes<T>(x + Of::at * static_cast<int>(sizeof(T)));
  if constexpr (Of::reachesBehind) {
    const auto behind = loadRowLanes<T>(x + (Of::at + W) * static_cast<int>(sizeof(T)));
    lanes = __builtin_shufflevector(lanes, behind, (Of::isBehind(w) ? w + W : w)...);
  }
  return __builtin_shufflevector(lanes, lanes, (Of::of(w) % W)...);
}

// A matrix of 3 by 3 that triples are multiplied by, spread over the lanes of three vectors.
template <class T> struct TripleFactors {
  RowLanes<T> factor[3][3]; // of vector v, term j

  // element(i, j) is what result element i multiplies element j of a triple by.
  template <class F> ZELM_INLINE explicit TripleFactors(const F& element) {
    constexpr int W = rowLaneCount<T>;
    ZELM_UNROLL
    for (int v = 0; v < 3; ++v)
      ZELM_UNROLL
    for (int j = 0; j < 3; ++j)
      factor[v][j] = lanesOf<RowLanes<T>>([&](int w) { return element((v * W + w) % 3, j); });
  }

  // Vector v of the products of the triples at x; a sum of three terms is a chain wherever there is one.
  template <int v> ZELM_INLINE RowLanes<T> multiply(const char* x) const {
    const std::make_integer_sequence<int, rowLaneCount<T>> lanes;
    const auto product = [&](int j) __attribute__((always_inline)) {
      return factor[v][j] * spreadTriples<T, v>(x + j * static_cast<int>(sizeof(T)), lanes);
    };
    return product(0) + product(1) + product(2);
  }
};

} // namespace zelm
