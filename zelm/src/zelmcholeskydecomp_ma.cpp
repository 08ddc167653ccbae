// Exported functions: Cholesky decomposition of an array of matrices.
#include "zelmcholesky.h"
#include "zelmframe.h"

namespace zelm {
namespace {

// widthHeight * widthHeight * count.
struct Squares {
  template <class S, class D> static Wrapping of(const S&, const D&, Size side, Count count) {
    return Wrapping(side) * side * count;
  }
};

} // namespace
} // namespace zelm

// clang-format off
// The limits follow no pattern: they are the members' own.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmCholeskyDecomp_ma_32f,   CHOLESKY_FACTOR_MA_S, float,  N_C_Z_S,   Squares, notBelow(7501), notBelow(7501), ownzelmCholeskyDecomp_ma_32f,   ownzelmCholeskyDecomp_ma_32f_S2,  ownOMP_zelmCholeskyDecomp_ma_32f)
STRIDE_FIRST(zelmCholeskyDecomp_ma_64f,   CHOLESKY_FACTOR_MA_S, double, N_C_Z_S,   Squares, notBelow(2001), notBelow(2001), ownzelmCholeskyDecomp_ma_64f,   ownzelmCholeskyDecomp_ma_64f_S2,  ownOMP_zelmCholeskyDecomp_ma_64f)
STRIDE_FIRST(zelmCholeskyDecomp_ma_32f_L, CHOLESKY_FACTOR_MA_L, float,  N_C_Z_S_H, Squares, notBelow(2001), notBelow(2001), ownzelmCholeskyDecomp_ma_32f_L, ownzelmCholeskyDecomp_ma_32f_LS2, ownOMP_zelmCholeskyDecomp_ma_32f_L)
STRIDE_FIRST(zelmCholeskyDecomp_ma_64f_L, CHOLESKY_FACTOR_MA_L, double, N_C_Z_S_H, Squares, notBelow(721),  notBelow(2001), ownzelmCholeskyDecomp_ma_64f_L, ownzelmCholeskyDecomp_ma_64f_LS2, ownOMP_zelmCholeskyDecomp_ma_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmCholeskyDecomp_ma_32f_P, CHOLESKY_FACTOR_MA_P, float,  N_C_Z_S_H, Squares, notBelow(2001), ownzelmCholeskyDecomp_ma_32f_P, ownOMP_zelmCholeskyDecomp_ma_32f_P)
ARRAY_POINTER(zelmCholeskyDecomp_ma_64f_P, CHOLESKY_FACTOR_MA_P, double, N_C_Z_S_H, Squares, notBelow(2001), ownzelmCholeskyDecomp_ma_64f_P, ownOMP_zelmCholeskyDecomp_ma_64f_P)
// clang-format on
