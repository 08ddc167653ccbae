// Determinants and inverses of packed matrices by GLM. Its matrices are stored by columns: that transposes source and
// result alike.
#include "alternative.h"

#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>
#include <glm/matrix.hpp>

#include <iterator>

namespace {

template <class M> void determinants(const bench::Block& b) {
  const M* a = bench::source<M>(b, 0);
  float* dst = bench::result<float>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = glm::determinant(a[k]);
}

template <class M> void inverses(const bench::Block& b) {
  const M* a = bench::source<M>(b, 0);
  M* dst = bench::result<M>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = glm::inverse(a[k]);
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Det/ma/32f/3", "glm", Role::alternative, repeat<determinants<glm::mat3>>},
    {"Det/ma/32f/4", "glm", Role::alternative, repeat<determinants<glm::mat4>>},
    {"Invert/ma/32f/3", "glm", Role::alternative, repeat<inverses<glm::mat3>>},
    {"Invert/ma/32f/4", "glm", Role::alternative, repeat<inverses<glm::mat4>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
