// Eigenvalues of packed matrices, alone and with vectors, by LAPACK's geev, one at a time. It takes rows for columns:
// its left vectors are those of the matrix.
#include "alternative.h"

#include <lapack.h>

#include <cstring>
#include <iterator>

namespace {

void general(char* left, int* n, float* a, float* re, float* im, float* vectors, float* work, int* size, int* info) {
  char none = 'N';
  LAPACK_sgeev(left, &none, n, a, n, re, im, vectors, n, nullptr, n, work, size, info);
}
void general(char* left, int* n, double* a, double* re, double* im, double* vectors, double* work, int* size,
             int* info) {
  char none = 'N';
  LAPACK_dgeev(left, &none, n, a, n, re, im, vectors, n, nullptr, n, work, size, info);
}

template <class T, int N, bool Vectors> void solve(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  char left = Vectors ? 'V' : 'N';
  int n = N, info = 0;
  T work[512];
  int size = 512;
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    T matrix[N * N];
    std::memcpy(matrix, a + k * N * N, sizeof matrix);
    general(&left, &n, matrix, bench::result<T>(b, 2) + k * N, bench::result<T>(b, 3) + k * N,
            bench::result<T>(b, 1) + k * N * N, work, &size, &info);
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"EigenValues/ma/32f/3x3",  "lapack", Role::alternative, repeat<solve<float, 3, false>>},
    {"EigenValues/ma/32f/4x4",  "lapack", Role::alternative, repeat<solve<float, 4, false>>},
    {"EigenValues/ma/32f/5x5",  "lapack", Role::alternative, repeat<solve<float, 5, false>>},
    {"EigenValues/ma/32f/6x6",  "lapack", Role::alternative, repeat<solve<float, 6, false>>},
    {"EigenValues/ma/32f/8x8",  "lapack", Role::alternative, repeat<solve<float, 8, false>>},
    {"EigenValues/ma/64f/3x3",  "lapack", Role::alternative, repeat<solve<double, 3, false>>},
    {"EigenValues/ma/64f/4x4",  "lapack", Role::alternative, repeat<solve<double, 4, false>>},
    {"EigenValues/ma/64f/5x5",  "lapack", Role::alternative, repeat<solve<double, 5, false>>},
    {"EigenValues/ma/64f/6x6",  "lapack", Role::alternative, repeat<solve<double, 6, false>>},
    {"EigenValues/ma/64f/8x8",  "lapack", Role::alternative, repeat<solve<double, 8, false>>},
    {"EigenVectors/ma/32f/3x3", "lapack", Role::alternative, repeat<solve<float, 3, true>>},
    {"EigenVectors/ma/32f/4x4", "lapack", Role::alternative, repeat<solve<float, 4, true>>},
    {"EigenVectors/ma/32f/5x5", "lapack", Role::alternative, repeat<solve<float, 5, true>>},
    {"EigenVectors/ma/32f/6x6", "lapack", Role::alternative, repeat<solve<float, 6, true>>},
    {"EigenVectors/ma/32f/8x8", "lapack", Role::alternative, repeat<solve<float, 8, true>>},
    {"EigenVectors/ma/64f/3x3", "lapack", Role::alternative, repeat<solve<double, 3, true>>},
    {"EigenVectors/ma/64f/4x4", "lapack", Role::alternative, repeat<solve<double, 4, true>>},
    {"EigenVectors/ma/64f/5x5", "lapack", Role::alternative, repeat<solve<double, 5, true>>},
    {"EigenVectors/ma/64f/6x6", "lapack", Role::alternative, repeat<solve<double, 6, true>>},
    {"EigenVectors/ma/64f/8x8", "lapack", Role::alternative, repeat<solve<double, 8, true>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
