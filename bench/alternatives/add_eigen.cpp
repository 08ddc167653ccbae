// Sums of packed matrices by Eigen: fixed-size maps over the batch.
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
    Out<T, N>(dst + k * N * N) = In<T, N>(src1 + k * N * N) + In<T, N>(src2 + k * N * N);
}

template <class T, int N> void mam(const bench::Block& b) {
  const T* src1 = bench::source<T>(b, 0);
  const Matrix<T, N> right = In<T, N>(bench::source<T>(b, 1));
  T* dst = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(dst + k * N * N) = In<T, N>(src1 + k * N * N) + right;
}

template <class T, int N> void tam(const bench::Block& b) {
  const T* src1 = bench::source<T>(b, 0);
  const Matrix<T, N> right = In<T, N>(bench::source<T>(b, 1));
  T* dst = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Out<T, N>(dst + k * N * N) = In<T, N>(src1 + k * N * N).transpose() + right;
}

using bench::repeat;
using bench::Role;

#define SIZES(form, type, pass, T)                                                                                     \
  {"Add/" form "/" type "/3", "eigen", Role::alternative, repeat<pass<T, 3>>},                                         \
      {"Add/" form "/" type "/4", "eigen", Role::alternative, repeat<pass<T, 4>>},                                     \
      {"Add/" form "/" type "/5", "eigen", Role::alternative, repeat<pass<T, 5>>}, {                                   \
    "Add/" form "/" type "/6", "eigen", Role::alternative, repeat<pass<T, 6>>                                          \
  }

// clang-format off
const bench::Row rows[] = {
    SIZES("mama", "32f", mama, float),
#ifndef BENCH_FEW
    SIZES("mama", "64f", mama, double),
    SIZES("mam",  "32f", mam,  float),
    SIZES("mam",  "64f", mam,  double),
    SIZES("tam",  "32f", tam,  float),
    SIZES("tam",  "64f", tam,  double),
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
