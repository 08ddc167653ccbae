// Transpositions by Eigen: packed batches of fixed size, and one large matrix.
#include "alternative.h"
#include "eigen_maps.h"

#include <iterator>

namespace {

template <class T, int N> void batch(const bench::Block& b) {
  const T* src = bench::source<T>(b, 0);
  T* dst = bench::result<T>(b, 1);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    bench::Out<T, N>(dst + k * N * N).noalias() = bench::In<T, N>(src + k * N * N).transpose();
}

template <class T, int Width, int Height> void large(const bench::Block& b) {
  using Rows = Eigen::Matrix<T, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;
  Eigen::Map<Rows>(bench::result<T>(b, 1), Width, Height).noalias() =
      Eigen::Map<const Rows>(bench::source<T>(b, 0), Height, Width).transpose();
}

using bench::repeat;
using bench::Role;

// clang-format off
#define BATCH(n) \
    {"Transpose/ma/32f/" #n, "eigen", Role::alternative, repeat<batch<float, n>>}, \
    {"Transpose/ma/64f/" #n, "eigen", Role::alternative, repeat<batch<double, n>>}
#define LARGE(height, width) \
    {"Transpose/m/32f/" #height "x" #width, "eigen", Role::alternative, repeat<large<float, width, height>>}, \
    {"Transpose/m/64f/" #height "x" #width, "eigen", Role::alternative, repeat<large<double, width, height>>}
const bench::Row rows[] = {
    BATCH(3), BATCH(4), BATCH(5), BATCH(6),
    LARGE(2000, 2000), LARGE(100000, 20), LARGE(20, 100000),
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
