// Determinants, inverses, traces and norms of packed matrices by plain loops: elimination with row pivots, sums.
#include "alternative.h"

#include <cmath>
#include <iterator>
#include <utility>

namespace {

// Row k gets the largest element of column k.
template <class T, int N, int C> bool choosePivot(T (&w)[N][C], int k) {
  int best = k;
  for (int i = k + 1; i < N; ++i)
    if (std::fabs(w[i][k]) > std::fabs(w[best][k]))
      best = i;
  for (int j = 0; best != k && j < C; ++j)
    std::swap(w[k][j], w[best][j]);
  return best != k;
}

template <class T, int N> void determinants(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  T* dst = bench::result<T>(b, 2);
  for (int object = 0; object < b.count; ++object, a += N * N) {
    T w[N][N];
    for (int i = 0; i < N * N; ++i)
      w[i / N][i % N] = a[i];
    T det = 1;
    for (int k = 0; k < N; ++k) {
      det *= choosePivot(w, k) ? -w[k][k] : w[k][k];
      for (int i = k + 1; i < N; ++i) {
        const T q = w[i][k] / w[k][k];
        for (int j = k + 1; j < N; ++j)
          w[i][j] -= q * w[k][j];
      }
    }
    dst[object] = det;
  }
}

template <class T, int N> void inverses(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  T* dst = bench::result<T>(b, 2);
  for (int object = 0; object < b.count; ++object, a += N * N, dst += N * N) {
    T w[N][2 * N];
    for (int i = 0; i < N; ++i)
      for (int j = 0; j < N; ++j) {
        w[i][j] = a[i * N + j];
        w[i][N + j] = T(i == j);
      }
    for (int k = 0; k < N; ++k) {
      choosePivot(w, k);
      const T r = 1 / w[k][k];
      for (int j = 0; j < 2 * N; ++j)
        w[k][j] *= r;
      for (int i = 0; i < N; ++i) {
        const T q = w[i][k];
        for (int j = 0; i != k && j < 2 * N; ++j)
          w[i][j] -= q * w[k][j];
      }
    }
    for (int i = 0; i < N * N; ++i)
      dst[i] = w[i / N][N + i % N];
  }
}

template <class T, int N> void traces(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  T* dst = bench::result<T>(b, 2);
  for (int object = 0; object < b.count; ++object, a += N * N) {
    T sum = 0;
    for (int i = 0; i < N; ++i)
      sum += a[i * N + i];
    dst[object] = sum;
  }
}

template <class T, int N> void norms(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  T* dst = bench::result<T>(b, 2);
  for (int object = 0; object < b.count; ++object, a += N * N) {
    T sum = 0;
    for (int i = 0; i < N * N; ++i)
      sum += a[i] * a[i];
    dst[object] = std::sqrt(sum);
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Det/ma/32f/3", "loop", Role::alternative, repeat<determinants<float, 3>>},
    {"Det/ma/32f/4", "loop", Role::alternative, repeat<determinants<float, 4>>},
    {"Det/ma/32f/5", "loop", Role::alternative, repeat<determinants<float, 5>>},
    {"Det/ma/32f/6", "loop", Role::alternative, repeat<determinants<float, 6>>},
    {"Det/ma/64f/3", "loop", Role::alternative, repeat<determinants<double, 3>>},
    {"Det/ma/64f/4", "loop", Role::alternative, repeat<determinants<double, 4>>},
    {"Det/ma/64f/5", "loop", Role::alternative, repeat<determinants<double, 5>>},
    {"Det/ma/64f/6", "loop", Role::alternative, repeat<determinants<double, 6>>},
    {"Invert/ma/32f/3", "loop", Role::alternative, repeat<inverses<float, 3>>},
    {"Invert/ma/32f/4", "loop", Role::alternative, repeat<inverses<float, 4>>},
    {"Invert/ma/32f/5", "loop", Role::alternative, repeat<inverses<float, 5>>},
    {"Invert/ma/32f/6", "loop", Role::alternative, repeat<inverses<float, 6>>},
    {"Invert/ma/64f/3", "loop", Role::alternative, repeat<inverses<double, 3>>},
    {"Invert/ma/64f/4", "loop", Role::alternative, repeat<inverses<double, 4>>},
    {"Invert/ma/64f/5", "loop", Role::alternative, repeat<inverses<double, 5>>},
    {"Invert/ma/64f/6", "loop", Role::alternative, repeat<inverses<double, 6>>},
    {"Trace/ma/32f/3", "loop", Role::alternative, repeat<traces<float, 3>>},
    {"Trace/ma/32f/4", "loop", Role::alternative, repeat<traces<float, 4>>},
    {"Trace/ma/32f/5", "loop", Role::alternative, repeat<traces<float, 5>>},
    {"Trace/ma/32f/6", "loop", Role::alternative, repeat<traces<float, 6>>},
    {"Trace/ma/64f/3", "loop", Role::alternative, repeat<traces<double, 3>>},
    {"Trace/ma/64f/4", "loop", Role::alternative, repeat<traces<double, 4>>},
    {"Trace/ma/64f/5", "loop", Role::alternative, repeat<traces<double, 5>>},
    {"Trace/ma/64f/6", "loop", Role::alternative, repeat<traces<double, 6>>},
    {"FrobNorm/ma/32f/3", "loop", Role::alternative, repeat<norms<float, 3>>},
    {"FrobNorm/ma/32f/4", "loop", Role::alternative, repeat<norms<float, 4>>},
    {"FrobNorm/ma/32f/5", "loop", Role::alternative, repeat<norms<float, 5>>},
    {"FrobNorm/ma/32f/6", "loop", Role::alternative, repeat<norms<float, 6>>},
    {"FrobNorm/ma/64f/3", "loop", Role::alternative, repeat<norms<double, 3>>},
    {"FrobNorm/ma/64f/4", "loop", Role::alternative, repeat<norms<double, 4>>},
    {"FrobNorm/ma/64f/5", "loop", Role::alternative, repeat<norms<double, 5>>},
    {"FrobNorm/ma/64f/6", "loop", Role::alternative, repeat<norms<double, 6>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
