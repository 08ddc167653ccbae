// Products of packed matrices and vectors by GLM and cglm, sizes 3 and 4. Both hold matrices by columns, so a row-major
// matrix is the transposition of theirs.
#include "alternative.h"

#include <cglm/cglm.h>
#include <glm/glm.hpp>

#include <iterator>

namespace {

template <int N> using Matrix = glm::mat<N, N, float, glm::defaultp>;
template <int N> using Vector = glm::vec<N, float, glm::defaultp>;

template <int N> const Matrix<N>* matrices(const bench::Block& b) {
  return reinterpret_cast<const Matrix<N>*>(b.at[0]);
}
template <int N> const Vector<N>* vectors(const bench::Block& b) {
  return reinterpret_cast<const Vector<N>*>(b.at[1]);
}
template <int N> Vector<N>* results(const bench::Block& b) {
  return reinterpret_cast<Vector<N>*>(b.at[2]);
}

template <int N> void glmMava(const bench::Block& b) {
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    results<N>(b)[k] = vectors<N>(b)[k] * matrices<N>(b)[k];
}
template <int N> void glmMav(const bench::Block& b) {
  const Vector<N> x = *vectors<N>(b);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    results<N>(b)[k] = x * matrices<N>(b)[k];
}
template <int N> void glmMva(const bench::Block& b) {
  const Matrix<N> m = glm::transpose(*matrices<N>(b));
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    results<N>(b)[k] = m * vectors<N>(b)[k];
}
template <int N> void glmTva(const bench::Block& b) {
  const Matrix<N> m = *matrices<N>(b);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    results<N>(b)[k] = m * vectors<N>(b)[k];
}

// cglm takes its operands without const.
struct Three {
  using M = mat3;
  using V = vec3;
  static void transpose(M m, M to) { glm_mat3_transpose_to(m, to); }
  static void copy(M m, M to) { glm_mat3_copy(m, to); }
  static void multiply(M m, V x, V y) { glm_mat3_mulv(m, x, y); }
};
struct Four {
  using M = mat4;
  using V = vec4;
  static void transpose(M m, M to) { glm_mat4_transpose_to(m, to); }
  static void copy(M m, M to) { glm_mat4_copy(m, to); }
  static void multiply(M m, V x, V y) { glm_mat4_mulv(m, x, y); }
};

template <class S> void cglmMava(const bench::Block& b) {
  auto* m = static_cast<typename S::M*>(b.at[0]);
  auto* x = static_cast<typename S::V*>(b.at[1]);
  auto* y = static_cast<typename S::V*>(b.at[2]);
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    typename S::M columns;
    S::transpose(m[k], columns);
    S::multiply(columns, x[k], y[k]);
  }
}
template <class S> void cglmMav(const bench::Block& b) {
  auto* m = static_cast<typename S::M*>(b.at[0]);
  auto* x = static_cast<typename S::V*>(b.at[1]);
  auto* y = static_cast<typename S::V*>(b.at[2]);
  for (std::ptrdiff_t k = 0; k < b.count; ++k) {
    typename S::M columns;
    S::transpose(m[k], columns);
    S::multiply(columns, x[0], y[k]);
  }
}
template <class S, bool Transposed> void cglmSingle(const bench::Block& b) {
  typename S::M m;
  if (Transposed)
    S::copy(*static_cast<typename S::M*>(b.at[0]), m);
  else
    S::transpose(*static_cast<typename S::M*>(b.at[0]), m);
  auto* x = static_cast<typename S::V*>(b.at[1]);
  auto* y = static_cast<typename S::V*>(b.at[2]);
  for (std::ptrdiff_t k = 0; k < b.count; ++k)
    S::multiply(m, x[k], y[k]);
}

using bench::repeat;
using bench::Role;

const bench::Row rows[] = {
    {"Mul/mava/32f/3", "glm", Role::alternative, repeat<glmMava<3>>},
    {"Mul/mava/32f/4", "glm", Role::alternative, repeat<glmMava<4>>},
    {"Mul/mav/32f/3", "glm", Role::alternative, repeat<glmMav<3>>},
    {"Mul/mav/32f/4", "glm", Role::alternative, repeat<glmMav<4>>},
    {"Mul/mva/32f/3", "glm", Role::alternative, repeat<glmMva<3>>},
    {"Mul/mva/32f/4", "glm", Role::alternative, repeat<glmMva<4>>},
    {"Mul/tva/32f/3", "glm", Role::alternative, repeat<glmTva<3>>},
    {"Mul/tva/32f/4", "glm", Role::alternative, repeat<glmTva<4>>},
    {"Mul/mava/32f/3", "cglm", Role::alternative, repeat<cglmMava<Three>>},
    {"Mul/mava/32f/4", "cglm", Role::alternative, repeat<cglmMava<Four>>},
    {"Mul/mav/32f/3", "cglm", Role::alternative, repeat<cglmMav<Three>>},
    {"Mul/mav/32f/4", "cglm", Role::alternative, repeat<cglmMav<Four>>},
    {"Mul/mva/32f/3", "cglm", Role::alternative, repeat<cglmSingle<Three, false>>},
    {"Mul/mva/32f/4", "cglm", Role::alternative, repeat<cglmSingle<Four, false>>},
    {"Mul/tva/32f/3", "cglm", Role::alternative, repeat<cglmSingle<Three, true>>},
    {"Mul/tva/32f/4", "cglm", Role::alternative, repeat<cglmSingle<Four, true>>},
};

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
