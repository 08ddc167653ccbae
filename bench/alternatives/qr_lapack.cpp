// QR decomposition and solution of packed systems by LAPACK's gels, one at a time.
#include "alternative.h"

#include <lapack.h>

#include <cstring>
#include <iterator>

namespace {

void leastSquares(char* trans, int* m, int* n, int* one, float* a, float* b, int* height, float* work, int* size,
                  int* info) {
  LAPACK_sgels(trans, m, n, one, a, m, b, height, work, size, info);
}
void leastSquares(char* trans, int* m, int* n, int* one, double* a, double* b, int* height, double* work, int* size,
                  int* info) {
  LAPACK_dgels(trans, m, n, one, a, m, b, height, work, size, info);
}

// A matrix of rows is the transpose of one of columns.
template <class T, int W, int H> void solve(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  const T* rhs = bench::source<T>(b, 1);
  T* factors = bench::result<T>(b, 2);
  T* x = bench::result<T>(b, 3);
  char transposed = 'T';
  int m = W, n = H, one = 1, info = 0;
  T work[64];
  int size = 64;
  std::memcpy(factors, a, sizeof(T) * W * H * static_cast<std::size_t>(b.count));
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    T column[H];
    std::memcpy(column, rhs + k * H, sizeof column);
    leastSquares(&transposed, &m, &n, &one, factors + k * W * H, column, &n, work, &size, &info);
    std::memcpy(x + k * W, column, sizeof(T) * W);
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"QR/ma/32f/3x3", "lapack", Role::alternative, repeat<solve<float, 3, 3>>},
    {"QR/ma/32f/4x4", "lapack", Role::alternative, repeat<solve<float, 4, 4>>},
    {"QR/ma/32f/5x5", "lapack", Role::alternative, repeat<solve<float, 5, 5>>},
    {"QR/ma/32f/6x6", "lapack", Role::alternative, repeat<solve<float, 6, 6>>},
    {"QR/ma/32f/6x3", "lapack", Role::alternative, repeat<solve<float, 3, 6>>},
    {"QR/ma/64f/3x3", "lapack", Role::alternative, repeat<solve<double, 3, 3>>},
    {"QR/ma/64f/4x4", "lapack", Role::alternative, repeat<solve<double, 4, 4>>},
    {"QR/ma/64f/5x5", "lapack", Role::alternative, repeat<solve<double, 5, 5>>},
    {"QR/ma/64f/6x6", "lapack", Role::alternative, repeat<solve<double, 6, 6>>},
    {"QR/ma/64f/6x3", "lapack", Role::alternative, repeat<solve<double, 3, 6>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
