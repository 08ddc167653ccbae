// Exported functions: QR decomposition of an array of matrices.
#include "zelmframe.h"
#include "zelmqr.h"

namespace zelm {
namespace {

// width * height * 2 * count.
struct Twice {
  template <class S, class B, class D>
  static Wrapping of(const S&, const B&, const D&, Size width, Size height, Count count) {
    return Wrapping(width) * height * 2 * count;
  }
};

} // namespace
} // namespace zelm

// clang-format off
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmQRDecomp_ma_32f,   QR_FACTOR_MA_S, float,  N_C_Z_S_Shape,   Twice, notBelow(2801), notBelow(2801), ownzelmQRDecomp_ma_32f,   ownzelmQRDecomp_ma_32f_S2,  ownOMP_zelmQRDecomp_ma_32f)
STRIDE_FIRST(zelmQRDecomp_ma_64f,   QR_FACTOR_MA_S, double, N_C_Z_S_Shape,   Twice, notBelow(2801), notBelow(2801), ownzelmQRDecomp_ma_64f,   ownzelmQRDecomp_ma_64f_S2,  ownOMP_zelmQRDecomp_ma_64f)
STRIDE_FIRST(zelmQRDecomp_ma_32f_L, QR_FACTOR_MA_L, float,  N_C_Z_S_H_Shape, Twice, notBelow(1801), notBelow(1801), ownzelmQRDecomp_ma_32f_L, ownzelmQRDecomp_ma_32f_LS2, ownOMP_zelmQRDecomp_ma_32f_L)
STRIDE_FIRST(zelmQRDecomp_ma_64f_L, QR_FACTOR_MA_L, double, N_C_Z_S_H_Shape, Twice, notBelow(1801), notBelow(1801), ownzelmQRDecomp_ma_64f_L, ownzelmQRDecomp_ma_64f_LS2, ownOMP_zelmQRDecomp_ma_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmQRDecomp_ma_32f_P, QR_FACTOR_MA_P, float,  N_C_Z_S_H_Shape, Twice, notBelow(1801), ownzelmQRDecomp_ma_32f_P, ownOMP_zelmQRDecomp_ma_32f_P)
ARRAY_POINTER(zelmQRDecomp_ma_64f_P, QR_FACTOR_MA_P, double, N_C_Z_S_H_Shape, Twice, notBelow(1801), ownzelmQRDecomp_ma_64f_P, ownOMP_zelmQRDecomp_ma_64f_P)
// clang-format on
