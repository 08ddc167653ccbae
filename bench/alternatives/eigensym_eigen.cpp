// Symmetric eigenproblems of packed matrices by Eigen on fixed sizes: the iterative solver, and for side 3 the direct
// one, which is quicker and less accurate.
#include "alternative.h"

#include <Eigen/Eigenvalues>

#include <iterator>

namespace {

template <class T, int N, int what, bool direct> void solve(const bench::Block& b) {
  using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
  const T* a = bench::source<T>(b, 0);
  T* vectors = bench::result<T>(b, 1);
  T* values = bench::result<T>(b, 2);
  Eigen::SelfAdjointEigenSolver<Eigen::Matrix<T, N, N>> solver;
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    if constexpr (direct)
      solver.computeDirect(Eigen::Map<const Matrix>(a + k * N * N), what);
    else
      solver.compute(Eigen::Map<const Matrix>(a + k * N * N), what);
    Eigen::Map<Eigen::Matrix<T, N, 1>>(values + k * N) = solver.eigenvalues().reverse();
    if constexpr (what == Eigen::ComputeEigenvectors)
      Eigen::Map<Matrix>(vectors + k * N * N) = solver.eigenvectors().rowwise().reverse();
  }
}

template <class T, int N> constexpr auto valuesOf = bench::repeat<solve<T, N, Eigen::EigenvaluesOnly, false>>;
template <class T, int N> constexpr auto vectorsOf = bench::repeat<solve<T, N, Eigen::ComputeEigenvectors, false>>;
template <class T> constexpr auto directVectorsOf = bench::repeat<solve<T, 3, Eigen::ComputeEigenvectors, true>>;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"EigenValuesSym/ma/64f/3",        "eigen",  Role::alternative, valuesOf<double, 3>},
#ifndef BENCH_FEW
    {"EigenValuesSym/ma/64f/4",        "eigen",  Role::alternative, valuesOf<double, 4>},
    {"EigenValuesSym/ma/64f/5",        "eigen",  Role::alternative, valuesOf<double, 5>},
    {"EigenValuesSym/ma/64f/6",        "eigen",  Role::alternative, valuesOf<double, 6>},
    {"EigenValuesSym/ma/32f/3",        "eigen",  Role::alternative, valuesOf<float, 3>},
    {"EigenValuesSym/ma/32f/4",        "eigen",  Role::alternative, valuesOf<float, 4>},
    {"EigenValuesSym/ma/32f/5",        "eigen",  Role::alternative, valuesOf<float, 5>},
    {"EigenValuesSym/ma/32f/6",        "eigen",  Role::alternative, valuesOf<float, 6>},
    {"EigenValuesVectorsSym/ma/64f/3", "eigen",  Role::alternative, vectorsOf<double, 3>},
    {"EigenValuesVectorsSym/ma/64f/4", "eigen",  Role::alternative, vectorsOf<double, 4>},
    {"EigenValuesVectorsSym/ma/64f/5", "eigen",  Role::alternative, vectorsOf<double, 5>},
    {"EigenValuesVectorsSym/ma/64f/6", "eigen",  Role::alternative, vectorsOf<double, 6>},
    {"EigenValuesVectorsSym/ma/32f/3", "eigen",  Role::alternative, vectorsOf<float, 3>},
    {"EigenValuesVectorsSym/ma/32f/4", "eigen",  Role::alternative, vectorsOf<float, 4>},
    {"EigenValuesVectorsSym/ma/32f/5", "eigen",  Role::alternative, vectorsOf<float, 5>},
    {"EigenValuesVectorsSym/ma/32f/6", "eigen",  Role::alternative, vectorsOf<float, 6>},
    {"EigenValuesVectorsSym/ma/64f/3", "direct", Role::other,       directVectorsOf<double>},
    {"EigenValuesVectorsSym/ma/32f/3", "direct", Role::other,       directVectorsOf<float>},
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
