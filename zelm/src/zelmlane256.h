// The room of 32-byte vectors: builds for processors with AVX2.
#pragma once

#include "zelmlane128.h"

#if ZELM_WIDEST >= 32
#  include <immintrin.h>

namespace zelm {

#  if ZELM_WIDEST == 32
constexpr int runBytes = 32;
constexpr int rowBytes = 32;
constexpr int blockBytes = 32;
#  endif

using Mask8x32 = LaneMask<LanesOf<float, 8>>::type;
using Mask4x64 = LaneMask<LanesOf<double, 4>>::type;

ZELM_INLINE Mask8x32 withoutLanes(Mask8x32 a, Mask8x32 b) {
  return reinterpret_cast<Mask8x32>(_mm256_andnot_si256(reinterpret_cast<__m256i>(b), reinterpret_cast<__m256i>(a)));
}
ZELM_INLINE Mask4x64 withoutLanes(Mask4x64 a, Mask4x64 b) {
  return reinterpret_cast<Mask4x64>(_mm256_andnot_si256(reinterpret_cast<__m256i>(b), reinterpret_cast<__m256i>(a)));
}
ZELM_INLINE unsigned laneBits(Mask8x32 mask) {
  return static_cast<unsigned>(_mm256_movemask_ps(reinterpret_cast<__m256>(mask)));
}
ZELM_INLINE unsigned laneBits(Mask4x64 mask) {
  return static_cast<unsigned>(_mm256_movemask_pd(reinterpret_cast<__m256d>(mask)));
}
ZELM_INLINE LanesOf<float, 8> selectLanes(Mask8x32 mask, LanesOf<float, 8> yes, LanesOf<float, 8> no) {
  return _mm256_blendv_ps(no, yes, reinterpret_cast<__m256>(mask));
}
ZELM_INLINE LanesOf<double, 4> selectLanes(Mask4x64 mask, LanesOf<double, 4> yes, LanesOf<double, 4> no) {
  return _mm256_blendv_pd(no, yes, reinterpret_cast<__m256d>(mask));
}

ZELM_INLINE LanesOf<float, 8> largerLanes(LanesOf<float, 8> a, LanesOf<float, 8> b) {
  return _mm256_max_ps(a, b);
}
ZELM_INLINE LanesOf<double, 4> largerLanes(LanesOf<double, 4> a, LanesOf<double, 4> b) {
  return _mm256_max_pd(a, b);
}
ZELM_INLINE LanesOf<float, 8> squareRootLanes(LanesOf<float, 8> x) {
  return _mm256_sqrt_ps(x);
}
ZELM_INLINE LanesOf<double, 4> squareRootLanes(LanesOf<double, 4> x) {
  return _mm256_sqrt_pd(x);
}
ZELM_INLINE LanesOf<float, 8> estimateOfReciprocal(LanesOf<float, 8> x) {
  return _mm256_rcp_ps(x);
}
ZELM_INLINE LanesOf<double, 4> widenedLow(LanesOf<float, 8> x) {
  return _mm256_cvtps_pd(_mm256_castps256_ps128(x));
}
ZELM_INLINE LanesOf<double, 4> widenedHigh(LanesOf<float, 8> x) {
  return _mm256_cvtps_pd(_mm256_extractf128_ps(x, 1));
}
ZELM_INLINE LanesOf<float, 8> narrowedPair(LanesOf<double, 4> low, LanesOf<double, 4> high) {
  return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(low)), _mm256_cvtpd_ps(high), 1);
}

// The first n elements, the other lanes zero.
ZELM_INLINE LanesOf<float, 4> loadFirst(const char* x, LanesOf<float, 4>, int n) {
  return _mm_maskload_ps(reinterpret_cast<const float*>(x),
                         _mm_cmpgt_epi32(_mm_set1_epi32(n), _mm_setr_epi32(0, 1, 2, 3)));
}
ZELM_INLINE LanesOf<float, 8> loadFirst(const char* x, LanesOf<float, 8>, int n) {
  return _mm256_maskload_ps(reinterpret_cast<const float*>(x),
                            _mm256_cmpgt_epi32(_mm256_set1_epi32(n), _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7)));
}
ZELM_INLINE LanesOf<double, 4> loadFirst(const char* x, LanesOf<double, 4>, int n) {
  return _mm256_maskload_pd(reinterpret_cast<const double*>(x),
                            _mm256_cmpgt_epi64(_mm256_set1_epi64x(n), _mm256_setr_epi64x(0, 1, 2, 3)));
}

// Sixteen bytes in both halves, by the load itself: from two loads g++ makes a shuffle.
ZELM_INLINE LanesOf<float, 8> loadTwice(const char* x, LanesOf<float, 8>) {
  return _mm256_broadcast_ps(reinterpret_cast<const __m128*>(x));
}
ZELM_INLINE LanesOf<double, 4> loadTwice(const char* x, LanesOf<double, 4>) {
  return _mm256_broadcast_pd(reinterpret_cast<const __m128d*>(x));
}
// Loads that fill two lanes with an element: the even ones of eight, the odd ones, and of each four the first two as a
// pair, or the last two.
ZELM_INLINE LanesOf<float, 8> loadEvenTwice(const char* x) {
  return _mm256_moveldup_ps(_mm256_loadu_ps(reinterpret_cast<const float*>(x)));
}
ZELM_INLINE LanesOf<float, 8> loadOddTwice(const char* x) {
  return _mm256_movehdup_ps(_mm256_loadu_ps(reinterpret_cast<const float*>(x)));
}
ZELM_INLINE LanesOf<float, 8> loadLowPairTwice(const char* x) {
  return _mm256_castpd_ps(_mm256_movedup_pd(_mm256_loadu_pd(reinterpret_cast<const double*>(x))));
}
ZELM_INLINE LanesOf<float, 8> loadHighPairTwice(const char* x) {
  return _mm256_castpd_ps(_mm256_permute_pd(_mm256_loadu_pd(reinterpret_cast<const double*>(x)), 0xf));
}

ZELM_INLINE void streamLanes(char* address, const LanesOf<float, 8>& v) {
  _mm256_stream_ps(reinterpret_cast<float*>(address), v);
}
ZELM_INLINE void streamLanes(char* address, const LanesOf<double, 4>& v) {
  _mm256_stream_pd(reinterpret_cast<double*>(address), v);
}

} // namespace zelm
#endif
