// Products of packed matrices by Eigen: fixed-size maps over the batch.
#include "alternative.h"
#include "alternatives/eigen_maps.h"

#include <iterator>

namespace {

using bench::In;
using bench::Matrix;
using bench::Out;

template <class T, int N> void mama(const bench::Block& b) {
  const T* src1 = bench::source<T>(b, 0);
  const T* src2 = bench::source<T>(b, 1);
  T* dst = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(dst + k * N * N).noalias() = In<T, N>(src1 + k * N * N) * In<T, N>(src2 + k * N * N);
}

template <class T, int N> void mam(const bench::Block& b) {
  const T* src1 = bench::source<T>(b, 0);
  const Matrix<T, N> right = In<T, N>(bench::source<T>(b, 1));
  T* dst = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(dst + k * N * N).noalias() = In<T, N>(src1 + k * N * N) * right;
}

template <class T, int N> void mma(const bench::Block& b) {
  const Matrix<T, N> left = In<T, N>(bench::source<T>(b, 0));
  const T* src2 = bench::source<T>(b, 1);
  T* dst = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(dst + k * N * N).noalias() = left * In<T, N>(src2 + k * N * N);
}

template <class T, int N> void tam(const bench::Block& b) {
  const T* src1 = bench::source<T>(b, 0);
  const Matrix<T, N> right = In<T, N>(bench::source<T>(b, 1));
  T* dst = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(dst + k * N * N).noalias() = In<T, N>(src1 + k * N * N).transpose() * right;
}

// H by N times N by W.
template <class T, int H, int N, int W> void shaped(const bench::Block& b) {
  const T* src1 = bench::source<T>(b, 0);
  const T* src2 = bench::source<T>(b, 1);
  T* dst = bench::result<T>(b, 2);
  using Left = Eigen::Map<const Eigen::Matrix<T, H, N, Eigen::RowMajor>>;
  using Right = Eigen::Map<const Eigen::Matrix<T, N, W, Eigen::RowMajor>>;
  using Product = Eigen::Map<Eigen::Matrix<T, H, W, Eigen::RowMajor>>;
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Product(dst + k * H * W).noalias() = Left(src1 + k * H * N) * Right(src2 + k * N * W);
}

using bench::repeat;
using bench::Role;

// clang-format off
#define ROW(form, type, pass, T, n) {"Mul/" form "/" type "/" #n, "eigen", Role::alternative, repeat<pass<T, n>>}
#define SIZES(form, type, pass, T) \
  ROW(form, type, pass, T, 3), ROW(form, type, pass, T, 4), ROW(form, type, pass, T, 5), ROW(form, type, pass, T, 6)
#define LARGER(form, type, pass, T) \
  ROW(form, type, pass, T, 7), ROW(form, type, pass, T, 8), ROW(form, type, pass, T, 12), \
  ROW(form, type, pass, T, 16), ROW(form, type, pass, T, 24), ROW(form, type, pass, T, 32)

#define SHAPE(type, T, h, n, w) \
  {"Mul/mama/" type "/" #h "x" #n "x" #w, "eigen", Role::alternative, repeat<shaped<T, h, n, w>>}
#define SHAPES(type, T) \
  SHAPE(type, T, 2, 2, 2), SHAPE(type, T, 2, 3, 2), SHAPE(type, T, 3, 3, 4), SHAPE(type, T, 3, 4, 4), \
  SHAPE(type, T, 4, 4, 3), SHAPE(type, T, 6, 3, 3), SHAPE(type, T, 6, 6, 3), SHAPE(type, T, 6, 3, 6), \
  SHAPE(type, T, 2, 6, 6), SHAPE(type, T, 4, 6, 4), SHAPE(type, T, 6, 12, 6)

const bench::Row rows[] = {
    SIZES("mama", "32f", mama, float),
#ifndef BENCH_FEW
    SIZES("mama", "64f", mama, double),
    SIZES("mam",  "32f", mam,  float),
    SIZES("mam",  "64f", mam,  double),
    SIZES("mma",  "32f", mma,  float),
    SIZES("mma",  "64f", mma,  double),
    SIZES("tam",  "32f", tam,  float),
    SIZES("tam",  "64f", tam,  double),
    LARGER("mama", "32f", mama, float),
    LARGER("mama", "64f", mama, double),
    SHAPES("32f", float),
    SHAPES("64f", double),
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
