// Mul, matrix by matrix: the argument lists, the agreement of the sizes and the work estimates.
//
// The sizes of an operand describe it as it is stored; dst has none of its own.
#pragma once

#include "zelmframe.h"

// clang-format off
#define PRODUCT(V, T, A, B, D)        V##_##A(src1, const T), V##_SIZE(src1Width), V##_SIZE(src1Height), V##_##B(src2, const T), V##_SIZE(src2Width), V##_SIZE(src2Height), V##_##D(dst, T)
#define PRODUCT_BATCH(V, T, A, B, D)  PRODUCT(V, T, A, B, D), V##_COUNT

#define MUL_MM_S(V, T)    PRODUCT(V, T, M_S, M_S, M_S)
#define MUL_MT_S(V, T)    PRODUCT(V, T, M_S, T_S, M_S)
#define MUL_TM_S(V, T)    PRODUCT(V, T, T_S, M_S, M_S)
#define MUL_TT_S(V, T)    PRODUCT(V, T, T_S, T_S, M_S)
#define MUL_MM_P(V, T)    PRODUCT(V, T, M_P, M_P, M_P)
#define MUL_MT_P(V, T)    PRODUCT(V, T, M_P, T_P, M_P)
#define MUL_TM_P(V, T)    PRODUCT(V, T, T_P, M_P, M_P)
#define MUL_TT_P(V, T)    PRODUCT(V, T, T_P, T_P, M_P)

#define MUL_MAM_S(V, T)   PRODUCT_BATCH(V, T, MA_S, M_S, MA_S)
#define MUL_MAT_S(V, T)   PRODUCT_BATCH(V, T, MA_S, T_S, MA_S)
#define MUL_TAM_S(V, T)   PRODUCT_BATCH(V, T, TA_S, M_S, MA_S)
#define MUL_TAT_S(V, T)   PRODUCT_BATCH(V, T, TA_S, T_S, MA_S)
#define MUL_MMA_S(V, T)   PRODUCT_BATCH(V, T, M_S, MA_S, MA_S)
#define MUL_MTA_S(V, T)   PRODUCT_BATCH(V, T, M_S, TA_S, MA_S)
#define MUL_TMA_S(V, T)   PRODUCT_BATCH(V, T, T_S, MA_S, MA_S)
#define MUL_TTA_S(V, T)   PRODUCT_BATCH(V, T, T_S, TA_S, MA_S)
#define MUL_MAMA_S(V, T)  PRODUCT_BATCH(V, T, MA_S, MA_S, MA_S)
#define MUL_MATA_S(V, T)  PRODUCT_BATCH(V, T, MA_S, TA_S, MA_S)
#define MUL_TAMA_S(V, T)  PRODUCT_BATCH(V, T, TA_S, MA_S, MA_S)
#define MUL_TATA_S(V, T)  PRODUCT_BATCH(V, T, TA_S, TA_S, MA_S)

#define MUL_MAM_L(V, T)   PRODUCT_BATCH(V, T, MA_L, M_S, MA_L)
#define MUL_MAT_L(V, T)   PRODUCT_BATCH(V, T, MA_L, T_S, MA_L)
#define MUL_TAM_L(V, T)   PRODUCT_BATCH(V, T, TA_L, M_S, MA_L)
#define MUL_TAT_L(V, T)   PRODUCT_BATCH(V, T, TA_L, T_S, MA_L)
#define MUL_MMA_L(V, T)   PRODUCT_BATCH(V, T, M_S, MA_L, MA_L)
#define MUL_MTA_L(V, T)   PRODUCT_BATCH(V, T, M_S, TA_L, MA_L)
#define MUL_TMA_L(V, T)   PRODUCT_BATCH(V, T, T_S, MA_L, MA_L)
#define MUL_TTA_L(V, T)   PRODUCT_BATCH(V, T, T_S, TA_L, MA_L)
#define MUL_MAMA_L(V, T)  PRODUCT_BATCH(V, T, MA_L, MA_L, MA_L)
#define MUL_MATA_L(V, T)  PRODUCT_BATCH(V, T, MA_L, TA_L, MA_L)
#define MUL_TAMA_L(V, T)  PRODUCT_BATCH(V, T, TA_L, MA_L, MA_L)
#define MUL_TATA_L(V, T)  PRODUCT_BATCH(V, T, TA_L, TA_L, MA_L)

#define MUL_MAM_P(V, T)   PRODUCT_BATCH(V, T, MA_P, M_P, MA_P)
#define MUL_MAT_P(V, T)   PRODUCT_BATCH(V, T, MA_P, T_P, MA_P)
#define MUL_TAM_P(V, T)   PRODUCT_BATCH(V, T, TA_P, M_P, MA_P)
#define MUL_TAT_P(V, T)   PRODUCT_BATCH(V, T, TA_P, T_P, MA_P)
#define MUL_MMA_P(V, T)   PRODUCT_BATCH(V, T, M_P, MA_P, MA_P)
#define MUL_MTA_P(V, T)   PRODUCT_BATCH(V, T, M_P, TA_P, MA_P)
#define MUL_TMA_P(V, T)   PRODUCT_BATCH(V, T, T_P, MA_P, MA_P)
#define MUL_TTA_P(V, T)   PRODUCT_BATCH(V, T, T_P, TA_P, MA_P)
#define MUL_MAMA_P(V, T)  PRODUCT_BATCH(V, T, MA_P, MA_P, MA_P)
#define MUL_MATA_P(V, T)  PRODUCT_BATCH(V, T, MA_P, TA_P, MA_P)
#define MUL_TAMA_P(V, T)  PRODUCT_BATCH(V, T, TA_P, MA_P, MA_P)
#define MUL_TATA_P(V, T)  PRODUCT_BATCH(V, T, TA_P, TA_P, MA_P)
// clang-format on

namespace zelm {

// What a stored operand of width by height is to the product.
template <class Operand> constexpr int32_t rowsOf(int32_t width, int32_t height) {
  return isTransposed<Operand> ? width : height;
}
template <class Operand> constexpr int32_t columnsOf(int32_t width, int32_t height) {
  return isTransposed<Operand> ? height : width;
}

// The columns of the first factor are as many as the rows of the second.
struct Factors {
  template <class A, class B, class... Rest>
  static bool agree(const A&, Size width1, Size height1, const B&, Size width2, Size height2, const Rest&...) {
    return columnsOf<A>(width1, height1) == rowsOf<B>(width2, height2);
  }
};
using N_Z_M_S_Mul = N_Z_M_S<Factors>;
using N_Z_M_H_Mul = N_Z_M_H<Factors>;
using N_C_Z_M_S_Mul = N_C_Z_M_S<Factors>;
using N_C_Z_M_S_H_Mul = N_C_Z_M_S_H<Factors>;

// The elements that a call touches: arrays count times, single operands once.
struct Touched {
  template <class A, class B, class D>
  static Wrapping of(const A&, Size width1, Size height1, const B&, Size width2, Size height2, const D&, Count count) {
    const Wrapping first = Wrapping(width1) * height1;
    const Wrapping second = Wrapping(width2) * height2;
    const Wrapping result = Wrapping(rowsOf<A>(width1, height1)) * Wrapping(columnsOf<B>(width2, height2));
    if constexpr (!B::isArray)
      return second + (first + result) * count;
    else if constexpr (!A::isArray)
      return first + (second + result) * count;
    else
      return (first + second + result) * count;
  }
};

} // namespace zelm
