// Determinants, inverses, traces and norms of packed matrices by Eigen on fixed sizes.
#include "alternative.h"

#include <Eigen/LU>

#include <iterator>

namespace {

template <class T, int N> using Matrix = Eigen::Matrix<T, N, N, Eigen::RowMajor>;

template <class T, int N, class F> void each(const bench::Block& b, F of) {
  const T* a = bench::source<T>(b, 0);
  T* dst = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = of(Eigen::Map<const Matrix<T, N>>(a + k * N * N));
}

template <class T, int N> void determinants(const bench::Block& b) {
  each<T, N>(b, [](const auto& a) { return a.determinant(); });
}
template <class T, int N> void traces(const bench::Block& b) {
  each<T, N>(b, [](const auto& a) { return a.trace(); });
}
template <class T, int N> void norms(const bench::Block& b) {
  each<T, N>(b, [](const auto& a) { return a.norm(); });
}
template <class T, int N> void inverses(const bench::Block& b) {
  const T* a = bench::source<T>(b, 0);
  T* dst = bench::result<T>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Eigen::Map<Matrix<T, N>>(dst + k * N * N) = Eigen::Map<const Matrix<T, N>>(a + k * N * N).inverse();
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Det/ma/32f/3", "eigen", Role::alternative, repeat<determinants<float, 3>>},
#ifndef BENCH_FEW
    {"Det/ma/32f/4", "eigen", Role::alternative, repeat<determinants<float, 4>>},
    {"Det/ma/32f/5", "eigen", Role::alternative, repeat<determinants<float, 5>>},
    {"Det/ma/32f/6", "eigen", Role::alternative, repeat<determinants<float, 6>>},
    {"Det/ma/64f/3", "eigen", Role::alternative, repeat<determinants<double, 3>>},
    {"Det/ma/64f/4", "eigen", Role::alternative, repeat<determinants<double, 4>>},
    {"Det/ma/64f/5", "eigen", Role::alternative, repeat<determinants<double, 5>>},
    {"Det/ma/64f/6", "eigen", Role::alternative, repeat<determinants<double, 6>>},
    {"Invert/ma/32f/3", "eigen", Role::alternative, repeat<inverses<float, 3>>},
    {"Invert/ma/32f/4", "eigen", Role::alternative, repeat<inverses<float, 4>>},
    {"Invert/ma/32f/5", "eigen", Role::alternative, repeat<inverses<float, 5>>},
    {"Invert/ma/32f/6", "eigen", Role::alternative, repeat<inverses<float, 6>>},
    {"Invert/ma/64f/3", "eigen", Role::alternative, repeat<inverses<double, 3>>},
    {"Invert/ma/64f/4", "eigen", Role::alternative, repeat<inverses<double, 4>>},
    {"Invert/ma/64f/5", "eigen", Role::alternative, repeat<inverses<double, 5>>},
    {"Invert/ma/64f/6", "eigen", Role::alternative, repeat<inverses<double, 6>>},
    {"Trace/ma/32f/3", "eigen", Role::alternative, repeat<traces<float, 3>>},
    {"Trace/ma/32f/4", "eigen", Role::alternative, repeat<traces<float, 4>>},
    {"Trace/ma/32f/5", "eigen", Role::alternative, repeat<traces<float, 5>>},
    {"Trace/ma/32f/6", "eigen", Role::alternative, repeat<traces<float, 6>>},
    {"Trace/ma/64f/3", "eigen", Role::alternative, repeat<traces<double, 3>>},
    {"Trace/ma/64f/4", "eigen", Role::alternative, repeat<traces<double, 4>>},
    {"Trace/ma/64f/5", "eigen", Role::alternative, repeat<traces<double, 5>>},
    {"Trace/ma/64f/6", "eigen", Role::alternative, repeat<traces<double, 6>>},
    {"FrobNorm/ma/32f/3", "eigen", Role::alternative, repeat<norms<float, 3>>},
    {"FrobNorm/ma/32f/4", "eigen", Role::alternative, repeat<norms<float, 4>>},
    {"FrobNorm/ma/32f/5", "eigen", Role::alternative, repeat<norms<float, 5>>},
    {"FrobNorm/ma/32f/6", "eigen", Role::alternative, repeat<norms<float, 6>>},
    {"FrobNorm/ma/64f/3", "eigen", Role::alternative, repeat<norms<double, 3>>},
    {"FrobNorm/ma/64f/4", "eigen", Role::alternative, repeat<norms<double, 4>>},
    {"FrobNorm/ma/64f/5", "eigen", Role::alternative, repeat<norms<double, 5>>},
    {"FrobNorm/ma/64f/6", "eigen", Role::alternative, repeat<norms<double, 6>>},
#endif
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
