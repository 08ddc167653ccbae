// The room of 16-byte vectors, which every build has.
//
// The rooms of the widths (this one, zelmlane256.h, zelmlane512.h) are the only files that include an intrinsics header
// or ask which instructions a build has. Each stands on the narrower ones and offers the same names for its vectors:
// masks as bits, selection, the larger of two, roots, estimates, conversions, exchanges, partial loads and stores, and
// stores past the caches. The widest room of a build says how wide its vectors are, in three constants that need not be
// the same: along a run of elements, along a row of one object, and across a block of objects.
#pragma once

#include "zelmoperand.h"

#ifdef ZELM_NO_LANES
#  error "this file is compiled once for all widths, and must not depend on one"
#endif

#include <emmintrin.h> // a tenth of the text of the header of all instructions
#ifdef __SSE4_1__
#  include <smmintrin.h>
#endif

// The width of the widest vectors, in bytes.
#if defined(__AVX512F__) && defined(__AVX512VL__) && defined(__AVX512DQ__) && defined(__AVX512BW__)
#  define ZELM_WIDEST 64
#elif defined(__AVX2__)
#  define ZELM_WIDEST 32
#else
#  define ZELM_WIDEST 16
#endif

namespace zelm {

// A vector of W elements of type T; W is a power of two.
template <class T, int W> struct VectorOf { typedef T type __attribute__((vector_size(W * sizeof(T)))); };

template <class T, int W> using LanesOf = typename VectorOf<T, W>::type;

// For what has to be compiled for one width of rows alone.
#define ZELM_ROW_BYTES (ZELM_WIDEST == 16 ? 16 : 32)

#if ZELM_WIDEST == 16
constexpr int runBytes = 16;
constexpr int rowBytes = 16;
constexpr int blockBytes = 16;
#endif

// What a comparison of lanes gives: for vectors of 16 and 32 bytes, integers that are all ones or zero.
template <class L> struct LaneMask { using type = decltype(L{} < L{}); };
template <> struct LaneMask<float> { using type = bool; };
template <> struct LaneMask<double> { using type = bool; };
template <> struct LaneMask<int32_t> { using type = bool; };
// Integers of the lanes' size.
template <class L> struct LaneInteger { using type = decltype(L{} < L{}); };
template <> struct LaneInteger<float> { using type = int32_t; };
template <> struct LaneInteger<double> { using type = int32_t; };

using Mask4x32 = LaneMask<LanesOf<float, 4>>::type;
using Mask2x64 = LaneMask<LanesOf<double, 2>>::type;

// ---------------------------------------------------------------------------------------------------------------------
// Comparisons

template <class V> ZELM_INLINE auto lessLanes(const V& a, const V& b) {
  return a < b;
}
template <class V> ZELM_INLINE auto lessEqualLanes(const V& a, const V& b) {
  return a <= b;
}
template <class V> ZELM_INLINE auto equalLanes(const V& a, const V& b) {
  return a == b;
}
template <class V> ZELM_INLINE auto unequalLanes(const V& a, const V& b) {
  return a != b;
}

// ---------------------------------------------------------------------------------------------------------------------
// Masks. Bit w is lane w.

template <class M> ZELM_INLINE M bothLanes(const M& a, const M& b) {
  return a & b;
}
template <class M> ZELM_INLINE M eitherLanes(const M& a, const M& b) {
  return a | b;
}
template <class M> ZELM_INLINE M negatedLanes(const M& a) {
  return ~a;
}
// The lanes of a that are not lanes of b. g++ would take a & ~b of comparisons apart into single lanes.
ZELM_INLINE Mask4x32 withoutLanes(Mask4x32 a, Mask4x32 b) {
  return reinterpret_cast<Mask4x32>(_mm_andnot_si128(reinterpret_cast<__m128i>(b), reinterpret_cast<__m128i>(a)));
}
ZELM_INLINE Mask2x64 withoutLanes(Mask2x64 a, Mask2x64 b) {
  return reinterpret_cast<Mask2x64>(_mm_andnot_si128(reinterpret_cast<__m128i>(b), reinterpret_cast<__m128i>(a)));
}
ZELM_INLINE unsigned laneBits(Mask4x32 mask) {
  return static_cast<unsigned>(_mm_movemask_ps(reinterpret_cast<__m128>(mask)));
}
ZELM_INLINE unsigned laneBits(Mask2x64 mask) {
  return static_cast<unsigned>(_mm_movemask_pd(reinterpret_cast<__m128d>(mask)));
}

// Whether a selection is one operation; else it is three.
#ifdef __SSE4_1__
constexpr bool hasBlends = true;
ZELM_INLINE LanesOf<float, 4> selectLanes(Mask4x32 mask, LanesOf<float, 4> yes, LanesOf<float, 4> no) {
  return _mm_blendv_ps(no, yes, reinterpret_cast<__m128>(mask));
}
ZELM_INLINE LanesOf<double, 2> selectLanes(Mask2x64 mask, LanesOf<double, 2> yes, LanesOf<double, 2> no) {
  return _mm_blendv_pd(no, yes, reinterpret_cast<__m128d>(mask));
}
#else
constexpr bool hasBlends = false;
ZELM_INLINE LanesOf<float, 4> selectLanes(Mask4x32 mask, LanesOf<float, 4> yes, LanesOf<float, 4> no) {
  return mask ? yes : no;
}
ZELM_INLINE LanesOf<double, 2> selectLanes(Mask2x64 mask, LanesOf<double, 2> yes, LanesOf<double, 2> no) {
  return mask ? yes : no;
}
#endif

// ---------------------------------------------------------------------------------------------------------------------
// Arithmetic that operators do not have

// a > b ? a : b
ZELM_INLINE LanesOf<float, 4> largerLanes(LanesOf<float, 4> a, LanesOf<float, 4> b) {
  return _mm_max_ps(a, b);
}
ZELM_INLINE LanesOf<double, 2> largerLanes(LanesOf<double, 2> a, LanesOf<double, 2> b) {
  return _mm_max_pd(a, b);
}
ZELM_INLINE LanesOf<float, 4> squareRootLanes(LanesOf<float, 4> x) {
  return _mm_sqrt_ps(x);
}
ZELM_INLINE LanesOf<double, 2> squareRootLanes(LanesOf<double, 2> x) {
  return _mm_sqrt_pd(x);
}

// The processor's single-precision estimate of 1 / x, the one that all processors have: newer ones of more bits give
// other results.
ZELM_INLINE float estimateOfReciprocal(float x) {
  return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
}
ZELM_INLINE LanesOf<float, 4> estimateOfReciprocal(LanesOf<float, 4> x) {
  return _mm_rcp_ps(x);
}

// The halves of a vector of singles as doubles, and back.
ZELM_INLINE LanesOf<double, 2> widenedLow(LanesOf<float, 4> x) {
  return _mm_cvtps_pd(x);
}
ZELM_INLINE LanesOf<double, 2> widenedHigh(LanesOf<float, 4> x) {
  return _mm_cvtps_pd(_mm_movehl_ps(x, x));
}
ZELM_INLINE LanesOf<float, 4> narrowedPair(LanesOf<double, 2> low, LanesOf<double, 2> high) {
  return _mm_movelh_ps(_mm_cvtpd_ps(low), _mm_cvtpd_ps(high));
}

// The compiler keeps the value in a register here: it neither reads it from memory again nor forms it later.
#if ZELM_WIDEST == 64
#  define ZELM_VECTOR_REGISTER "+v" // one of 32
#else
#  define ZELM_VECTOR_REGISTER "+x"
#endif
template <class V> ZELM_INLINE void holdInRegister(V& v) {
  asm volatile("" : ZELM_VECTOR_REGISTER(v));
}
// The compiler does not see where the value comes from.
template <class V> ZELM_INLINE void hideOrigin(V& v) {
  asm("" : ZELM_VECTOR_REGISTER(v));
}
#undef ZELM_VECTOR_REGISTER

// The same lane in all. Shuffles of integers need no copy of their operand.
template <class V> ZELM_INLINE V spreadLane(const V& v, int lane) {
  static_assert(sizeof v == 16);
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

// ---------------------------------------------------------------------------------------------------------------------
// Parts of a vector in memory

// Three elements of one object.
ZELM_INLINE LanesOf<float, 4> loadTriple(const char* address) {
  const auto two = _mm_set_sd(loadElement<double>(address));
  const auto third = _mm_set_ss(loadElement<float>(address + 8));
  return _mm_movelh_ps(_mm_castpd_ps(two), third);
}
ZELM_INLINE void storeTriple(char* address, LanesOf<float, 4> v) {
  storeElement(address, _mm_cvtsd_f64(_mm_castps_pd(v)));
  storeElement(address + 8, _mm_cvtss_f32(_mm_movehl_ps(v, v)));
}

#if ZELM_WIDEST == 16
// The first n elements, the other lanes anything. Three of four are the only case of 16-byte vectors.
ZELM_INLINE LanesOf<float, 4> loadFirst(const char* x, LanesOf<float, 4>, int) {
  return loadTriple(x);
}
#endif

// Two elements in the lower half, as the bits of one double.
ZELM_INLINE double lowBits(LanesOf<float, 4> v) {
  return _mm_cvtsd_f64(_mm_castps_pd(v));
}
ZELM_INLINE LanesOf<float, 4> loadTwo(const char* address) {
  return _mm_castpd_ps(_mm_set_sd(loadElement<double>(address)));
}

// ---------------------------------------------------------------------------------------------------------------------
// Past the caches: the address must be a multiple of the vector's size

ZELM_INLINE void streamLanes(char* address, const LanesOf<float, 4>& v) {
  _mm_stream_ps(reinterpret_cast<float*>(address), v);
}
ZELM_INLINE void streamLanes(char* address, const LanesOf<double, 2>& v) {
  _mm_stream_pd(reinterpret_cast<double*>(address), v);
}
// One element of four bytes; its address must be a multiple of four.
ZELM_INLINE void streamElement(char* address, int32_t bits) {
  _mm_stream_si32(reinterpret_cast<int*>(address), bits);
}
// What was streamed is visible to other threads behind this.
ZELM_INLINE void endStreams() {
  _mm_sfence();
}

} // namespace zelm
