// Mul, matrix by matrix: the argument lists, the agreement of the sizes and the work estimates.
//
// The sizes of an operand describe it as it is stored; dst has none of its own.
#pragma once

#include "zelmframe.h"

// clang-format off
#define PRODUCT(W, Y, E, A, B, D)  ZELM_##A##_##Y(W, src1, const E), ZELM_SIZE(W, src1Width), ZELM_SIZE(W, src1Height), ZELM_##B##_##Y(W, src2, const E), ZELM_SIZE(W, src2Width), ZELM_SIZE(W, src2Height), ZELM_##D##_##Y(W, dst, E)
#define MUL_MM(W, Y, E)   PRODUCT(W, Y, E, M, M, M)
#define MUL_MT(W, Y, E)   PRODUCT(W, Y, E, M, T, M)
#define MUL_TM(W, Y, E)   PRODUCT(W, Y, E, T, M, M)
#define MUL_TT(W, Y, E)   PRODUCT(W, Y, E, T, T, M)
#define MUL_MAM(W, Y, E)    PRODUCT(W, Y, E, MA, M, MA), ZELM_COUNT(W)
#define MUL_MAT(W, Y, E)    PRODUCT(W, Y, E, MA, T, MA), ZELM_COUNT(W)
#define MUL_TAM(W, Y, E)    PRODUCT(W, Y, E, TA, M, MA), ZELM_COUNT(W)
#define MUL_TAT(W, Y, E)    PRODUCT(W, Y, E, TA, T, MA), ZELM_COUNT(W)
#define MUL_MMA(W, Y, E)    PRODUCT(W, Y, E, M, MA, MA), ZELM_COUNT(W)
#define MUL_MTA(W, Y, E)    PRODUCT(W, Y, E, M, TA, MA), ZELM_COUNT(W)
#define MUL_TMA(W, Y, E)    PRODUCT(W, Y, E, T, MA, MA), ZELM_COUNT(W)
#define MUL_TTA(W, Y, E)    PRODUCT(W, Y, E, T, TA, MA), ZELM_COUNT(W)
#define MUL_MAMA(W, Y, E)   PRODUCT(W, Y, E, MA, MA, MA), ZELM_COUNT(W)
#define MUL_MATA(W, Y, E)   PRODUCT(W, Y, E, MA, TA, MA), ZELM_COUNT(W)
#define MUL_TAMA(W, Y, E)   PRODUCT(W, Y, E, TA, MA, MA), ZELM_COUNT(W)
#define MUL_TATA(W, Y, E)   PRODUCT(W, Y, E, TA, TA, MA), ZELM_COUNT(W)
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
  Wrapping operator()(const A&, Size width1, Size height1, const B&, Size width2, Size height2, const D&,
                      Count count) const {
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

// A product and a sum for each term.
struct Terms {
  static constexpr double scattered = 4;
  template <class A, class B, class D>
  double operator()(const A&, Size width1, Size height1, const B&, Size width2, Size height2, const D&,
                    Count count) const {
    return 2.0 * width1 * height1 * columnsOf<B>(width2, height2) * count;
  }
};
ZELM_WORK(MUL_MAM) = Terms{};
ZELM_WORK(MUL_MAT) = Terms{};
ZELM_WORK(MUL_TAM) = Terms{};
ZELM_WORK(MUL_TAT) = Terms{};
ZELM_WORK(MUL_MMA) = Terms{};
ZELM_WORK(MUL_MTA) = Terms{};
ZELM_WORK(MUL_TMA) = Terms{};
ZELM_WORK(MUL_TTA) = Terms{};
ZELM_WORK(MUL_MAMA) = Terms{};
ZELM_WORK(MUL_MATA) = Terms{};
ZELM_WORK(MUL_TAMA) = Terms{};
ZELM_WORK(MUL_TATA) = Terms{};

} // namespace zelm
