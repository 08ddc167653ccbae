// Products of packed matrices by plain loops of fixed size.
#include "alternative.h"

#include <iterator>

namespace {

template <class T, int N> void multiply(const T* __restrict a, const T* __restrict b, T* __restrict d) {
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) {
      T sum = a[i * N] * b[j];
      for (int k = 1; k < N; ++k)
        sum += a[i * N + k] * b[k * N + j];
      d[i * N + j] = sum;
    }
}

template <class T, int N> void multiplyTransposed(const T* __restrict a, const T* __restrict b, T* __restrict d) {
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j) {
      T sum = a[i] * b[j];
      for (int k = 1; k < N; ++k)
        sum += a[k * N + i] * b[k * N + j];
      d[i * N + j] = sum;
    }
}

// A copy that nothing else points to.
template <class T, int N> struct Local {
  T element[N * N];
  explicit Local(const T* x) {
    for (int e = 0; e < N * N; ++e)
      element[e] = x[e];
  }
};

template <class T, int N> void mama(const bench::Block& b) {
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    multiply<T, N>(bench::source<T>(b, 0) + k * N * N, bench::source<T>(b, 1) + k * N * N,
                   bench::result<T>(b, 2) + k * N * N);
}

template <class T, int N> void mam(const bench::Block& b) {
  const Local<T, N> right(bench::source<T>(b, 1));
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    multiply<T, N>(bench::source<T>(b, 0) + k * N * N, right.element, bench::result<T>(b, 2) + k * N * N);
}

template <class T, int N> void mma(const bench::Block& b) {
  const Local<T, N> left(bench::source<T>(b, 0));
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    multiply<T, N>(left.element, bench::source<T>(b, 1) + k * N * N, bench::result<T>(b, 2) + k * N * N);
}

template <class T, int N> void tam(const bench::Block& b) {
  const Local<T, N> right(bench::source<T>(b, 1));
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    multiplyTransposed<T, N>(bench::source<T>(b, 0) + k * N * N, right.element, bench::result<T>(b, 2) + k * N * N);
}

using bench::repeat;
using bench::Role;

// clang-format off
#define ROW(form, type, pass, T, n) {"Mul/" form "/" type "/" #n, "loop", Role::alternative, repeat<pass<T, n>>}
#define SIZES(form, type, pass, T) \
  ROW(form, type, pass, T, 3), ROW(form, type, pass, T, 4), ROW(form, type, pass, T, 5), ROW(form, type, pass, T, 6)

const bench::Row rows[] = {
    SIZES("mama", "32f", mama, float),
    SIZES("mama", "64f", mama, double),
    SIZES("mam",  "32f", mam,  float),
    SIZES("mam",  "64f", mam,  double),
    SIZES("mma",  "32f", mma,  float),
    SIZES("mma",  "64f", mma,  double),
    SIZES("tam",  "32f", tam,  float),
    SIZES("tam",  "64f", tam,  double),
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
