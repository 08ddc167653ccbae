// Extents and indices that the compiler knows or does not: the same loops, unrolled completely or run.
#pragma once

#include "zelmoperand.h"

#include <utility>

// For the bodies of such loops, which are lambdas: always inlined.
#define ZELM_BODY __attribute__((always_inline))

namespace zelm {

template <int N> using Fixed = std::integral_constant<int, N>;

template <class> constexpr bool isFixed = false;
template <int N> constexpr bool isFixed<Fixed<N>> = true;

template <int N> constexpr Fixed<N + 1> next(Fixed<N>) {
  return {};
}
constexpr int next(int n) {
  return n + 1;
}
template <int N> constexpr Fixed<N - 1> previous(Fixed<N>) {
  return {};
}
constexpr int previous(int n) {
  return n - 1;
}

template <class Width, class Height> ZELM_INLINE constexpr auto product(Width width, Height height) {
  if constexpr (isFixed<Width> && isFixed<Height>)
    return Fixed<width * height>{};
  else
    return width * height;
}

template <int First, class F, int... I>
ZELM_INLINE void ascendingFixed(const F& body, std::integer_sequence<int, I...>) {
  (body(Fixed<First + I>{}), ...);
}
template <int Last, class F, int... I>
ZELM_INLINE void descendingFixed(const F& body, std::integer_sequence<int, I...>) {
  (body(Fixed<Last - I>{}), ...);
}
template <int First, class F, int... I>
ZELM_INLINE bool whileAscendingFixed(const F& body, std::integer_sequence<int, I...>) {
  return (body(Fixed<First + I>{}) && ...);
}

// body(i) for i = from, from + 1, ..., to - 1.
template <class From, class To, class F> ZELM_INLINE void ascending(From from, To to, const F& body) {
  if constexpr (isFixed<From> && isFixed<To>)
    ascendingFixed<from>(body, std::make_integer_sequence<int, (to > from ? to - from : 0)>{});
  else
    for (int i = from; i < to; ++i)
      body(i);
}

// body(i) for i = to - 1, to - 2, ..., from.
template <class From, class To, class F> ZELM_INLINE void descending(From from, To to, const F& body) {
  if constexpr (isFixed<From> && isFixed<To>)
    descendingFixed<to - 1>(body, std::make_integer_sequence<int, (to > from ? to - from : 0)>{});
  else
    for (int i = to - 1; i >= from; --i)
      body(i);
}

// Like ascending, up to the first i for which body(i) is false. True if there is none.
template <class From, class To, class F> ZELM_INLINE bool whileAscending(From from, To to, const F& body) {
  if constexpr (isFixed<From> && isFixed<To>) {
    return whileAscendingFixed<from>(body, std::make_integer_sequence<int, (to > from ? to - from : 0)>{});
  } else {
    for (int i = from; i < to; ++i)
      if (!body(i))
        return false;
    return true;
  }
}

} // namespace zelm
