// Rows of kernels.
#pragma once

#include "zelmsignature.h"

extern "C" int32_t ownGetNumThreads();
extern "C" void zelGetMaxCacheSizeB(int32_t* bytes);

namespace zelm {

// The sizes for which a kernel has straight-line code.
template <int... N> struct Sizes {};

// Calls fixed(std::integral_constant<int, N>) for the N of the list that size equals, otherwise general().
template <class Fixed, class General>
ZELM_INLINE ZelStatus forSize(Sizes<>, int32_t, const Fixed&, const General& general) {
  return general();
}
template <int First, int... Rest, class Fixed, class General>
ZELM_INLINE ZelStatus forSize(Sizes<First, Rest...>, int32_t size, const Fixed& fixed, const General& general) {
  return size == First ? fixed(std::integral_constant<int, First>{}) : forSize(Sizes<Rest...>{}, size, fixed, general);
}

// Whether a matrix is a square with straight-line code.
template <int... N> ZELM_INLINE bool isStraight(Sizes<N...>, int32_t width, int32_t height) {
  return width == height && ((width == N) || ...);
}

// Calls body on copies of the arguments, which stores to the result cannot change: their fields stay in registers.
template <class Body, class... A> ZELM_INLINE ZelStatus onCopies(const Body& body, A... a) {
  return body(a...);
}

} // namespace zelm

#define ZELM_DECLARE(NAMED, SIG, Y, V, T) extern "C" ZelStatus NAMED(SIG(V, Y, T))

// Operands go by reference: passed by value they would be stored field by field and read back in wider pieces, which
// stalls a call on one small object.
//
// A kernel is its arguments handed to a body, an ordinary function: BODY(operands..., sizes..., count). V is UNIT or
// ANY, Y the layout. The body stands last, so that its template arguments may be a list: the straight-line sizes, a
// sum.
#define KERNEL(KERNEL_NAME, SIG, Y, V, T, ...)                                                                         \
  extern "C" ZelStatus KERNEL_NAME(SIG(V, Y, T)) {                                                                     \
    using namespace zelm;                                                                                              \
    return onCopies(                                                                                                   \
        [](const auto&... a) __attribute__((always_inline)) { return __VA_ARGS__(a...); }, SIG(NAME, Y, T));           \
  }

// A kernel of the standard or list layout that calls the kernel of the single object for each object, up to the first
// failure.
#define KERNEL_PER_OBJECT(KERNEL_NAME, SIG, Y, V, T, SINGLE_SIG, SINGLE_KERNEL)                                        \
  ZELM_DECLARE(SINGLE_KERNEL, SINGLE_SIG, S, V, T);                                                                    \
  extern "C" ZelStatus KERNEL_NAME(SIG(V, Y, T)) {                                                                     \
    for (int32_t k = 0; k < count; ++k)                                                                                \
      if (const ZelStatus status = SINGLE_KERNEL(SINGLE_SIG(OBJECT, S, T)); status != zelStatusOk)                     \
        return status;                                                                                                 \
    return zelStatusOk;                                                                                                \
  }
