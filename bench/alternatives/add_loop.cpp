// Sums of packed matrices by plain loops of fixed size.
#include "alternative.h"

#include <iterator>

namespace {

template <class T, int N>
void mamaLoop(const T* __restrict src1, const T* __restrict src2, T* __restrict dst, int count) {
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int e = 0; e < N * N; ++e)
      dst[k * N * N + e] = src1[k * N * N + e] + src2[k * N * N + e];
}

template <class T, int N>
void mamLoop(const T* __restrict src1, const T* __restrict src2, T* __restrict dst, int count) {
  T right[N * N];
  for (int e = 0; e < N * N; ++e)
    right[e] = src2[e];
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int e = 0; e < N * N; ++e)
      dst[k * N * N + e] = src1[k * N * N + e] + right[e];
}

template <class T, int N>
void tamLoop(const T* __restrict src1, const T* __restrict src2, T* __restrict dst, int count) {
  T right[N * N];
  for (int e = 0; e < N * N; ++e)
    right[e] = src2[e];
  for (std::ptrdiff_t k = 0; k < count; ++k)
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j)
        dst[k * N * N + i * N + j] = src1[k * N * N + j * N + i] + right[i * N + j];
}

template <class T, int N> void mama(const bench::Block& b) {
  mamaLoop<T, N>(bench::source<T>(b, 0), bench::source<T>(b, 1), bench::result<T>(b, 2), b.count);
}

template <class T, int N> void mam(const bench::Block& b) {
  mamLoop<T, N>(bench::source<T>(b, 0), bench::source<T>(b, 1), bench::result<T>(b, 2), b.count);
}

template <class T, int N> void tam(const bench::Block& b) {
  tamLoop<T, N>(bench::source<T>(b, 0), bench::source<T>(b, 1), bench::result<T>(b, 2), b.count);
}

// One sum in the caller's own loop: what a call of the library is held against when its overhead is measured.
template <class T, int N> void bare(const bench::Block& b, long repetitions) {
  const T* __restrict src1 = bench::source<T>(b, 0);
  const T* __restrict src2 = bench::source<T>(b, 1);
  T* __restrict dst = bench::result<T>(b, 2);
  for (; repetitions > 0; --repetitions) {
    mamaLoop<T, N>(src1, src2, dst, 1);
    bench::clobber();
  }
}

using bench::repeat;
using bench::Role;

#define SIZES(form, type, pass, T)                                                                                     \
  {"Add/" form "/" type "/3", "loop", Role::alternative, repeat<pass<T, 3>>},                                          \
      {"Add/" form "/" type "/4", "loop", Role::alternative, repeat<pass<T, 4>>},                                      \
      {"Add/" form "/" type "/5", "loop", Role::alternative, repeat<pass<T, 5>>}, {                                    \
    "Add/" form "/" type "/6", "loop", Role::alternative, repeat<pass<T, 6>>                                           \
  }

// clang-format off
const bench::Row rows[] = {
    SIZES("mama", "32f", mama, float),
    SIZES("mama", "64f", mama, double),
    SIZES("mam",  "32f", mam,  float),
    SIZES("mam",  "64f", mam,  double),
    SIZES("tam",  "32f", tam,  float),
    SIZES("tam",  "64f", tam,  double),
    {"Add/call/32f/3", "bare", Role::other, bare<float, 3>},
    {"Add/call/64f/3", "bare", Role::other, bare<double, 3>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
