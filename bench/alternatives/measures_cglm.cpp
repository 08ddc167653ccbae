// Determinants and inverses of packed matrices by cglm. Its matrices are stored by columns: that transposes source and
// result alike. It loads 4 by 4 matrices as aligned, which those of a batch are.
#include "alternative.h"

#include <cglm/cglm.h>

#include <iterator>

namespace {

struct Of3 {
  struct Matrix {
    mat3 m;
  };
  static float determinant(Matrix& a) { return glm_mat3_det(a.m); }
  static void invert(Matrix& a, Matrix& d) { glm_mat3_inv(a.m, d.m); }
};

struct Of4 {
  struct Matrix {
    mat4 m;
  };
  static float determinant(Matrix& a) { return glm_mat4_det(a.m); }
  static void invert(Matrix& a, Matrix& d) { glm_mat4_inv(a.m, d.m); }
};

// Its sources are not const.
template <class Of> void determinants(const bench::Block& b) {
  auto* const a = bench::result<typename Of::Matrix>(b, 0);
  auto* const dst = bench::result<float>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = Of::determinant(a[k]);
}

template <class Of> void inverses(const bench::Block& b) {
  auto* const a = bench::result<typename Of::Matrix>(b, 0);
  auto* const dst = bench::result<typename Of::Matrix>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    Of::invert(a[k], dst[k]);
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Det/ma/32f/3", "cglm", Role::alternative, repeat<determinants<Of3>>},
    {"Det/ma/32f/4", "cglm", Role::alternative, repeat<determinants<Of4>>},
    {"Invert/ma/32f/3", "cglm", Role::alternative, repeat<inverses<Of3>>},
    {"Invert/ma/32f/4", "cglm", Role::alternative, repeat<inverses<Of4>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
