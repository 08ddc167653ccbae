// Eigenvalues of packed matrices, alone and with vectors, by Eigen's EigenSolver on fixed sizes. Its build takes
// minutes, so that it has only some of the sides.
#include "alternative.h"

#include <Eigen/Eigenvalues>

#include <iterator>

namespace {

template <class T, int N, bool Vectors> void solve(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  T* vectors = bench::result<T>(b, 1);
  T* re = bench::result<T>(b, 2);
  T* im = bench::result<T>(b, 3);
  Eigen::EigenSolver<Eigen::Matrix<T, N, N>> solver;
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    solver.compute(Eigen::Map<const Eigen::Matrix<T, N, N, Eigen::RowMajor>>(a + k * N * N), Vectors);
    Eigen::Map<Eigen::Matrix<T, N, 1>>(re + k * N) = solver.eigenvalues().real();
    Eigen::Map<Eigen::Matrix<T, N, 1>>(im + k * N) = solver.eigenvalues().imag();
    if constexpr (Vectors)
      Eigen::Map<Eigen::Matrix<T, N, N, Eigen::RowMajor>>(vectors + k * N * N) = solver.eigenvectors().real();
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"EigenValues/ma/64f/4x4",  "eigen", Role::alternative, repeat<solve<double, 4, false>>},
#ifndef BENCH_FEW
    {"EigenVectors/ma/64f/4x4", "eigen", Role::alternative, repeat<solve<double, 4, true>>},
    {"EigenValues/ma/64f/3x3",  "eigen", Role::alternative, repeat<solve<double, 3, false>>},
    {"EigenVectors/ma/64f/3x3", "eigen", Role::alternative, repeat<solve<double, 3, true>>},
    {"EigenValues/ma/64f/6x6",  "eigen", Role::alternative, repeat<solve<double, 6, false>>},
    {"EigenVectors/ma/64f/6x6", "eigen", Role::alternative, repeat<solve<double, 6, true>>},
    {"EigenValues/ma/32f/4x4",  "eigen", Role::alternative, repeat<solve<float, 4, false>>},
    {"EigenVectors/ma/32f/4x4", "eigen", Role::alternative, repeat<solve<float, 4, true>>},
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
