// Exported functions: LUDecomp on arrays of matrices.
#include "zelmframe.h"
#include "zelmludecomp.h"

namespace zelm {
namespace {

struct Squares {
  template <class S, class I, class D> static Wrapping of(const S&, const I&, const D&, Size widthHeight, Count count) {
    return Wrapping(widthHeight) * widthHeight * count;
  }
};

} // namespace
} // namespace zelm

// clang-format off
//           exported function      arguments      type    order of tests, estimate, forks: unit strides, any    kernels: unit strides, any                          front
STRIDE_FIRST(zelmLUDecomp_ma_32f,    LUDECOMP_MA_S, float,  N_C_Z_S,   Squares, notBelow(1001), notBelow(1001), ownzelmLUDecomp_ma_32f,     ownzelmLUDecomp_ma_32f_S2,    ownOMP_zelmLUDecomp_ma_32f)
STRIDE_FIRST(zelmLUDecomp_ma_64f,    LUDECOMP_MA_S, double, N_C_Z_S,   Squares, notBelow(1001), notBelow(1001), ownzelmLUDecomp_ma_64f,     ownzelmLUDecomp_ma_64f_S2,    ownOMP_zelmLUDecomp_ma_64f)
STRIDE_FIRST(zelmLUDecomp_ma_32f_L,  LUDECOMP_MA_L, float,  N_C_Z_S_H, Squares, notBelow(1001), notBelow(1001), ownzelmLUDecomp_ma_32f_L,   ownzelmLUDecomp_ma_32f_LS2,   ownOMP_zelmLUDecomp_ma_32f_L)
STRIDE_FIRST(zelmLUDecomp_ma_64f_L,  LUDECOMP_MA_L, double, N_C_Z_S_H, Squares, notBelow(1001), notBelow(1001), ownzelmLUDecomp_ma_64f_L,   ownzelmLUDecomp_ma_64f_LS2,   ownOMP_zelmLUDecomp_ma_64f_L)

//            exported function      arguments      type    order of tests, estimate, forks     kernel                    front
ARRAY_POINTER(zelmLUDecomp_ma_32f_P, LUDECOMP_MA_P, float,  N_C_Z_S_H, Squares, notBelow(1001), ownzelmLUDecomp_ma_32f_P, ownOMP_zelmLUDecomp_ma_32f_P)
ARRAY_POINTER(zelmLUDecomp_ma_64f_P, LUDECOMP_MA_P, double, N_C_Z_S_H, Squares, notBelow(1001), ownzelmLUDecomp_ma_64f_P, ownOMP_zelmLUDecomp_ma_64f_P)
// clang-format on
