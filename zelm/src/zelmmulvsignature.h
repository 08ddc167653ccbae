// Matrix by vector, Gaxpy: argument lists, agreement of the sizes and work estimates, which are the elements that a
// call touches.
#pragma once

#include "zelmframe.h"

// clang-format off
#define MATRIX_VECTOR(W, Y, E, A, B, D)  ZELM_##A##_##Y(W, src1, const E), ZELM_SIZE(W, src1Width), ZELM_SIZE(W, src1Height), ZELM_##B##_##Y(W, src2, const E), ZELM_SIZE(W, src2Len), ZELM_##D##_##Y(W, dst, E)
#define MV(W, Y, E)    MATRIX_VECTOR(W, Y, E, M, V, V)
#define TV(W, Y, E)    MATRIX_VECTOR(W, Y, E, T, V, V)
#define MAV(W, Y, E)   MATRIX_VECTOR(W, Y, E, MA, V, VA), ZELM_COUNT(W)
#define TAV(W, Y, E)   MATRIX_VECTOR(W, Y, E, TA, V, VA), ZELM_COUNT(W)
#define MVA(W, Y, E)   MATRIX_VECTOR(W, Y, E, M, VA, VA), ZELM_COUNT(W)
#define TVA(W, Y, E)   MATRIX_VECTOR(W, Y, E, T, VA, VA), ZELM_COUNT(W)
#define MAVA(W, Y, E)  MATRIX_VECTOR(W, Y, E, MA, VA, VA), ZELM_COUNT(W)
#define TAVA(W, Y, E)  MATRIX_VECTOR(W, Y, E, TA, VA, VA), ZELM_COUNT(W)

#define GAXPY(W, Y, E, B, C, D)  ZELM_M_##Y(W, src1, const E), ZELM_SIZE(W, src1Width), ZELM_SIZE(W, src1Height), ZELM_##B##_##Y(W, src2, const E), ZELM_SIZE(W, src2Len), ZELM_##C##_##Y(W, src3, const E), ZELM_SIZE(W, src3Len), ZELM_##D##_##Y(W, dst, E)
#define GAXPY_MV(W, Y, E)    GAXPY(W, Y, E, V, V, V)
#define GAXPY_MVA(W, Y, E)   GAXPY(W, Y, E, VA, VA, VA), ZELM_COUNT(W)
#define GAXPY_MVAV(W, Y, E)  GAXPY(W, Y, E, VA, V, VA), ZELM_COUNT(W)
// clang-format on

namespace zelm {

struct MatrixByVector {
  template <class A, class B, class D, class... Batch>
  static bool agree(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const D&, const Batch&...) {
    return (isTransposed<A> ? src1Height : src1Width) == src2Len;
  }
};

template <class A> constexpr Wrapping resultLen(Size src1Width, Size src1Height) {
  return isTransposed<A> ? src1Width : src1Height;
}

// mva tva
struct SingleMatrix {
  template <class A, class B, class D>
  Wrapping operator()(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const D&, Count count) const {
    return Wrapping(src1Width) * src1Height + (Wrapping(src2Len) + resultLen<A>(src1Width, src1Height)) * count;
  }
};
// mav tav
struct SingleVector {
  template <class A, class B, class D>
  Wrapping operator()(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const D&, Count count) const {
    return Wrapping(src2Len) + (Wrapping(src1Width) * src1Height + resultLen<A>(src1Width, src1Height)) * count;
  }
};
// mava tava
struct NoSingle {
  template <class A, class B, class D>
  Wrapping operator()(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const D&, Count count) const {
    return (Wrapping(src1Width) * src1Height + src2Len + resultLen<A>(src1Width, src1Height)) * count;
  }
};

using N_Z_M_S_MV = N_Z_M_S<MatrixByVector>;
using N_Z_M_H_MV = N_Z_M_H<MatrixByVector>;
using N_C_Z_M_S_MV = N_C_Z_M_S<MatrixByVector>;
using N_C_Z_M_S_H_MV = N_C_Z_M_S_H<MatrixByVector>;

struct MatrixByVectorPlusVector {
  template <class A, class B, class C, class D, class... Batch>
  static bool agree(const A&, Size src1Width, Size src1Height, const B&, Size src2Len, const C&, Size src3Len, const D&,
                    const Batch&...) {
    return src1Width == src2Len && src1Height == src3Len;
  }
};

using N_Z_M_S_Gaxpy = N_Z_M_S<MatrixByVectorPlusVector>;
using N_Z_M_H_Gaxpy = N_Z_M_H<MatrixByVectorPlusVector>;
using N_C_Z_M_S_Gaxpy = N_C_Z_M_S<MatrixByVectorPlusVector>;
using N_C_Z_M_S_H_Gaxpy = N_C_Z_M_S_H<MatrixByVectorPlusVector>;

// Gaxpy mva. The matrix is not counted.
constexpr Wrapping twoVectorArrays(Size, Size, Size src2Len, Size src3Len, Count count) {
  return (Wrapping(2) * src3Len + src2Len) * count;
}
// Gaxpy mvav.
constexpr Wrapping singleAddend(Size, Size, Size src2Len, Size src3Len, Count count) {
  return (Wrapping(src2Len) + src3Len) * count + src3Len;
}

// A product and a sum for each element of the matrix.
constexpr double matrixTerms(Size src1Width, Size src1Height, Size, Count count) {
  return 2.0 * src1Width * src1Height * count;
}
ZELM_WORK(MVA) = matrixTerms;
ZELM_WORK(TVA) = matrixTerms;

// A matrix for each product has to come from beyond the first cache level.
constexpr double matrixEachTerms(Size src1Width, Size src1Height, Size, Count count) {
  return 3.3 * src1Width * src1Height * count;
}
ZELM_WORK(MAV) = matrixEachTerms;
ZELM_WORK(TAV) = matrixEachTerms;
ZELM_WORK(MAVA) = matrixEachTerms;
ZELM_WORK(TAVA) = matrixEachTerms;

constexpr double matrixTermsAndAddend(Size src1Width, Size src1Height, Size src2Len, Size src3Len, Count count) {
  return matrixTerms(src1Width, src1Height, src2Len, count) + 1.0 * src3Len * count;
}
ZELM_WORK(GAXPY_MVA) = matrixTermsAndAddend;
ZELM_WORK(GAXPY_MVAV) = matrixTermsAndAddend;

} // namespace zelm
