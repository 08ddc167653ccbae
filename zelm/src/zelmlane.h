// Lanes: vectors of elements as wide as the build allows.
//
// Nothing is ever read or written beyond the elements that are asked for, and no address needs to be aligned.
#pragma once

#include "zelmoperand.h"

#ifdef __AVX2__
#  include <immintrin.h>
#else
#  include <emmintrin.h> // a tenth of the other one's text
#endif

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

template <bool Stream, class V> ZELM_INLINE void putLanes(char* address, const V& v) {
  if constexpr (Stream)
    streamLanes(address, v);
  else
    storeLanes(address, v);
}

// Elements until an address is a multiple of the vector's size; -1 if it never is.
template <class T> ZELM_INLINE int64_t elementsToAlignment(const char* address) {
  const auto beyond = reinterpret_cast<std::uintptr_t>(address) % vectorBytes;
  if (beyond % sizeof(T) != 0)
    return -1;
  return beyond == 0 ? 0 : static_cast<int64_t>((vectorBytes - beyond) / sizeof(T));
}

// Results from this size on are worth writing past the caches, unless they take the place of a source.
constexpr int64_t streamingBytes = int64_t{48} << 20;

// Whether n elements at dst, made of `sources`, are written past the caches.
template <class T, class... Sources>
ZELM_INLINE bool isStreamed(const char* dst, int64_t n, const Sources*... sources) {
  return n * static_cast<int64_t>(sizeof(T)) >= streamingBytes && elementsToAlignment<T>(dst) >= 0 &&
         ((dst != sources) && ...);
}

} // namespace zelm
