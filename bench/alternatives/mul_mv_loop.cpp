// Products of packed matrices and vectors by plain loops of fixed size, with and without a vector added, scaling, and
// the transform of points.
#include "alternative.h"

#include <iterator>

namespace {

template <class T, int N> inline void product(const T* __restrict m, const T* __restrict x, T* __restrict y) {
  for (int i = 0; i < N; ++i) {
    T sum = m[i * N] * x[0];
    for (int k = 1; k < N; ++k)
      sum += m[i * N + k] * x[k];
    y[i] = sum;
  }
}

template <class T, int N> inline void productTransposed(const T* __restrict m, const T* __restrict x, T* __restrict y) {
  for (int i = 0; i < N; ++i) {
    T sum = m[i] * x[0];
    for (int k = 1; k < N; ++k)
      sum += m[k * N + i] * x[k];
    y[i] = sum;
  }
}

// The single operand is copied: nothing that is stored can change it.
template <class T, int E> struct Held {
  T element[E];
  explicit Held(const T* source) {
    for (int e = 0; e < E; ++e)
      element[e] = source[e];
  }
};

template <class T, int N> void mava(const bench::Block& b) {
  const T* __restrict m = bench::source<T>(b, 0);
  const T* __restrict x = bench::source<T>(b, 1);
  T* __restrict y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    product<T, N>(m + k * N * N, x + k * N, y + k * N);
}

template <class T, int N> void mav(const bench::Block& b) {
  const T* __restrict m = bench::source<T>(b, 0);
  const Held<T, N> x(bench::source<T>(b, 1));
  T* __restrict y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    product<T, N>(m + k * N * N, x.element, y + k * N);
}

template <class T, int N> void mva(const bench::Block& b) {
  const Held<T, N * N> m(bench::source<T>(b, 0));
  const T* __restrict x = bench::source<T>(b, 1);
  T* __restrict y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    product<T, N>(m.element, x + k * N, y + k * N);
}

template <class T, int N> void tva(const bench::Block& b) {
  const Held<T, N * N> m(bench::source<T>(b, 0));
  const T* __restrict x = bench::source<T>(b, 1);
  T* __restrict y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    productTransposed<T, N>(m.element, x + k * N, y + k * N);
}

template <class T, int N> void gaxpy(const bench::Block& b) {
  const Held<T, N * N> m(bench::source<T>(b, 0));
  const T* __restrict x = bench::source<T>(b, 1);
  const T* __restrict z = bench::source<T>(b, 2);
  T* __restrict y = bench::result<T>(b, 3);
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    T sum[N];
    product<T, N>(m.element, x + k * N, sum);
    for (int i = 0; i < N; ++i)
      y[k * N + i] = sum[i] + z[k * N + i];
  }
}

template <class T, int Elements> void scale(const bench::Block& b) {
  const T* __restrict x = bench::source<T>(b, 0);
  const T factor = *bench::source<T>(b, 1);
  T* __restrict y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    for (int e = 0; e < Elements; ++e)
      y[k * Elements + e] = x[k * Elements + e] * factor;
}
template <class T, int N> void mac(const bench::Block& b) {
  scale<T, N * N>(b);
}
template <class T, int N> void vac(const bench::Block& b) {
  scale<T, N>(b);
}

// Points through a homogeneous matrix, without a test of w.
void points(const bench::Block& b) {
  const Held<float, 16> m(bench::source<float>(b, 0));
  const float* __restrict x = bench::source<float>(b, 1);
  float* __restrict y = bench::result<float>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    float h[4];
    for (int r = 0; r < 4; ++r)
      h[r] = m.element[4 * r] * x[3 * k] + m.element[4 * r + 1] * x[3 * k + 1] + m.element[4 * r + 2] * x[3 * k + 2] +
             m.element[4 * r + 3];
    const float reciprocal = 1.0f / h[3];
    for (int i = 0; i < 3; ++i)
      y[3 * k + i] = h[i] * reciprocal;
  }
}

using bench::repeat;
using bench::Role;

#define SIZES(form, type, pass, T)                                                                                     \
  {form "/" type "/3", "loop", Role::alternative, repeat<pass<T, 3>>},                                                 \
      {form "/" type "/4", "loop", Role::alternative, repeat<pass<T, 4>>},                                             \
      {form "/" type "/5", "loop", Role::alternative, repeat<pass<T, 5>>}, {                                           \
    form "/" type "/6", "loop", Role::alternative, repeat<pass<T, 6>>                                                  \
  }

// clang-format off
const bench::Row rows[] = {
    SIZES("Mul/mava",  "32f", mava, float),
    SIZES("Mul/mava",  "64f", mava, double),
    SIZES("Mul/mav",   "32f", mav,  float),
    SIZES("Mul/mav",   "64f", mav,  double),
    SIZES("Mul/mva",   "32f", mva,  float),
    SIZES("Mul/mva",   "64f", mva,  double),
    SIZES("Mul/tva",   "32f", tva,  float),
    SIZES("Mul/tva",   "64f", tva,  double),
    SIZES("Mul/mac",   "32f", mac,  float),
    SIZES("Mul/mac",   "64f", mac,  double),
    SIZES("Mul/vac",   "32f", vac,  float),
    SIZES("Mul/vac",   "64f", vac,  double),
    SIZES("Gaxpy/mva", "32f", gaxpy, float),
    SIZES("Gaxpy/mva", "64f", gaxpy, double),
    {"AffineTransform3DH/mva/32f/3", "loop", Role::alternative, repeat<points>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
