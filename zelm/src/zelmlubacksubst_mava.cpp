// Exported functions: LUBackSubst on an array of matrices and one of vectors.
#include "zelmframe.h"
#include "zelmlubacksubst.h"

namespace zelm {
namespace {

struct Systems {
  template <class A, class I, class B, class D>
  static Wrapping of(const A&, const I&, const B&, const D&, Size widthHeight, Count count) {
    return (Wrapping(widthHeight) + 2) * widthHeight * count;
  }
};

} // namespace
} // namespace zelm

// clang-format off
//           exported function           arguments           type    order      estimate forks: unit     any             kernels: unit strides          any                              front
STRIDE_FIRST(zelmLUBackSubst_mava_32f,   LUBACKSUBST_MAVA_S, float,  N_C_Z_S,   Systems, notBelow(1201), notBelow(1201), ownzelmLUBackSubst_mava_32f,   ownzelmLUBackSubst_mava_32f_S2,  ownOMP_zelmLUBackSubst_mava_32f)
STRIDE_FIRST(zelmLUBackSubst_mava_64f,   LUBACKSUBST_MAVA_S, double, N_C_Z_S,   Systems, notBelow(1201), notBelow(1201), ownzelmLUBackSubst_mava_64f,   ownzelmLUBackSubst_mava_64f_S2,  ownOMP_zelmLUBackSubst_mava_64f)
STRIDE_FIRST(zelmLUBackSubst_mava_32f_L, LUBACKSUBST_MAVA_L, float,  N_C_Z_S_H, Systems, notBelow(1201), notBelow(1201), ownzelmLUBackSubst_mava_32f_L, ownzelmLUBackSubst_mava_32f_LS2, ownOMP_zelmLUBackSubst_mava_32f_L)
STRIDE_FIRST(zelmLUBackSubst_mava_64f_L, LUBACKSUBST_MAVA_L, double, N_C_Z_S_H, Systems, notBelow(1201), notBelow(1201), ownzelmLUBackSubst_mava_64f_L, ownzelmLUBackSubst_mava_64f_LS2, ownOMP_zelmLUBackSubst_mava_64f_L)

//            exported function           arguments           type    order      estimate forks           kernel                         front
ARRAY_POINTER(zelmLUBackSubst_mava_32f_P, LUBACKSUBST_MAVA_P, float,  N_C_Z_S_H, Systems, notBelow(1201), ownzelmLUBackSubst_mava_32f_P, ownOMP_zelmLUBackSubst_mava_32f_P)
ARRAY_POINTER(zelmLUBackSubst_mava_64f_P, LUBACKSUBST_MAVA_P, double, N_C_Z_S_H, Systems, notBelow(1201), ownzelmLUBackSubst_mava_64f_P, ownOMP_zelmLUBackSubst_mava_64f_P)
// clang-format on
