// Vector algebra by plain loops of fixed length.
#include "alternative.h"

#include <cmath>
#include <cstddef>
#include <iterator>

#define WHO "loop"

namespace {

template <class T, int N> inline T dot(const T* a, const T* b) {
  T sum = a[0] * b[0];
  for (int j = 1; j < N; ++j)
    sum += a[j] * b[j];
  return sum;
}
template <class T, int N> void dotBoth(const bench::Block& b) {
  const T* __restrict x = bench::source<T>(b, 0);
  const T* __restrict y = bench::source<T>(b, 1);
  T* __restrict d = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    d[k] = dot<T, N>(x + k * N, y + k * N);
}
template <class T, int N> void dotSingle(const bench::Block& b) {
  const T* __restrict x = bench::source<T>(b, 0);
  const T* __restrict y = bench::source<T>(b, 1);
  T* __restrict d = bench::result<T>(b, 2);
  T held[N];
  for (int j = 0; j < N; ++j)
    held[j] = y[j];
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    d[k] = dot<T, N>(x + k * N, held);
}
template <class T, int N> void norm(const bench::Block& b) {
  const T* __restrict x = bench::source<T>(b, 0);
  T* __restrict d = bench::result<T>(b, 1);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    d[k] = std::sqrt(dot<T, N>(x + k * N, x + k * N));
}
template <class T, int N> void scaledSum(const bench::Block& b) {
  const T* __restrict x = bench::source<T>(b, 0);
  const T* __restrict y = bench::source<T>(b, 1);
  T* __restrict d = bench::result<T>(b, 2);
  for (std::ptrdiff_t e = 0; e < static_cast<std::ptrdiff_t>(b.count) * N; ++e)
    d[e] = x[e] * T(1.25) + y[e];
}

// An object at a time, its elements by a loop of known length.
template <class T, int N, class Operation> void elements(const bench::Block& b, bool single, Operation operation) {
  const T* __restrict x = bench::source<T>(b, 0);
  const T* __restrict y = bench::source<T>(b, 1);
  T* __restrict d = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    for (std::ptrdiff_t j = 0; j < N; ++j)
      d[k * N + j] = operation(x[k * N + j], y[single ? j : k * N + j]);
}
template <class T, int N> void combination(const bench::Block& b) {
  elements<T, N>(b, false, [](T x, T y) { return x * T(1.25) + y * T(0.75); });
}
template <class T, int N> void sum(const bench::Block& b) {
  elements<T, N>(b, false, [](T x, T y) { return x + y; });
}
template <class T, int N> void difference(const bench::Block& b) {
  elements<T, N>(b, true, [](T x, T y) { return x - y; });
}

template <class T> inline void cross(const T* __restrict a, const T* __restrict b, T* __restrict d) {
  d[0] = a[1] * b[2] - a[2] * b[1];
  d[1] = a[2] * b[0] - a[0] * b[2];
  d[2] = a[0] * b[1] - a[1] * b[0];
}
template <class T> void crossBoth(const bench::Block& b) {
  const T* __restrict x = bench::source<T>(b, 0);
  const T* __restrict y = bench::source<T>(b, 1);
  T* __restrict d = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    cross(x + k * 3, y + k * 3, d + k * 3);
}
template <class T> void crossSingle(const bench::Block& b) {
  const T* __restrict x = bench::source<T>(b, 0);
  const T held[3] = {bench::source<T>(b, 1)[0], bench::source<T>(b, 1)[1], bench::source<T>(b, 1)[2]};
  T* __restrict d = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    cross(x + k * 3, held, d + k * 3);
}

#include "alternatives/vector_rows.h"
