// Products of packed matrices and vectors by Eigen: fixed-size maps, aligned where every object of the batch is.
#include "alternative.h"

#include <Eigen/Core>

#include <iterator>

namespace {

template <class T, int N> using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;
template <class T, int N> using Vector = Eigen::Matrix<T, N, 1>;

template <class T, int Elements>
constexpr int alignment = Elements * sizeof(T) % 32 == 0   ? Eigen::Aligned32
                          : Elements * sizeof(T) % 16 == 0 ? Eigen::Aligned16
                                                           : Eigen::Unaligned;

template <class T, int N> using Matrices = Eigen::Map<const Matrix<T, N>, alignment<T, N * N>>;
template <class T, int N> using Vectors = Eigen::Map<const Vector<T, N>, alignment<T, N>>;
template <class T, int N> using Results = Eigen::Map<Vector<T, N>, alignment<T, N>>;

template <class T, int N> void mava(const bench::Block& b) {
  const T* m = bench::source<T>(b, 0);
  const T* x = bench::source<T>(b, 1);
  T* y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Results<T, N>(y + k * N).noalias() = Matrices<T, N>(m + k * N * N) * Vectors<T, N>(x + k * N);
}

template <class T, int N> void mav(const bench::Block& b) {
  const T* m = bench::source<T>(b, 0);
  const Vector<T, N> x = Vectors<T, N>(bench::source<T>(b, 1));
  T* y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Results<T, N>(y + k * N).noalias() = Matrices<T, N>(m + k * N * N) * x;
}

// The single matrix is held in the order of storage that multiplies a vector fastest.
template <class T, int N, bool Transposed> void single(const bench::Block& b) {
  Eigen::Matrix<T, N, N, Eigen::ColMajor> m = Matrices<T, N>(bench::source<T>(b, 0));
  if (Transposed)
    m.transposeInPlace();
  const T* x = bench::source<T>(b, 1);
  T* y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Results<T, N>(y + k * N).noalias() = m * Vectors<T, N>(x + k * N);
}

template <class T, int N> void mva(const bench::Block& b) {
  single<T, N, false>(b);
}
template <class T, int N> void tva(const bench::Block& b) {
  single<T, N, true>(b);
}

using bench::repeat;
using bench::Role;

#define SIZES(form, type, pass, T)                                                                                     \
  {"Mul/" form "/" type "/3", "eigen", Role::alternative, repeat<pass<T, 3>>},                                         \
      {"Mul/" form "/" type "/4", "eigen", Role::alternative, repeat<pass<T, 4>>},                                     \
      {"Mul/" form "/" type "/5", "eigen", Role::alternative, repeat<pass<T, 5>>}, {                                   \
    "Mul/" form "/" type "/6", "eigen", Role::alternative, repeat<pass<T, 6>>                                          \
  }

// clang-format off
const bench::Row rows[] = {
    SIZES("mava", "32f", mava, float),
#ifndef BENCH_FEW
    SIZES("mava", "64f", mava, double),
    SIZES("mav",  "32f", mav,  float),
    SIZES("mav",  "64f", mav,  double),
    SIZES("mva",  "32f", mva,  float),
    SIZES("mva",  "64f", mva,  double),
    SIZES("tva",  "32f", tva,  float),
    SIZES("tva",  "64f", tva,  double),
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
