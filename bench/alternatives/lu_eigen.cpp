// LU decomposition and solution of packed systems by Eigen's PartialPivLU on fixed sizes.
#include "alternative.h"

#include <Eigen/LU>

#include <iterator>

namespace {

template <class T, int N> void solve(const bench::Block& b) {
  using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  using Vector = Eigen::Matrix<T, N, 1>;
  const T* a = bench::source<T>(b, 0);
  const T* rhs = bench::source<T>(b, 1);
  T* x = bench::result<T>(b, 3);
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    const Eigen::PartialPivLU<Matrix> factor{Eigen::Map<const Matrix>(a + k * N * N)};
    Eigen::Map<Vector>(x + k * N) = factor.solve(Eigen::Map<const Vector>(rhs + k * N));
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"LU/ma/32f/2", "eigen", Role::alternative, repeat<solve<float, 2>>},
    {"LU/ma/32f/3", "eigen", Role::alternative, repeat<solve<float, 3>>},
#ifndef BENCH_FEW
    {"LU/ma/32f/4", "eigen", Role::alternative, repeat<solve<float, 4>>},
    {"LU/ma/32f/5", "eigen", Role::alternative, repeat<solve<float, 5>>},
    {"LU/ma/32f/6", "eigen", Role::alternative, repeat<solve<float, 6>>},
    {"LU/ma/32f/7", "eigen", Role::alternative, repeat<solve<float, 7>>},
    {"LU/ma/32f/8", "eigen", Role::alternative, repeat<solve<float, 8>>},
    {"LU/ma/32f/12", "eigen", Role::alternative, repeat<solve<float, 12>>},
    {"LU/ma/64f/2", "eigen", Role::alternative, repeat<solve<double, 2>>},
    {"LU/ma/64f/3", "eigen", Role::alternative, repeat<solve<double, 3>>},
    {"LU/ma/64f/4", "eigen", Role::alternative, repeat<solve<double, 4>>},
    {"LU/ma/64f/5", "eigen", Role::alternative, repeat<solve<double, 5>>},
    {"LU/ma/64f/6", "eigen", Role::alternative, repeat<solve<double, 6>>},
    {"LU/ma/64f/7", "eigen", Role::alternative, repeat<solve<double, 7>>},
    {"LU/ma/64f/8", "eigen", Role::alternative, repeat<solve<double, 8>>},
    {"LU/ma/64f/12", "eigen", Role::alternative, repeat<solve<double, 12>>},
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
