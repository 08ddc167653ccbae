// Single long vectors by BLAS.
#include "alternative.h"

#include <algorithm>
#include <iterator>

extern "C" {
float sdot_(const int* n, const float* x, const int* stepX, const float* y, const int* stepY);
double ddot_(const int* n, const double* x, const int* stepX, const double* y, const int* stepY);
float snrm2_(const int* n, const float* x, const int* stepX);
double dnrm2_(const int* n, const double* x, const int* stepX);
void saxpy_(const int* n, const float* scale, const float* x, const int* stepX, float* y, const int* stepY);
void daxpy_(const int* n, const double* scale, const double* x, const int* stepX, double* y, const int* stepY);
}

namespace {

constexpr int one = 1;

template <int N> void dot32(const bench::Block& b) {
  const int n = N;
  *bench::result<float>(b, 2) = sdot_(&n, bench::source<float>(b, 0), &one, bench::source<float>(b, 1), &one);
}
template <int N> void dot64(const bench::Block& b) {
  const int n = N;
  *bench::result<double>(b, 2) = ddot_(&n, bench::source<double>(b, 0), &one, bench::source<double>(b, 1), &one);
}
template <int N> void norm32(const bench::Block& b) {
  const int n = N;
  *bench::result<float>(b, 1) = snrm2_(&n, bench::source<float>(b, 0), &one);
}
template <int N> void norm64(const bench::Block& b) {
  const int n = N;
  *bench::result<double>(b, 1) = dnrm2_(&n, bench::source<double>(b, 0), &one);
}

// The sum goes where its second term was; a copy of that stands for what a caller has to do who keeps it.
template <int N> void scaledSum32(const bench::Block& b) {
  const int n = N;
  constexpr float scale = 1.25F;
  std::copy_n(bench::source<float>(b, 1), N, bench::result<float>(b, 2));
  saxpy_(&n, &scale, bench::source<float>(b, 0), &one, bench::result<float>(b, 2), &one);
}
template <int N> void scaledSum64(const bench::Block& b) {
  const int n = N;
  constexpr double scale = 1.25;
  std::copy_n(bench::source<double>(b, 1), N, bench::result<double>(b, 2));
  daxpy_(&n, &scale, bench::source<double>(b, 0), &one, bench::result<double>(b, 2), &one);
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"DotProduct/vv/32f/1000",   "blas", Role::alternative, repeat<dot32<1000>>},
    {"DotProduct/vv/64f/1000",   "blas", Role::alternative, repeat<dot64<1000>>},
    {"DotProduct/vv/32f/100000", "blas", Role::alternative, repeat<dot32<100000>>},
    {"DotProduct/vv/64f/100000", "blas", Role::alternative, repeat<dot64<100000>>},
    {"L2Norm/v/32f/1000",        "blas", Role::alternative, repeat<norm32<1000>>},
    {"L2Norm/v/64f/1000",        "blas", Role::alternative, repeat<norm64<1000>>},
    {"L2Norm/v/32f/100000",      "blas", Role::alternative, repeat<norm32<100000>>},
    {"L2Norm/v/64f/100000",      "blas", Role::alternative, repeat<norm64<100000>>},
    {"Saxpy/vv/32f/1000",        "blas", Role::alternative, repeat<scaledSum32<1000>>},
    {"Saxpy/vv/64f/1000",        "blas", Role::alternative, repeat<scaledSum64<1000>>},
    {"Saxpy/vv/32f/100000",      "blas", Role::alternative, repeat<scaledSum32<100000>>},
    {"Saxpy/vv/64f/100000",      "blas", Role::alternative, repeat<scaledSum64<100000>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
