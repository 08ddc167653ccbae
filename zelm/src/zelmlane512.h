// The room of 64-byte vectors: builds for processors with AVX-512. Comparisons give mask registers, a bit a lane.
#pragma once

#include "zelmlane256.h"

#if ZELM_WIDEST == 64

namespace zelm {

// Rows of one object keep to 32 bytes: sides 3 to 6 fill no wider vector.
constexpr int runBytes = 64;
constexpr int rowBytes = 32;
constexpr int blockBytes = 64;

template <class Bits> struct LaneBits { Bits bits; };
using Mask16x32 = LaneBits<__mmask16>;
using Mask8x64 = LaneBits<__mmask8>;
template <> struct LaneMask<LanesOf<float, 16>> { using type = Mask16x32; };
template <> struct LaneMask<LanesOf<int32_t, 16>> { using type = Mask16x32; };
template <> struct LaneMask<LanesOf<double, 8>> { using type = Mask8x64; };
template <> struct LaneMask<LanesOf<int64_t, 8>> { using type = Mask8x64; };
template <> struct LaneInteger<LanesOf<float, 16>> { using type = LanesOf<int32_t, 16>; };
template <> struct LaneInteger<LanesOf<double, 8>> { using type = LanesOf<int64_t, 8>; };

#  define ZELM_COMPARE(NAME, HOW, HOW_INTEGER)                                                                         \
    ZELM_INLINE Mask16x32 NAME(const LanesOf<float, 16>& a, const LanesOf<float, 16>& b) {                             \
      return {_mm512_cmp_ps_mask(a, b, HOW)};                                                                          \
    }                                                                                                                  \
    ZELM_INLINE Mask8x64 NAME(const LanesOf<double, 8>& a, const LanesOf<double, 8>& b) {                              \
      return {_mm512_cmp_pd_mask(a, b, HOW)};                                                                          \
    }                                                                                                                  \
    ZELM_INLINE Mask16x32 NAME(const LanesOf<int32_t, 16>& a, const LanesOf<int32_t, 16>& b) {                         \
      return {_mm512_cmp_epi32_mask(reinterpret_cast<__m512i>(a), reinterpret_cast<__m512i>(b), HOW_INTEGER)};         \
    }                                                                                                                  \
    ZELM_INLINE Mask8x64 NAME(const LanesOf<int64_t, 8>& a, const LanesOf<int64_t, 8>& b) {                            \
      return {_mm512_cmp_epi64_mask(reinterpret_cast<__m512i>(a), reinterpret_cast<__m512i>(b), HOW_INTEGER)};         \
    }
ZELM_COMPARE(lessLanes, _CMP_LT_OQ, _MM_CMPINT_LT)
ZELM_COMPARE(lessEqualLanes, _CMP_LE_OQ, _MM_CMPINT_LE)
ZELM_COMPARE(equalLanes, _CMP_EQ_OQ, _MM_CMPINT_EQ)
ZELM_COMPARE(unequalLanes, _CMP_NEQ_UQ, _MM_CMPINT_NE)
#  undef ZELM_COMPARE

template <class Bits> ZELM_INLINE LaneBits<Bits> bothLanes(const LaneBits<Bits>& a, const LaneBits<Bits>& b) {
  return {static_cast<Bits>(a.bits & b.bits)};
}
template <class Bits> ZELM_INLINE LaneBits<Bits> eitherLanes(const LaneBits<Bits>& a, const LaneBits<Bits>& b) {
  return {static_cast<Bits>(a.bits | b.bits)};
}
template <class Bits> ZELM_INLINE LaneBits<Bits> negatedLanes(const LaneBits<Bits>& a) {
  return {static_cast<Bits>(~a.bits)};
}
template <class Bits> ZELM_INLINE LaneBits<Bits> withoutLanes(const LaneBits<Bits>& a, const LaneBits<Bits>& b) {
  return {static_cast<Bits>(a.bits & ~b.bits)};
}
template <class Bits> ZELM_INLINE unsigned laneBits(const LaneBits<Bits>& mask) {
  return mask.bits;
}
ZELM_INLINE LanesOf<float, 16> selectLanes(Mask16x32 mask, LanesOf<float, 16> yes, LanesOf<float, 16> no) {
  return _mm512_mask_blend_ps(mask.bits, no, yes);
}
ZELM_INLINE LanesOf<double, 8> selectLanes(Mask8x64 mask, LanesOf<double, 8> yes, LanesOf<double, 8> no) {
  return _mm512_mask_blend_pd(mask.bits, no, yes);
}

// With all lanes asked for: g++ 12 warns of the unmasked forms' own undefined operands.
ZELM_INLINE LanesOf<float, 16> largerLanes(LanesOf<float, 16> a, LanesOf<float, 16> b) {
  return _mm512_maskz_max_ps(0xffff, a, b);
}
ZELM_INLINE LanesOf<double, 8> largerLanes(LanesOf<double, 8> a, LanesOf<double, 8> b) {
  return _mm512_maskz_max_pd(0xff, a, b);
}
ZELM_INLINE LanesOf<float, 16> squareRootLanes(LanesOf<float, 16> x) {
  return _mm512_maskz_sqrt_ps(0xffff, x);
}
ZELM_INLINE LanesOf<double, 8> squareRootLanes(LanesOf<double, 8> x) {
  return _mm512_maskz_sqrt_pd(0xff, x);
}

ZELM_INLINE LanesOf<float, 8> lowOf(LanesOf<float, 16> x) {
  return __builtin_shufflevector(x, x, 0, 1, 2, 3, 4, 5, 6, 7);
}
ZELM_INLINE LanesOf<float, 8> highOf(LanesOf<float, 16> x) {
  return __builtin_shufflevector(x, x, 8, 9, 10, 11, 12, 13, 14, 15);
}
ZELM_INLINE LanesOf<float, 16> joined(LanesOf<float, 8> low, LanesOf<float, 8> high) {
  return __builtin_shufflevector(low, high, 0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
}
// By halves: the estimate of 64-byte vectors has more bits, and so other results.
ZELM_INLINE LanesOf<float, 16> estimateOfReciprocal(LanesOf<float, 16> x) {
  return joined(_mm256_rcp_ps(lowOf(x)), _mm256_rcp_ps(highOf(x)));
}
ZELM_INLINE LanesOf<double, 8> widenedLow(LanesOf<float, 16> x) {
  return _mm512_maskz_cvtps_pd(0xff, lowOf(x));
}
ZELM_INLINE LanesOf<double, 8> widenedHigh(LanesOf<float, 16> x) {
  return _mm512_maskz_cvtps_pd(0xff, highOf(x));
}
ZELM_INLINE LanesOf<float, 16> narrowedPair(LanesOf<double, 8> low, LanesOf<double, 8> high) {
  return joined(_mm512_maskz_cvtpd_ps(0xff, low), _mm512_maskz_cvtpd_ps(0xff, high));
}

ZELM_INLINE void streamLanes(char* address, const LanesOf<float, 16>& v) {
  _mm512_stream_ps(reinterpret_cast<float*>(address), v);
}
ZELM_INLINE void streamLanes(char* address, const LanesOf<double, 8>& v) {
  _mm512_stream_pd(reinterpret_cast<double*>(address), v);
}

} // namespace zelm
#endif
