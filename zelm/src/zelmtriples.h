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

// Memory holds the halves' parts one behind the other: three chunks of the low half, then those of the high half.
template <class T> ZELM_INLINE Lanes<T> loadHalves(const char* address, int chunk) {
#ifdef __AVX2__
  constexpr int W = laneCount<T> / 2;
  return joinHalves(loadLanes<T, W>(address + chunk * 16), loadLanes<T, W>(address + 48 + chunk * 16));
#else
  return loadLanes<T>(address + chunk * 16);
#endif
}
template <bool Stream, class V> ZELM_INLINE void storeChunkHalf(char* address, const V& v) {
  if constexpr (Stream)
    streamLanes(address, v);
  else
    storeLanes(address, v);
}
template <bool Stream, class V> ZELM_INLINE void storeHalves(char* address, int chunk, const V& v) {
#ifdef __AVX2__
  storeChunkHalf<Stream>(address + chunk * 16, lowHalf(v));
  storeChunkHalf<Stream>(address + 48 + chunk * 16, highHalf(v));
#else
  storeChunkHalf<Stream>(address + chunk * 16, v);
#endif
}

template <class T> ZELM_INLINE Tile<Lanes<T>, 1, 3> loadTriples(const char* address) {
  const auto p = loadHalves<T>(address, 0);
  const auto q = loadHalves<T>(address, 1);
  const auto r = loadHalves<T>(address, 2);
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
    storeHalves<Stream>(address, 0, pick<0, 2, 4, 6>(xy, zx));
    storeHalves<Stream>(address, 1, pick<0, 2, 5, 7>(yz, xy));
    storeHalves<Stream>(address, 2, pick<1, 3, 5, 7>(zx, yz));
  } else {
    storeHalves<Stream>(address, 0, pick<0, 2>(x, y));
    storeHalves<Stream>(address, 1, pick<0, 3>(z, x));
    storeHalves<Stream>(address, 2, pick<1, 3>(y, z));
  }
}

} // namespace zelm
