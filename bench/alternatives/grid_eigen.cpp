// The members of the grid by Eigen: a loop of fixed-size expressions on maps with the strides of the operands' layout.
#include "grid.h"

#include <Eigen/Cholesky>
#include <Eigen/LU>

#include <iterator>

namespace {

using bench::Block;
using bench::grid::Kind;
using bench::grid::Operand;

// Vectors are columns.
template <class T, int R, int C> using Rows = Eigen::Matrix<T, R, C, C == 1 ? Eigen::ColMajor : Eigen::RowMajor>;

const Operand& operand(const Block& block, int number) {
  return *static_cast<const Operand*>(block.at[number]);
}

template <Kind kind, class T> T* address(const Operand& x, std::ptrdiff_t k) {
  return reinterpret_cast<T*>(kind == Kind::list ? x.list[k] : x.first + k * x.stride0);
}

// Object k.
template <Kind kind, class T, int R, int C> auto object(const Operand& x, std::ptrdiff_t k) {
  T* const at = address<kind, T>(x, k);
  constexpr auto e = static_cast<std::ptrdiff_t>(sizeof(T));
  if constexpr (kind == Kind::apart && C == 1)
    return Eigen::Map<Rows<T, R, C>, 0, Eigen::InnerStride<>>(at, Eigen::InnerStride<>(x.stride2 / e));
  else if constexpr (kind == Kind::apart)
    return Eigen::Map<Rows<T, R, C>, 0, Eigen::Stride<Eigen::Dynamic, Eigen::Dynamic>>(
        at, Eigen::Stride<Eigen::Dynamic, Eigen::Dynamic>(x.stride1 / e, x.stride2 / e));
  else if constexpr (kind == Kind::padded && C != 1)
    return Eigen::Map<Rows<T, R, C>, 0, Eigen::OuterStride<>>(at, Eigen::OuterStride<>(x.stride1 / e));
  else if constexpr (kind == Kind::columns)
    return Eigen::Map<Eigen::Matrix<T, R, C>>(at);
  else
    return Eigen::Map<Rows<T, R, C>>(at);
}

// ---- members whose maps are what counts: compiled for each kind

template <Kind kind, class T, int R, int, int C> void add(const Block& block) {
  const Operand a = operand(block, 0), b = operand(block, 1), x = operand(block, 2);
  for (std::ptrdiff_t k = 0; k < block.count; ++k)
    object<kind, T, R, C>(x, k) = object<kind, T, R, C>(a, k) + object<kind, T, R, C>(b, k);
}

// R by N times N by C: matrices, and vectors where C is 1.
template <Kind kind, class T, int R, int N, int C> void multiply(const Block& block) {
  const Operand a = operand(block, 0), b = operand(block, 1), x = operand(block, 2);
  for (std::ptrdiff_t k = 0; k < block.count; ++k)
    object<kind, T, R, C>(x, k).noalias() = object<kind, T, R, N>(a, k) * object<kind, T, N, C>(b, k);
}
template <Kind kind, class T, int R, int N, int C> void multiplyBySingle(const Block& block) {
  const Operand a = operand(block, 0), x = operand(block, 2);
  const Rows<T, N, C> b = object<kind, T, N, C>(operand(block, 1), 0);
  for (std::ptrdiff_t k = 0; k < block.count; ++k)
    object<kind, T, R, C>(x, k).noalias() = object<kind, T, R, N>(a, k) * b;
}
template <Kind kind, class T, int R, int N, int C> void singleMultiplies(const Block& block) {
  const Operand b = operand(block, 1), x = operand(block, 2);
  const Rows<T, R, N> a = object<kind, T, R, N>(operand(block, 0), 0);
  for (std::ptrdiff_t k = 0; k < block.count; ++k)
    object<kind, T, R, C>(x, k).noalias() = a * object<kind, T, N, C>(b, k);
}

// ---- members that load an object, work on it and store what comes out: the kind is asked when they run

template <class T, int N> Rows<T, N, N> loadMatrix(const Operand& x, std::ptrdiff_t k) {
  const T* const at = address<Kind::list, T>(x, k);
  if (x.kind <= Kind::list)
    return Eigen::Map<const Rows<T, N, N>>(at);
  Rows<T, N, N> loaded;
  const std::ptrdiff_t row = x.stride1 / static_cast<std::ptrdiff_t>(sizeof(T));
  const std::ptrdiff_t element = x.stride2 / static_cast<std::ptrdiff_t>(sizeof(T));
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j)
      loaded(i, j) = at[i * row + j * element];
  return loaded;
}
template <class T, int N> void storeMatrix(const Operand& x, std::ptrdiff_t k, const Rows<T, N, N>& result) {
  T* const at = address<Kind::list, T>(x, k);
  if (x.kind <= Kind::list) {
    Eigen::Map<Rows<T, N, N>>{at} = result;
    return;
  }
  const std::ptrdiff_t row = x.stride1 / static_cast<std::ptrdiff_t>(sizeof(T));
  const std::ptrdiff_t element = x.stride2 / static_cast<std::ptrdiff_t>(sizeof(T));
  for (int i = 0; i < N; ++i)
    for (int j = 0; j < N; ++j)
      at[i * row + j * element] = result(i, j);
}
template <class T, int N> Rows<T, N, 1> loadVector(const Operand& x, std::ptrdiff_t k) {
  const T* const at = address<Kind::list, T>(x, k);
  const std::ptrdiff_t element = x.stride2 / static_cast<std::ptrdiff_t>(sizeof(T));
  Rows<T, N, 1> loaded;
  for (int i = 0; i < N; ++i)
    loaded(i) = at[i * element];
  return loaded;
}
template <class T, int N> void storeVector(const Operand& x, std::ptrdiff_t k, const Rows<T, N, 1>& result) {
  T* const at = address<Kind::list, T>(x, k);
  const std::ptrdiff_t element = x.stride2 / static_cast<std::ptrdiff_t>(sizeof(T));
  for (int i = 0; i < N; ++i)
    at[i * element] = result(i);
}

template <class T, int N> void lu(const Block& block) {
  const Operand a = operand(block, 0), b = operand(block, 1), x = operand(block, 2);
  for (std::ptrdiff_t k = 0; k < block.count; ++k)
    storeVector<T, N>(x, k, Eigen::PartialPivLU<Rows<T, N, N>>(loadMatrix<T, N>(a, k)).solve(loadVector<T, N>(b, k)));
}
template <class T, int N> void cholesky(const Block& block) {
  const Operand a = operand(block, 0), b = operand(block, 1), x = operand(block, 2);
  for (std::ptrdiff_t k = 0; k < block.count; ++k)
    storeVector<T, N>(x, k, Eigen::LLT<Rows<T, N, N>>(loadMatrix<T, N>(a, k)).solve(loadVector<T, N>(b, k)));
}
template <class T, int N> void det(const Block& block) {
  const Operand a = operand(block, 0);
  T* const values = address<Kind::list, T>(operand(block, 2), 0);
  for (std::ptrdiff_t k = 0; k < block.count; ++k)
    values[k] = loadMatrix<T, N>(a, k).determinant();
}
template <class T, int N> void invert(const Block& block) {
  const Operand a = operand(block, 0), x = operand(block, 2);
  for (std::ptrdiff_t k = 0; k < block.count; ++k)
    storeMatrix<T, N>(x, k, loadMatrix<T, N>(a, k).inverse());
}

using bench::repeat;
using bench::Role;

// clang-format off
#define ROW(member, type, shape, kind, ...) {member "/" type "/" shape "/" kind, "eigen", Role::alternative, repeat<__VA_ARGS__>}
#define SHAPE(member, type, T, pass, r, n, c, kind) \
  ROW(member, type, #r "x" #n "x" #c, #kind, pass<Kind::kind, T, r, n, c>)
#define KINDS(member, type, T, pass, r, n, c) \
  SHAPE(member, type, T, pass, r, n, c, rows), SHAPE(member, type, T, pass, r, n, c, list), \
  SHAPE(member, type, T, pass, r, n, c, padded), SHAPE(member, type, T, pass, r, n, c, columns), \
  SHAPE(member, type, T, pass, r, n, c, apart)
#define MATRICES(member, type, T, pass) \
  KINDS(member, type, T, pass, 2, 2, 2), KINDS(member, type, T, pass, 3, 3, 3), \
  KINDS(member, type, T, pass, 4, 4, 4), KINDS(member, type, T, pass, 6, 6, 6)
#define VECTORS(member, type, T, pass) \
  KINDS(member, type, T, pass, 2, 2, 1), KINDS(member, type, T, pass, 3, 3, 1), \
  KINDS(member, type, T, pass, 4, 4, 1), KINDS(member, type, T, pass, 6, 6, 1)
#define PACKED(member, type, T, pass, r, n, c) SHAPE(member, type, T, pass, r, n, c, rows)
#define RECTANGULAR_VECTORS(member, type, T, pass) \
  PACKED(member, type, T, pass, 4, 3, 1), PACKED(member, type, T, pass, 6, 3, 1), \
  PACKED(member, type, T, pass, 2, 3, 1), PACKED(member, type, T, pass, 3, 4, 1), \
  PACKED(member, type, T, pass, 3, 6, 1), PACKED(member, type, T, pass, 4, 6, 1)
#define RECTANGULAR(member, type, T, pass) \
  PACKED(member, type, T, pass, 2, 3, 2), PACKED(member, type, T, pass, 3, 3, 4), \
  PACKED(member, type, T, pass, 3, 4, 4), PACKED(member, type, T, pass, 4, 4, 3), \
  PACKED(member, type, T, pass, 3, 3, 6), PACKED(member, type, T, pass, 6, 3, 3), \
  PACKED(member, type, T, pass, 6, 6, 3), PACKED(member, type, T, pass, 6, 3, 6), \
  PACKED(member, type, T, pass, 2, 6, 6), PACKED(member, type, T, pass, 6, 6, 2), \
  PACKED(member, type, T, pass, 6, 2, 6), PACKED(member, type, T, pass, 4, 6, 4)
#define SIDE(member, type, T, pass, n) ROW(member, type, #n "x" #n "x" #n, "any", pass<T, n>)
#define SIDES(member, type, T, pass) \
  SIDE(member, type, T, pass, 2), SIDE(member, type, T, pass, 3), SIDE(member, type, T, pass, 4), SIDE(member, type, T, pass, 6)

#define PRODUCTS(type, T) \
  MATRICES("Add mama", type, T, add), \
  MATRICES("Mul mama", type, T, multiply), \
  RECTANGULAR("Mul mama", type, T, multiply), \
  VECTORS("Mul mava", type, T, multiply), \
  RECTANGULAR_VECTORS("Mul mava", type, T, multiply), \
  PACKED_SIDES("Mul mam", type, T, multiplyBySingle), \
  PACKED("Mul mva", type, T, singleMultiplies, 2, 2, 1), PACKED("Mul mva", type, T, singleMultiplies, 3, 3, 1), \
  PACKED("Mul mva", type, T, singleMultiplies, 4, 4, 1), PACKED("Mul mva", type, T, singleMultiplies, 6, 6, 1), \
  RECTANGULAR_VECTORS("Mul mva", type, T, singleMultiplies)
#define PACKED_SIDES(member, type, T, pass) \
  PACKED(member, type, T, pass, 2, 2, 2), PACKED(member, type, T, pass, 3, 3, 3), \
  PACKED(member, type, T, pass, 4, 4, 4), PACKED(member, type, T, pass, 6, 6, 6)

// The decompositions take most of the time to compile: of one type.
const bench::Row rows[] = {
    PRODUCTS("32f", float), PRODUCTS("64f", double),
    SIDES("LU", "32f", float, lu), SIDES("Cholesky", "32f", float, cholesky),
    SIDES("Det", "32f", float, det), SIDES("Invert", "32f", float, invert)
};
// clang-format on

} // namespace

BENCH_ALTERNATIVES {
  return {rows, std::size(rows)};
}
