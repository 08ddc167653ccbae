// Exported functions: LUBackSubst on one matrix and an array of vectors.
#include "zelmframe.h"
#include "zelmlubacksubst.h"

namespace zelm {
namespace {

struct VectorsAndMatrix {
  template <class A, class I, class B, class D>
  static Wrapping of(const A&, const I&, const B&, const D&, Size widthHeight, Count count) {
    return (Wrapping(2) * count + widthHeight) * widthHeight;
  }
};

} // namespace
} // namespace zelm

// clang-format off
//           exported function          arguments          type    order      estimate          forks: unit    any            kernels: unit strides         any                             front
STRIDE_FIRST(zelmLUBackSubst_mva_32f,   LUBACKSUBST_MVA_S, float,  N_C_Z_S,   VectorsAndMatrix, notBelow(701), notBelow(701), ownzelmLUBackSubst_mva_32f,   ownzelmLUBackSubst_mva_32f_S2,  ownOMP_zelmLUBackSubst_mva_32f)
STRIDE_FIRST(zelmLUBackSubst_mva_64f,   LUBACKSUBST_MVA_S, double, N_C_Z_S,   VectorsAndMatrix, notBelow(701), notBelow(701), ownzelmLUBackSubst_mva_64f,   ownzelmLUBackSubst_mva_64f_S2,  ownOMP_zelmLUBackSubst_mva_64f)
STRIDE_FIRST(zelmLUBackSubst_mva_32f_L, LUBACKSUBST_MVA_L, float,  N_C_Z_S_H, VectorsAndMatrix, notBelow(701), notBelow(701), ownzelmLUBackSubst_mva_32f_L, ownzelmLUBackSubst_mva_32f_LS2, ownOMP_zelmLUBackSubst_mva_32f_L)
STRIDE_FIRST(zelmLUBackSubst_mva_64f_L, LUBACKSUBST_MVA_L, double, N_C_Z_S_H, VectorsAndMatrix, notBelow(701), notBelow(701), ownzelmLUBackSubst_mva_64f_L, ownzelmLUBackSubst_mva_64f_LS2, ownOMP_zelmLUBackSubst_mva_64f_L)

//            exported function          arguments          type    order      estimate          forks          kernel                        front
ARRAY_POINTER(zelmLUBackSubst_mva_32f_P, LUBACKSUBST_MVA_P, float,  N_C_Z_S_H, VectorsAndMatrix, notBelow(701), ownzelmLUBackSubst_mva_32f_P, ownOMP_zelmLUBackSubst_mva_32f_P)
ARRAY_POINTER(zelmLUBackSubst_mva_64f_P, LUBACKSUBST_MVA_P, double, N_C_Z_S_H, VectorsAndMatrix, notBelow(701), ownzelmLUBackSubst_mva_64f_P, ownOMP_zelmLUBackSubst_mva_64f_P)
// clang-format on
