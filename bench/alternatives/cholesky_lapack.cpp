// Cholesky decomposition and solution of packed systems by LAPACK's potrf and potrs, one at a time.
#include "alternative.h"

#include <lapack.h>

#include <cstring>
#include <iterator>

namespace {

void factor(char* uplo, int* n, float* a, int* info) {
  LAPACK_spotrf(uplo, n, a, n, info);
}
void factor(char* uplo, int* n, double* a, int* info) {
  LAPACK_dpotrf(uplo, n, a, n, info);
}
void substitute(char* uplo, int* n, int* one, float* a, float* x, int* info) {
  LAPACK_spotrs(uplo, n, one, a, n, x, n, info);
}
void substitute(char* uplo, int* n, int* one, double* a, double* x, int* info) {
  LAPACK_dpotrs(uplo, n, one, a, n, x, n, info);
}

// The lower triangle of rows is the upper one of columns.
template <class T, int N> void solve(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  const T* rhs = bench::source<T>(b, 1);
  T* factors = bench::result<T>(b, 2);
  T* x = bench::result<T>(b, 3);
  char upper = 'U';
  int n = N, one = 1, info = 0;
  std::memcpy(factors, a, sizeof(T) * N * N * static_cast<std::size_t>(b.count));
  std::memcpy(x, rhs, sizeof(T) * N * static_cast<std::size_t>(b.count));
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    factor(&upper, &n, factors + k * N * N, &info);
    substitute(&upper, &n, &one, factors + k * N * N, x + k * N, &info);
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Cholesky/ma/32f/3", "lapack", Role::alternative, repeat<solve<float, 3>>},
    {"Cholesky/ma/32f/4", "lapack", Role::alternative, repeat<solve<float, 4>>},
    {"Cholesky/ma/32f/5", "lapack", Role::alternative, repeat<solve<float, 5>>},
    {"Cholesky/ma/32f/6", "lapack", Role::alternative, repeat<solve<float, 6>>},
    {"Cholesky/ma/64f/3", "lapack", Role::alternative, repeat<solve<double, 3>>},
    {"Cholesky/ma/64f/4", "lapack", Role::alternative, repeat<solve<double, 4>>},
    {"Cholesky/ma/64f/5", "lapack", Role::alternative, repeat<solve<double, 5>>},
    {"Cholesky/ma/64f/6", "lapack", Role::alternative, repeat<solve<double, 6>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
