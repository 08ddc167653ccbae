// Elements moved by plain loops of fixed size.
#include "alternative.h"

#include <iterator>

namespace {

template <class T, int N> void transposeLoop(const T* __restrict src, T* __restrict dst, int count) {
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j)
        dst[k * N * N + i * N + j] = src[k * N * N + j * N + i];
}
template <class T, int N> void packLoop(const T* __restrict src, T* __restrict dst, int count) {
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j)
        dst[k * N * N + i * N + j] = src[k * N * (N + 1) + i * (N + 1) + j];
}
template <class T, int N> void identityLoop(T* __restrict dst, int count) {
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j)
        dst[k * N * N + i * N + j] = i == j ? T(1) : T(0);
}
template <class T, int N> void toPlanesLoop(const T* __restrict src, T* __restrict dst, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int p = 0; p < N; ++p)
      dst[p * count + k] = src[k * N + p];
}
template <class T, int N> void fromPlanesLoop(const T* __restrict src, T* __restrict dst, std::ptrdiff_t count) {
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int p = 0; p < N; ++p)
      dst[k * N + p] = src[p * count + k];
}

template <class T, int N> void transpose(const bench::Block& b) {
  transposeLoop<T, N>(bench::source<T>(b, 0), bench::result<T>(b, 1), b.count);
}
template <class T, int N> void pack(const bench::Block& b) {
  packLoop<T, N>(bench::source<T>(b, 0), bench::result<T>(b, 1), b.count);
}
template <class T, int N> void identity(const bench::Block& b) {
  identityLoop<T, N>(bench::result<T>(b, 0), b.count);
}
template <class T, int N> void toPlanes(const bench::Block& b) {
  toPlanesLoop<T, N>(bench::source<T>(b, 0), bench::result<T>(b, 1), b.count);
}
template <class T, int N> void fromPlanes(const bench::Block& b) {
  fromPlanesLoop<T, N>(bench::source<T>(b, 0), bench::result<T>(b, 1), b.count);
}

using bench::repeat;
using bench::Role;

// clang-format off
#define BOTH(form, n, function)                                         \
    {form "/32f/" #n, "loop", Role::alternative, repeat<function<float, n>>}, \
    {form "/64f/" #n, "loop", Role::alternative, repeat<function<double, n>>}
#define MATRICES(n) BOTH("Transpose/ma", n, transpose), BOTH("Extract/ma", n, pack), BOTH("LoadIdentity/ma", n, identity)
#define PLANES(n)   BOTH("Copy/SP", n, toPlanes), BOTH("Copy/PS", n, fromPlanes)
const bench::Row rows[] = {
    MATRICES(3), MATRICES(4), MATRICES(5), MATRICES(6),
    PLANES(3), PLANES(4), PLANES(5), PLANES(6), PLANES(9), PLANES(16), PLANES(25), PLANES(36),
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
