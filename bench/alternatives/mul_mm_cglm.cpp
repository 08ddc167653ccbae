// Products of packed matrices by cglm. Its matrices are stored by columns: a product of rows is one of columns with the
// factors exchanged. It loads 4 by 4 matrices as aligned, which those of a batch are.
#include "alternative.h"

#include <cglm/cglm.h>

#include <iterator>

namespace {

struct Of3 {
  struct Matrix {
    mat3 m;
  };
  static void multiply(Matrix& a, Matrix& b, Matrix& d) { glm_mat3_mul(a.m, b.m, d.m); }
  static void transpose(Matrix& a, Matrix& d) { glm_mat3_transpose_to(a.m, d.m); }
};

struct Of4 {
  struct Matrix {
    mat4 m;
  };
  static void multiply(Matrix& a, Matrix& b, Matrix& d) { glm_mat4_mul(a.m, b.m, d.m); }
  static void transpose(Matrix& a, Matrix& d) { glm_mat4_transpose_to(a.m, d.m); }
};

// Its sources are not const.
template <class Of> void mama(const bench::Block& b) {
  using Matrix = typename Of::Matrix;
  auto* const src1 = bench::result<Matrix>(b, 0);
  auto* const src2 = bench::result<Matrix>(b, 1);
  auto* const dst = bench::result<Matrix>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Of::multiply(src2[k], src1[k], dst[k]);
}

template <class Of> void mam(const bench::Block& b) {
  using Matrix = typename Of::Matrix;
  auto* const src1 = bench::result<Matrix>(b, 0);
  Matrix right = *bench::result<Matrix>(b, 1);
  auto* const dst = bench::result<Matrix>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Of::multiply(right, src1[k], dst[k]);
}

template <class Of> void mma(const bench::Block& b) {
  using Matrix = typename Of::Matrix;
  Matrix left = *bench::result<Matrix>(b, 0);
  auto* const src2 = bench::result<Matrix>(b, 1);
  auto* const dst = bench::result<Matrix>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Of::multiply(src2[k], left, dst[k]);
}

template <class Of> void tam(const bench::Block& b) {
  using Matrix = typename Of::Matrix;
  auto* const src1 = bench::result<Matrix>(b, 0);
  Matrix right = *bench::result<Matrix>(b, 1);
  auto* const dst = bench::result<Matrix>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    Matrix turned;
    Of::transpose(src1[k], turned);
    Of::multiply(right, turned, dst[k]);
  }
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Mul/mama/32f/3", "cglm", Role::alternative, repeat<mama<Of3>>},
    {"Mul/mama/32f/4", "cglm", Role::alternative, repeat<mama<Of4>>},
    {"Mul/mam/32f/3",  "cglm", Role::alternative, repeat<mam<Of3>>},
    {"Mul/mam/32f/4",  "cglm", Role::alternative, repeat<mam<Of4>>},
    {"Mul/mma/32f/3",  "cglm", Role::alternative, repeat<mma<Of3>>},
    {"Mul/mma/32f/4",  "cglm", Role::alternative, repeat<mma<Of4>>},
    {"Mul/tam/32f/3",  "cglm", Role::alternative, repeat<tam<Of3>>},
    {"Mul/tam/32f/4",  "cglm", Role::alternative, repeat<tam<Of4>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
