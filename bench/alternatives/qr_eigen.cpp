// QR decomposition and solution of packed systems by Eigen's HouseholderQR on fixed sizes.
#include "alternative.h"

#include <Eigen/QR>

#include <iterator>

namespace {

template <class T, int W, int H> void solve(const bench::Block& b) {
  using Stored = Eigen::Matrix<T, H, W, W == 1 ? Eigen::ColMajor : Eigen::RowMajor>;
  using Right = Eigen::Matrix<T, H, 1>;
  using Solution = Eigen::Matrix<T, W, 1>;
  const T* a = bench::source<T>(b, 0);
  const T* rhs = bench::source<T>(b, 1);
  T* x = bench::result<T>(b, 3);
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    const Eigen::HouseholderQR<Eigen::Matrix<T, H, W>> factor{Eigen::Map<const Stored>(a + k * W * H)};
    Eigen::Map<Solution>(x + k * W) = factor.solve(Eigen::Map<const Right>(rhs + k * H));
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"QR/ma/32f/3x3", "eigen", Role::alternative, repeat<solve<float, 3, 3>>},
#ifndef BENCH_FEW
    {"QR/ma/32f/4x4", "eigen", Role::alternative, repeat<solve<float, 4, 4>>},
    {"QR/ma/32f/5x5", "eigen", Role::alternative, repeat<solve<float, 5, 5>>},
    {"QR/ma/32f/6x6", "eigen", Role::alternative, repeat<solve<float, 6, 6>>},
    {"QR/ma/32f/6x3", "eigen", Role::alternative, repeat<solve<float, 3, 6>>},
    {"QR/ma/64f/3x3", "eigen", Role::alternative, repeat<solve<double, 3, 3>>},
    {"QR/ma/64f/4x4", "eigen", Role::alternative, repeat<solve<double, 4, 4>>},
    {"QR/ma/64f/5x5", "eigen", Role::alternative, repeat<solve<double, 5, 5>>},
    {"QR/ma/64f/6x6", "eigen", Role::alternative, repeat<solve<double, 6, 6>>},
    {"QR/ma/64f/6x3", "eigen", Role::alternative, repeat<solve<double, 3, 6>>},
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
