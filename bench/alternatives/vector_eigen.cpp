// Vector algebra by Eigen: fixed-size maps over the batch; single long vectors are maps of known length too.
#include "alternative.h"

#include <Eigen/Geometry>

#include <cstddef>
#include <iterator>

#define WHO "eigen"

namespace {

template <class T, int N> using In = Eigen::Map<const Eigen::Matrix<T, N, 1>>;
template <class T, int N> using Out = Eigen::Map<Eigen::Matrix<T, N, 1>>;

template <class T, int N> void dotBoth(const bench::Block& b) {
  T* const d = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    d[k] = In<T, N>(bench::source<T>(b, 0) + k * N).dot(In<T, N>(bench::source<T>(b, 1) + k * N));
}
template <class T, int N> void dotSingle(const bench::Block& b) {
  const Eigen::Matrix<T, N, 1> held = In<T, N>(bench::source<T>(b, 1));
  T* const d = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    d[k] = In<T, N>(bench::source<T>(b, 0) + k * N).dot(held);
}
template <class T, int N> void norm(const bench::Block& b) {
  T* const d = bench::result<T>(b, 1);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    d[k] = In<T, N>(bench::source<T>(b, 0) + k * N).norm();
}
template <class T, int N> void scaledSum(const bench::Block& b) {
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(bench::result<T>(b, 2) + k * N) =
        In<T, N>(bench::source<T>(b, 0) + k * N) * T(1.25) + In<T, N>(bench::source<T>(b, 1) + k * N);
}
template <class T, int N> void combination(const bench::Block& b) {
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(bench::result<T>(b, 2) + k * N) =
        In<T, N>(bench::source<T>(b, 0) + k * N) * T(1.25) + In<T, N>(bench::source<T>(b, 1) + k * N) * T(0.75);
}
template <class T, int N> void sum(const bench::Block& b) {
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(bench::result<T>(b, 2) + k * N) =
        In<T, N>(bench::source<T>(b, 0) + k * N) + In<T, N>(bench::source<T>(b, 1) + k * N);
}
template <class T, int N> void difference(const bench::Block& b) {
  const Eigen::Matrix<T, N, 1> held = In<T, N>(bench::source<T>(b, 1));
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(bench::result<T>(b, 2) + k * N) = In<T, N>(bench::source<T>(b, 0) + k * N) - held;
}
template <class T> void crossBoth(const bench::Block& b) {
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, 3>(bench::result<T>(b, 2) + k * 3) =
        In<T, 3>(bench::source<T>(b, 0) + k * 3).cross(In<T, 3>(bench::source<T>(b, 1) + k * 3));
}
template <class T> void crossSingle(const bench::Block& b) {
  const Eigen::Matrix<T, 3, 1> held = In<T, 3>(bench::source<T>(b, 1));
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, 3>(bench::result<T>(b, 2) + k * 3) = In<T, 3>(bench::source<T>(b, 0) + k * 3).cross(held);
}

#include "alternatives/vector_rows.h"
