// Transpositions of packed batches by GLM and by cglm, which loads 4 by 4 matrices as aligned: those of a batch are.
#include "alternative.h"

#include <cglm/cglm.h>
#include <glm/mat3x3.hpp>
#include <glm/mat4x4.hpp>
#include <glm/matrix.hpp>

#include <iterator>

namespace {

template <class M> void ofGlm(const bench::Block& b) {
  const M* src = bench::source<M>(b, 0);
  M* dst = bench::result<M>(b, 1);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    dst[k] = glm::transpose(src[k]);
}

// Its sources are not const.
void ofCglm3(const bench::Block& b) {
  auto* const src = bench::result<mat3>(b, 0);
  auto* const dst = bench::result<mat3>(b, 1);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    glm_mat3_transpose_to(src[k], dst[k]);
}
void ofCglm4(const bench::Block& b) {
  auto* const src = bench::result<mat4>(b, 0);
  auto* const dst = bench::result<mat4>(b, 1);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    glm_mat4_transpose_to(src[k], dst[k]);
}

using bench::repeat;
using bench::Role;

// clang-format off
const bench::Row rows[] = {
    {"Transpose/ma/32f/3", "glm",  Role::alternative, repeat<ofGlm<glm::mat3>>},
    {"Transpose/ma/32f/4", "glm",  Role::alternative, repeat<ofGlm<glm::mat4>>},
    {"Transpose/ma/64f/3", "glm",  Role::alternative, repeat<ofGlm<glm::dmat3>>},
    {"Transpose/ma/64f/4", "glm",  Role::alternative, repeat<ofGlm<glm::dmat4>>},
    {"Transpose/ma/32f/3", "cglm", Role::alternative, repeat<ofCglm3>},
    {"Transpose/ma/32f/4", "cglm", Role::alternative, repeat<ofCglm4>},
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
