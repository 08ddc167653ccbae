// Products of packed matrices by GLM. Its matrices are stored by columns: a product of rows is one of columns with the
// factors exchanged.
#include "alternative.h"

#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>
#include <glm/matrix.hpp>

#include <iterator>

namespace {

template <class M> void mama(const bench::Block& b) {
  const M* src1 = bench::source<M>(b, 0);
  const M* src2 = bench::source<M>(b, 1);
  M* dst = bench::result<M>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = src2[k] * src1[k];
}

template <class M> void mam(const bench::Block& b) {
  const M* src1 = bench::source<M>(b, 0);
  const M right = *bench::source<M>(b, 1);
  M* dst = bench::result<M>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = right * src1[k];
}

template <class M> void mma(const bench::Block& b) {
  const M left = *bench::source<M>(b, 0);
  const M* src2 = bench::source<M>(b, 1);
  M* dst = bench::result<M>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = src2[k] * left;
}

template <class M> void tam(const bench::Block& b) {
  const M* src1 = bench::source<M>(b, 0);
  const M right = *bench::source<M>(b, 1);
  M* dst = bench::result<M>(b, 2);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = right * glm::transpose(src1[k]);
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Mul/mama/32f/3", "glm", Role::alternative, repeat<mama<glm::mat3>>},
    {"Mul/mama/32f/4", "glm", Role::alternative, repeat<mama<glm::mat4>>},
    {"Mul/mam/32f/3",  "glm", Role::alternative, repeat<mam<glm::mat3>>},
    {"Mul/mam/32f/4",  "glm", Role::alternative, repeat<mam<glm::mat4>>},
    {"Mul/mma/32f/3",  "glm", Role::alternative, repeat<mma<glm::mat3>>},
    {"Mul/mma/32f/4",  "glm", Role::alternative, repeat<mma<glm::mat4>>},
    {"Mul/tam/32f/3",  "glm", Role::alternative, repeat<tam<glm::mat3>>},
    {"Mul/tam/32f/4",  "glm", Role::alternative, repeat<tam<glm::mat4>>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
