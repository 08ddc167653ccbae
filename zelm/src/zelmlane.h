// Lanes: vectors of elements as wide as the build allows.
//
// Nothing is ever read or written beyond the elements that are asked for, and no address needs to be aligned.
#pragma once

#include "zelmoperand.h"

#include <immintrin.h>

// Before a loop over the elements of a tile: unrolled completely, and early enough for the tile to live in registers.
#ifdef __clang__
#  define ZELM_UNROLL _Pragma("clang loop unroll(full)")
#else
#  define ZELM_UNROLL _Pragma("GCC unroll 64")
#endif

namespace zelm {

#ifdef __AVX2__
constexpr int vectorBytes = 32;
#else
constexpr int vectorBytes = 16;
#endif

// How many elements of a type a vector holds.
template <class T> constexpr int laneCount = vectorBytes / static_cast<int>(sizeof(T));

template <class T, int W> struct VectorOf { typedef T type __attribute__((vector_size(W * sizeof(T)))); };
// A vector of W elements of type T; W is a power of two.
template <class T, int W = laneCount<T>> using Lanes = typename VectorOf<T, W>::type;

template <class T, int W = laneCount<T>> ZELM_INLINE Lanes<T, W> loadLanes(const char* address) {
  Lanes<T, W> v;
  std::memcpy(&v, address, sizeof v);
  return v;
}

template <class V> ZELM_INLINE void storeLanes(char* address, const V& v) {
  std::memcpy(address, &v, sizeof v);
}

// Past the caches: the address must be a multiple of the vector's size.
ZELM_INLINE void streamLanes(char* address, const Lanes<float, 4>& v) {
  _mm_stream_ps(reinterpret_cast<float*>(address), v);
}
ZELM_INLINE void streamLanes(char* address, const Lanes<double, 2>& v) {
  _mm_stream_pd(reinterpret_cast<double*>(address), v);
}
#ifdef __AVX2__
ZELM_INLINE void streamLanes(char* address, const Lanes<float, 8>& v) {
  _mm256_stream_ps(reinterpret_cast<float*>(address), v);
}
ZELM_INLINE void streamLanes(char* address, const Lanes<double, 4>& v) {
  _mm256_stream_pd(reinterpret_cast<double*>(address), v);
}
#endif

// Results from this size on are written past the caches.
constexpr int64_t streamingBytes = int64_t{48} << 20;

} // namespace zelm
