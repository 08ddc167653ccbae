// LU decomposition and solution of packed systems by LAPACK's getrf and getrs, one at a time.
#include "alternative.h"

#include <lapack.h>

#include <cstring>
#include <iterator>

namespace {

void factor(int* n, float* a, int* index, int* info) {
  LAPACK_sgetrf(n, n, a, n, index, info);
}
void factor(int* n, double* a, int* index, int* info) {
  LAPACK_dgetrf(n, n, a, n, index, info);
}
void substitute(char* trans, int* n, int* one, float* a, int* index, float* x, int* info) {
  LAPACK_sgetrs(trans, n, one, a, n, index, x, n, info);
}
void substitute(char* trans, int* n, int* one, double* a, int* index, double* x, int* info) {
  LAPACK_dgetrs(trans, n, one, a, n, index, x, n, info);
}

// The rows are columns to LAPACK, so the transposed systems are solved.
template <class T, int N> void solve(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  const T* rhs = bench::source<T>(b, 1);
  T* factors = bench::result<T>(b, 2);
  T* x = bench::result<T>(b, 3);
  char transposed = 'T';
  int n = N, one = 1, info = 0;
  int index[N];
  std::memcpy(factors, a, sizeof(T) * N * N * static_cast<std::size_t>(b.count));
  std::memcpy(x, rhs, sizeof(T) * N * static_cast<std::size_t>(b.count));
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    factor(&n, factors + k * N * N, index, &info);
    substitute(&transposed, &n, &one, factors + k * N * N, index, x + k * N, &info);
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"LU/ma/32f/3", "lapack", Role::alternative, repeat<solve<float, 3>>},
    {"LU/ma/32f/4", "lapack", Role::alternative, repeat<solve<float, 4>>},
    {"LU/ma/32f/5", "lapack", Role::alternative, repeat<solve<float, 5>>},
    {"LU/ma/32f/6", "lapack", Role::alternative, repeat<solve<float, 6>>},
    {"LU/ma/64f/3", "lapack", Role::alternative, repeat<solve<double, 3>>},
    {"LU/ma/64f/4", "lapack", Role::alternative, repeat<solve<double, 4>>},
    {"LU/ma/64f/5", "lapack", Role::alternative, repeat<solve<double, 5>>},
    {"LU/ma/64f/6", "lapack", Role::alternative, repeat<solve<double, 6>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
