// Products of packed matrices and vectors by Eigen, with and without a vector added, and scaling: fixed-size maps,
// aligned where every object of the batch is.
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

template <class T, int N> void gaxpy(const bench::Block& b) {
  const Eigen::Matrix<T, N, N, Eigen::ColMajor> m = Matrices<T, N>(bench::source<T>(b, 0));
  const T* x = bench::source<T>(b, 1);
  const T* z = bench::source<T>(b, 2);
  T* y = bench::result<T>(b, 3);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Results<T, N>(y + k * N).noalias() = m * Vectors<T, N>(x + k * N) + Vectors<T, N>(z + k * N);
}

template <class T, int N> void mac(const bench::Block& b) {
  const T* x = bench::source<T>(b, 0);
  const T factor = *bench::source<T>(b, 1);
  T* y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Eigen::Map<Matrix<T, N>, alignment<T, N * N>>(y + k * N * N) = Matrices<T, N>(x + k * N * N) * factor;
}
template <class T, int N> void vac(const bench::Block& b) {
  const T* x = bench::source<T>(b, 0);
  const T factor = *bench::source<T>(b, 1);
  T* y = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Results<T, N>(y + k * N) = Vectors<T, N>(x + k * N) * factor;
}

using bench::repeat;
using bench::Role;

#define SIZES(form, type, pass, T)                                                                                     \
  {form "/" type "/3", "eigen", Role::alternative, repeat<pass<T, 3>>},                                                \
      {form "/" type "/4", "eigen", Role::alternative, repeat<pass<T, 4>>},                                            \
      {form "/" type "/5", "eigen", Role::alternative, repeat<pass<T, 5>>}, {                                          \
    form "/" type "/6", "eigen", Role::alternative, repeat<pass<T, 6>>                                                 \
  }

// clang-format off
const bench::Row rows[] = {
    SIZES("Mul/mava",  "32f", mava, float),
#ifndef BENCH_FEW
    SIZES("Mul/mava",  "64f", mava, double),
    SIZES("Mul/mav",   "32f", mav,  float),
    SIZES("Mul/mav",   "64f", mav,  double),
    SIZES("Mul/mva",   "32f", mva,  float),
    SIZES("Mul/mva",   "64f", mva,  double),
    SIZES("Mul/tva",   "32f", tva,  float),
    SIZES("Mul/tva",   "64f", tva,  double),
    SIZES("Mul/mac",   "32f", mac,  float),
    SIZES("Mul/mac",   "64f", mac,  double),
    SIZES("Mul/vac",   "32f", vac,  float),
    SIZES("Mul/vac",   "64f", vac,  double),
    SIZES("Gaxpy/mva", "32f", gaxpy, float),
    SIZES("Gaxpy/mva", "64f", gaxpy, double),
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
