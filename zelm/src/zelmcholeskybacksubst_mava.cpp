// Exported functions: solution of systems with a Cholesky factor each.
#include "zelmcholesky.h"
#include "zelmframe.h"

namespace zelm {
namespace {

// (widthHeight + 2) * widthHeight * count.
struct FactorEach {
  template <class M, class B, class X> static Wrapping of(const M&, const B&, const X&, Size side, Count count) {
    return (Wrapping(side) + 2) * side * count;
  }
};

} // namespace
} // namespace zelm

// clang-format off
// The limits follow no pattern: they are the members' own.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmCholeskyBackSubst_mava_32f,   CHOLESKY_SOLVE_MAVA_S, float,  N_C_Z_S,   FactorEach, notBelow(2051), notBelow(1701), ownzelmCholeskyBackSubst_mava_32f,   ownzelmCholeskyBackSubst_mava_32f_S2,  ownOMP_zelmCholeskyBackSubst_mava_32f)
STRIDE_FIRST(zelmCholeskyBackSubst_mava_64f,   CHOLESKY_SOLVE_MAVA_S, double, N_C_Z_S,   FactorEach, notBelow(1701), notBelow(1701), ownzelmCholeskyBackSubst_mava_64f,   ownzelmCholeskyBackSubst_mava_64f_S2,  ownOMP_zelmCholeskyBackSubst_mava_64f)
STRIDE_FIRST(zelmCholeskyBackSubst_mava_32f_L, CHOLESKY_SOLVE_MAVA_L, float,  N_C_Z_S_H, FactorEach, notBelow(1701), notBelow(1701), ownzelmCholeskyBackSubst_mava_32f_L, ownzelmCholeskyBackSubst_mava_32f_LS2, ownOMP_zelmCholeskyBackSubst_mava_32f_L)
STRIDE_FIRST(zelmCholeskyBackSubst_mava_64f_L, CHOLESKY_SOLVE_MAVA_L, double, N_C_Z_S_H, FactorEach, notBelow(1701), notBelow(1701), ownzelmCholeskyBackSubst_mava_64f_L, ownzelmCholeskyBackSubst_mava_64f_LS2, ownOMP_zelmCholeskyBackSubst_mava_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmCholeskyBackSubst_mava_32f_P, CHOLESKY_SOLVE_MAVA_P, float,  N_C_Z_S_H, FactorEach, notBelow(1701), ownzelmCholeskyBackSubst_mava_32f_P, ownOMP_zelmCholeskyBackSubst_mava_32f_P)
ARRAY_POINTER(zelmCholeskyBackSubst_mava_64f_P, CHOLESKY_SOLVE_MAVA_P, double, N_C_Z_S_H, FactorEach, notBelow(2051), ownzelmCholeskyBackSubst_mava_64f_P, ownOMP_zelmCholeskyBackSubst_mava_64f_P)
// clang-format on
