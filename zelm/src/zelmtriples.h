// Triples without gaps: as many vectors of three elements as a vector has lanes, one behind the other in memory.
#pragma once

#include "zelmtile.h"

namespace zelm {

// The lanes of a vector in sixteen-byte halves: `pick` takes indices of both operands within each half.
#ifdef __AVX2__
template <int a, int b, int c, int d> ZELM_INLINE Lanes<float, 8> pick(Lanes<float, 8> x, Lanes<float, 8> y) {
  constexpr auto second = [](int e) { return e < 4 ? e + 4 : e + 8; };
  constexpr auto first = [](int e) { return e < 4 ? e : e + 4; };
  return __builtin_shufflevector(x, y, first(a), first(b), first(c), first(d), second(a), second(b), second(c),
                                 second(d));
}
template <int a, int b> ZELM_INLINE Lanes<double, 4> pick(Lanes<double, 4> x, Lanes<double, 4> y) {
  constexpr auto second = [](int e) { return e < 2 ? e + 2 : e + 4; };
  constexpr auto first = [](int e) { return e < 2 ? e : e + 2; };
  return __builtin_shufflevector(x, y, first(a), first(b), second(a), second(b));
}
#else
template <int a, int b, int c, int d> ZELM_INLINE Lanes<float, 4> pick(Lanes<float, 4> x, Lanes<float, 4> y) {
  return __builtin_shufflevector(x, y, a, b, c, d);
}
template <int a, int b> ZELM_INLINE Lanes<double, 2> pick(Lanes<double, 2> x, Lanes<double, 2> y) {
  return __builtin_shufflevector(x, y, a, b);
}
#endif

// Three vectors as they lie in memory. Vectors of two halves take the low
// halves from the first three chunks and the high ones from the next: chunks are loaded and stored faster than
// whole vectors, which cross lines more often.
template <class L> struct Three { L p, q, r; };

template <class T> ZELM_INLINE Three<Lanes<T>> loadThree(const char* address) {
#ifdef __AVX2__
  constexpr int H = laneCount<T> / 2;
  const auto join = [address](int chunk) {
    return joinHalves(loadLanes<T, H>(address + chunk * 16), loadLanes<T, H>(address + 48 + chunk * 16));
  };
  return {join(0), join(1), join(2)};
#else
  return {loadLanes<T>(address), loadLanes<T>(address + vectorBytes), loadLanes<T>(address + 2 * vectorBytes)};
#endif
}

template <bool Stream, class T>
ZELM_INLINE void storeThree(char* address, const Lanes<T>& p, const Lanes<T>& q, const Lanes<T>& r) {
#ifdef __AVX2__
  putLanes<Stream>(address, lowHalf(p));
  putLanes<Stream>(address + 16, lowHalf(q));
  putLanes<Stream>(address + 32, lowHalf(r));
  putLanes<Stream>(address + 48, highHalf(p));
  putLanes<Stream>(address + 64, highHalf(q));
  putLanes<Stream>(address + 80, highHalf(r));
#else
  putLanes<Stream>(address, p);
  putLanes<Stream>(address + vectorBytes, q);
  putLanes<Stream>(address + 2 * vectorBytes, r);
#endif
}

template <class T> ZELM_INLINE Tile<Lanes<T>, 1, 3> loadTriples(const char* address) {
  const auto [p, q, r] = loadThree<T>(address);
  if constexpr (sizeof(T) == 4) {
    // p = x0 y0 z0 x1, q = y1 z1 x2 y2, r = z2 x3 y3 z3
    const auto pq = pick<1, 2, 4, 5>(p, q); // y0 z0 y1 z1
    const auto qr = pick<2, 3, 5, 6>(q, r); // x2 y2 x3 y3
    return {{pick<0, 3, 4, 6>(p, qr), pick<0, 2, 5, 7>(pq, qr), pick<1, 3, 4, 7>(pq, r)}};
  } else {
    // p = x0 y0, q = z0 x1, r = y1 z1
    return {{pick<0, 3>(p, q), pick<1, 2>(p, r), pick<0, 3>(q, r)}};
  }
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
#ifdef __AVX2__
// Lane w of p, q or r where Source::of(w) is 0, 1 or 2.
template <class Source, class V, int... w>
ZELM_INLINE V chooseLanes(const V& p, const V& q, const V& r, std::integer_sequence<int, w...>) {
  constexpr int W = sizeof...(w);
  const V pq = __builtin_shufflevector(p, q, (Source::of(w) == 1 ? w + W : w)...);
  return __builtin_shufflevector(pq, r, (Source::of(w) == 2 ? w + W : w)...);
}
// Lane (w + by) % W as lane w.
template <int by, class V, int... w> ZELM_INLINE V rotateLanes(const V& v, std::integer_sequence<int, w...>) {
  return __builtin_shufflevector(v, v, (w + by) % static_cast<int>(sizeof...(w))...);
}

// W triples without gaps are three vectors. Element c of triple t lies in lane (3 * t + c) % W of one of them, and no
// two triples share a lane: choosing lanes gives all elements c, those of c = 1 and 2 one and two lanes further on.
template <int W, int c> struct VectorOfElement {
  static constexpr int of(int w) { return w % 3 == c ? 0 : (W + w) % 3 == c ? 1 : 2; }
};
template <int W, int vector> struct ElementOfVector {
  static constexpr int of(int w) { return (vector * W + w) % 3; }
};

// Triple t of all three in lane 3 * t % W.
template <class T> ZELM_INLINE Tile<Lanes<T>, 1, 3> loadTurnedTriples(const char* x) {
  constexpr int W = laneCount<T>;
  const std::make_integer_sequence<int, W> lanes;
  const auto p = loadLanes<T>(x);
  const auto q = loadLanes<T>(x + vectorBytes);
  const auto r = loadLanes<T>(x + 2 * vectorBytes);
  return {{chooseLanes<VectorOfElement<W, 0>>(p, q, r, lanes),
           rotateLanes<1>(chooseLanes<VectorOfElement<W, 1>>(p, q, r, lanes), lanes),
           rotateLanes<2>(chooseLanes<VectorOfElement<W, 2>>(p, q, r, lanes), lanes)}};
}
template <class T, bool Stream = false> ZELM_INLINE void storeTurnedTriples(char* x, const Tile<Lanes<T>, 1, 3>& tile) {
  constexpr int W = laneCount<T>;
  const std::make_integer_sequence<int, W> lanes;
  const auto first = tile(0, 0);
  const auto second = rotateLanes<W - 1>(tile(0, 1), lanes);
  const auto third = rotateLanes<W - 2>(tile(0, 2), lanes);
  putLanes<Stream>(x, chooseLanes<ElementOfVector<W, 0>>(first, second, third, lanes));
  putLanes<Stream>(x + vectorBytes, chooseLanes<ElementOfVector<W, 1>>(first, second, third, lanes));
  putLanes<Stream>(x + 2 * vectorBytes, chooseLanes<ElementOfVector<W, 2>>(first, second, third, lanes));
}
#else
template <class T> ZELM_INLINE Tile<Lanes<T>, 1, 3> loadTurnedTriples(const char* x) {
  return loadTriples<T>(x);
}
template <class T, bool Stream = false> ZELM_INLINE void storeTurnedTriples(char* x, const Tile<Lanes<T>, 1, 3>& tile) {
  storeTriples<Stream>(x, tile);
}
#endif

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
ZELM_INLINE Lanes<T> spreadTriples(const char* x, std::integer_sequence<int, w...>) {
  constexpr int W = laneCount<T>;
  using Of = Window<W, v>;
  auto lanes = loadLanes<T>(x + Of::at * static_cast<int>(sizeof(T)));
  if constexpr (Of::reachesBehind) {
    const auto behind = loadLanes<T>(x + (Of::at + W) * static_cast<int>(sizeof(T)));
    lanes = __builtin_shufflevector(lanes, behind, (Of::isBehind(w) ? w + W : w)...);
  }
  return __builtin_shufflevector(lanes, lanes, (Of::of(w) % W)...);
}

// A matrix of 3 by 3 that triples are multiplied by, spread over the lanes of three vectors.
template <class T> struct TripleFactors {
  Lanes<T> factor[3][3]; // of vector v, term j

  // element(i, j) is what result element i multiplies element j of a triple by.
  template <class F> ZELM_INLINE explicit TripleFactors(const F& element) {
    constexpr int W = laneCount<T>;
    ZELM_UNROLL
    for (int v = 0; v < 3; ++v)
      ZELM_UNROLL
    for (int j = 0; j < 3; ++j)
      factor[v][j] = lanesOf<Lanes<T>>([&](int w) { return element((v * W + w) % 3, j); });
  }

  // Vector v of the products of the triples at x; a sum of three terms is a chain wherever there is one.
  template <int v> ZELM_INLINE Lanes<T> multiply(const char* x) const {
    const std::make_integer_sequence<int, laneCount<T>> lanes;
    const auto product = [&](int j) __attribute__((always_inline)) {
      return factor[v][j] * spreadTriples<T, v>(x + j * static_cast<int>(sizeof(T)), lanes);
    };
    return product(0) + product(1) + product(2);
  }
};

} // namespace zelm
