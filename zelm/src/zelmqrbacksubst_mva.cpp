// Exported functions: solution of systems with one QR-decomposed matrix.
#include "zelmframe.h"
#include "zelmqr.h"

namespace zelm {
namespace {

// width * height + (width + height) * count.
struct OneMatrix {
  template <class M, class W, class B, class X>
  static Wrapping of(const M&, const W&, const B&, const X&, Size width, Size height, Count count) {
    return Wrapping(width) * height + (Wrapping(width) + height) * count;
  }
};

} // namespace
} // namespace zelm

// clang-format off
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmQRBackSubst_mva_32f,   QR_SOLVE_MVA_S, float,  N_C_Z_S_Shape,   OneMatrix, notBelow(2801), notBelow(2801), ownzelmQRBackSubst_mva_32f,   ownzelmQRBackSubst_mva_32f_S2,  ownOMP_zelmQRBackSubst_mva_32f)
STRIDE_FIRST(zelmQRBackSubst_mva_64f,   QR_SOLVE_MVA_S, double, N_C_Z_S_Shape,   OneMatrix, notBelow(2801), notBelow(2801), ownzelmQRBackSubst_mva_64f,   ownzelmQRBackSubst_mva_64f_S2,  ownOMP_zelmQRBackSubst_mva_64f)
STRIDE_FIRST(zelmQRBackSubst_mva_32f_L, QR_SOLVE_MVA_L, float,  N_C_Z_S_H_Shape, OneMatrix, notBelow(1801), notBelow(1801), ownzelmQRBackSubst_mva_32f_L, ownzelmQRBackSubst_mva_32f_LS2, ownOMP_zelmQRBackSubst_mva_32f_L)
STRIDE_FIRST(zelmQRBackSubst_mva_64f_L, QR_SOLVE_MVA_L, double, N_C_Z_S_H_Shape, OneMatrix, notBelow(1801), notBelow(1801), ownzelmQRBackSubst_mva_64f_L, ownzelmQRBackSubst_mva_64f_LS2, ownOMP_zelmQRBackSubst_mva_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmQRBackSubst_mva_32f_P, QR_SOLVE_MVA_P, float,  N_C_Z_S_H_Shape, OneMatrix, notBelow(1801), ownzelmQRBackSubst_mva_32f_P, ownOMP_zelmQRBackSubst_mva_32f_P)
ARRAY_POINTER(zelmQRBackSubst_mva_64f_P, QR_SOLVE_MVA_P, double, N_C_Z_S_H_Shape, OneMatrix, notBelow(1801), ownzelmQRBackSubst_mva_64f_P, ownOMP_zelmQRBackSubst_mva_64f_P)
// clang-format on
