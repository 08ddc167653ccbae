// LU decomposition and solution of packed systems by plain loops of a fixed size, rows exchanged.
#include "alternative.h"

#include <cmath>
#include <iterator>
#include <utility>

namespace {

template <class T, int N> void solve(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  const T* rhs = bench::source<T>(b, 1);
  T* x = bench::result<T>(b, 3);
  for (std::ptrdiff_t k = 0; k < b.count; ++k, a += N * N, rhs += N, x += N) {
    T lu[N][N], y[N], reciprocal[N];
    for (int i = 0; i < N; ++i) {
      y[i] = rhs[i];
      for (int j = 0; j < N; ++j)
        lu[i][j] = a[i * N + j];
    }
    for (int c = 0; c < N; ++c) {
      int best = c;
      for (int i = c + 1; i < N; ++i)
        if (std::fabs(lu[i][c]) > std::fabs(lu[best][c]))
          best = i;
      if (!(std::fabs(lu[best][c]) > 0))
        return;
      if (best != c) {
        std::swap(y[c], y[best]);
        for (int j = 0; j < N; ++j)
          std::swap(lu[c][j], lu[best][j]);
      }
      reciprocal[c] = 1 / lu[c][c];
      for (int i = c + 1; i < N; ++i) {
        const T factor = lu[i][c] *= reciprocal[c];
        y[i] -= factor * y[c];
        for (int j = c + 1; j < N; ++j)
          lu[i][j] -= factor * lu[c][j];
      }
    }
    for (int i = N - 1; i >= 0; --i) {
      T s = y[i];
      for (int j = i + 1; j < N; ++j)
        s -= lu[i][j] * y[j];
      x[i] = y[i] = s * reciprocal[i];
    }
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"LU/ma/32f/3", "loop", Role::alternative, repeat<solve<float, 3>>},
    {"LU/ma/32f/4", "loop", Role::alternative, repeat<solve<float, 4>>},
    {"LU/ma/32f/5", "loop", Role::alternative, repeat<solve<float, 5>>},
    {"LU/ma/32f/6", "loop", Role::alternative, repeat<solve<float, 6>>},
    {"LU/ma/64f/3", "loop", Role::alternative, repeat<solve<double, 3>>},
    {"LU/ma/64f/4", "loop", Role::alternative, repeat<solve<double, 4>>},
    {"LU/ma/64f/5", "loop", Role::alternative, repeat<solve<double, 5>>},
    {"LU/ma/64f/6", "loop", Role::alternative, repeat<solve<double, 6>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
