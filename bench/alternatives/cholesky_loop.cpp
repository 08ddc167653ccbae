// Cholesky decomposition and solution of packed systems by plain loops of a fixed size.
#include "alternative.h"

#include <cmath>

#include <iterator>

namespace {

template <class T, int N> void solve(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  const T* rhs = bench::source<T>(b, 1);
  T* x = bench::result<T>(b, 3);
  for (std::ptrdiff_t k = 0; k < b.count; ++k, a += N * N, rhs += N, x += N) {
    T l[N][N]; // reciprocals on the diagonal
    for (int i = 0; i < N; ++i) {
      for (int j = 0; j < i; ++j) {
        T s = a[i * N + j];
        for (int c = 0; c < j; ++c)
          s -= l[i][c] * l[j][c];
        l[i][j] = s * l[j][j];
      }
      T d = a[i * N + i];
      for (int c = 0; c < i; ++c)
        d -= l[i][c] * l[i][c];
      if (!(d > 0))
        return;
      l[i][i] = 1 / std::sqrt(d);
    }
    T y[N];
    for (int i = 0; i < N; ++i) {
      T s = rhs[i];
      for (int j = 0; j < i; ++j)
        s -= l[i][j] * y[j];
      y[i] = s * l[i][i];
    }
    for (int i = N - 1; i >= 0; --i) {
      T s = y[i];
      for (int j = i + 1; j < N; ++j)
        s -= l[j][i] * y[j];
      y[i] = s * l[i][i];
    }
    for (int i = 0; i < N; ++i)
      x[i] = y[i];
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Cholesky/ma/32f/3", "loop", Role::alternative, repeat<solve<float, 3>>},
    {"Cholesky/ma/32f/4", "loop", Role::alternative, repeat<solve<float, 4>>},
    {"Cholesky/ma/32f/5", "loop", Role::alternative, repeat<solve<float, 5>>},
    {"Cholesky/ma/32f/6", "loop", Role::alternative, repeat<solve<float, 6>>},
    {"Cholesky/ma/64f/3", "loop", Role::alternative, repeat<solve<double, 3>>},
    {"Cholesky/ma/64f/4", "loop", Role::alternative, repeat<solve<double, 4>>},
    {"Cholesky/ma/64f/5", "loop", Role::alternative, repeat<solve<double, 5>>},
    {"Cholesky/ma/64f/6", "loop", Role::alternative, repeat<solve<double, 6>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
