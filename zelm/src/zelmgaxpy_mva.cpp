// Exported functions: Gaxpy on arrays of vectors.
#include "zelmmulv.h"

namespace zelm {
namespace {

// mva: (2 * src3Len + src2Len) * count. The matrix is not counted.
struct TwoVectorArrays {
  template <class A, class B, class C, class D>
  static Wrapping of(const A&, Size, Size, const B&, Size src2Len, const C&, Size src3Len, const D&, Count count) {
    return (Wrapping(2) * src3Len + src2Len) * count;
  }
};
// mvav: (src2Len + src3Len) * count + src3Len.
struct SingleAddend {
  template <class A, class B, class C, class D>
  static Wrapping of(const A&, Size, Size, const B&, Size src2Len, const C&, Size src3Len, const D&, Count count) {
    return (Wrapping(src2Len) + src3Len) * count + src3Len;
  }
};

} // namespace
} // namespace zelm

// clang-format off
// The limits are tuned by path: 500 and 7000 are meant.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmGaxpy_mva_32f,    GAXPY_MVA_S,  float,  N_C_Z_M_S_Gaxpy,   TwoVectorArrays, above(7000), above(5000), ownzelmGaxpy_mva_32f,    ownzelmGaxpy_mva_32f_S2,   ownOMP_zelmGaxpy_mva_32f)
STRIDE_FIRST(zelmGaxpy_mva_64f,    GAXPY_MVA_S,  double, N_C_Z_M_S_Gaxpy,   TwoVectorArrays, above(5000), above(5000), ownzelmGaxpy_mva_64f,    ownzelmGaxpy_mva_64f_S2,   ownOMP_zelmGaxpy_mva_64f)
STRIDE_FIRST(zelmGaxpy_mvav_32f,   GAXPY_MVAV_S, float,  N_C_Z_M_S_Gaxpy,   SingleAddend,    above(7000), above(5000), ownzelmGaxpy_mvav_32f,   ownzelmGaxpy_mvav_32f_S2,  ownOMP_zelmGaxpy_mvav_32f)
STRIDE_FIRST(zelmGaxpy_mvav_64f,   GAXPY_MVAV_S, double, N_C_Z_M_S_Gaxpy,   SingleAddend,    above(5000), above(5000), ownzelmGaxpy_mvav_64f,   ownzelmGaxpy_mvav_64f_S2,  ownOMP_zelmGaxpy_mvav_64f)
STRIDE_FIRST(zelmGaxpy_mva_32f_L,  GAXPY_MVA_L,  float,  N_C_Z_M_S_H_Gaxpy, TwoVectorArrays, above(7000), above(500),  ownzelmGaxpy_mva_32f_L,  ownzelmGaxpy_mva_32f_LS2,  ownOMP_zelmGaxpy_mva_32f_L)
STRIDE_FIRST(zelmGaxpy_mva_64f_L,  GAXPY_MVA_L,  double, N_C_Z_M_S_H_Gaxpy, TwoVectorArrays, above(6000), above(5000), ownzelmGaxpy_mva_64f_L,  ownzelmGaxpy_mva_64f_LS2,  ownOMP_zelmGaxpy_mva_64f_L)
STRIDE_FIRST(zelmGaxpy_mvav_32f_L, GAXPY_MVAV_L, float,  N_C_Z_M_S_H_Gaxpy, SingleAddend,    above(7000), above(500),  ownzelmGaxpy_mvav_32f_L, ownzelmGaxpy_mvav_32f_LS2, ownOMP_zelmGaxpy_mvav_32f_L)
STRIDE_FIRST(zelmGaxpy_mvav_64f_L, GAXPY_MVAV_L, double, N_C_Z_M_S_H_Gaxpy, SingleAddend,    above(6000), above(5000), ownzelmGaxpy_mvav_64f_L, ownzelmGaxpy_mvav_64f_LS2, ownOMP_zelmGaxpy_mvav_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmGaxpy_mva_32f_P,  GAXPY_MVA_P,  float,  N_C_Z_M_S_H_Gaxpy, TwoVectorArrays, above(4500), ownzelmGaxpy_mva_32f_P,  ownOMP_zelmGaxpy_mva_32f_P)
ARRAY_POINTER(zelmGaxpy_mva_64f_P,  GAXPY_MVA_P,  double, N_C_Z_M_S_H_Gaxpy, TwoVectorArrays, above(7000), ownzelmGaxpy_mva_64f_P,  ownOMP_zelmGaxpy_mva_64f_P)
ARRAY_POINTER(zelmGaxpy_mvav_32f_P, GAXPY_MVAV_P, float,  N_C_Z_M_S_H_Gaxpy, SingleAddend,    above(4500), ownzelmGaxpy_mvav_32f_P, ownOMP_zelmGaxpy_mvav_32f_P)
ARRAY_POINTER(zelmGaxpy_mvav_64f_P, GAXPY_MVAV_P, double, N_C_Z_M_S_H_Gaxpy, SingleAddend,    above(7000), ownzelmGaxpy_mvav_64f_P, ownOMP_zelmGaxpy_mvav_64f_P)
// clang-format on
