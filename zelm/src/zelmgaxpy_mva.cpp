// Exported functions: Gaxpy on arrays of vectors.
#include "zelmmulvsignature.h"

// clang-format off
// The limits are tuned by path: 500 and 7000 are meant.
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmGaxpy_mva_32f,    GAXPY_MVA, S,  float,  N_C_Z_M_S_Gaxpy,   twoVectorArrays, above(7000), above(5000), ownzelmGaxpy_mva_32f,    ownzelmGaxpy_mva_32f_S2,   ownOMP_zelmGaxpy_mva_32f)
STRIDE_FIRST(zelmGaxpy_mva_64f,    GAXPY_MVA, S,  double, N_C_Z_M_S_Gaxpy,   twoVectorArrays, above(5000), above(5000), ownzelmGaxpy_mva_64f,    ownzelmGaxpy_mva_64f_S2,   ownOMP_zelmGaxpy_mva_64f)
STRIDE_FIRST(zelmGaxpy_mvav_32f,   GAXPY_MVAV, S, float,  N_C_Z_M_S_Gaxpy,   singleAddend,    above(7000), above(5000), ownzelmGaxpy_mvav_32f,   ownzelmGaxpy_mvav_32f_S2,  ownOMP_zelmGaxpy_mvav_32f)
STRIDE_FIRST(zelmGaxpy_mvav_64f,   GAXPY_MVAV, S, double, N_C_Z_M_S_Gaxpy,   singleAddend,    above(5000), above(5000), ownzelmGaxpy_mvav_64f,   ownzelmGaxpy_mvav_64f_S2,  ownOMP_zelmGaxpy_mvav_64f)
STRIDE_FIRST(zelmGaxpy_mva_32f_L,  GAXPY_MVA, L,  float,  N_C_Z_M_S_H_Gaxpy, twoVectorArrays, above(7000), above(500),  ownzelmGaxpy_mva_32f_L,  ownzelmGaxpy_mva_32f_LS2,  ownOMP_zelmGaxpy_mva_32f_L)
STRIDE_FIRST(zelmGaxpy_mva_64f_L,  GAXPY_MVA, L,  double, N_C_Z_M_S_H_Gaxpy, twoVectorArrays, above(6000), above(5000), ownzelmGaxpy_mva_64f_L,  ownzelmGaxpy_mva_64f_LS2,  ownOMP_zelmGaxpy_mva_64f_L)
STRIDE_FIRST(zelmGaxpy_mvav_32f_L, GAXPY_MVAV, L, float,  N_C_Z_M_S_H_Gaxpy, singleAddend,    above(7000), above(500),  ownzelmGaxpy_mvav_32f_L, ownzelmGaxpy_mvav_32f_LS2, ownOMP_zelmGaxpy_mvav_32f_L)
STRIDE_FIRST(zelmGaxpy_mvav_64f_L, GAXPY_MVAV, L, double, N_C_Z_M_S_H_Gaxpy, singleAddend,    above(6000), above(5000), ownzelmGaxpy_mvav_64f_L, ownzelmGaxpy_mvav_64f_LS2, ownOMP_zelmGaxpy_mvav_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmGaxpy_mva_32f_P,  GAXPY_MVA, P,  float,  N_C_Z_M_S_H_Gaxpy, twoVectorArrays, above(4500), ownzelmGaxpy_mva_32f_P,  ownOMP_zelmGaxpy_mva_32f_P)
ARRAY_POINTER(zelmGaxpy_mva_64f_P,  GAXPY_MVA, P,  double, N_C_Z_M_S_H_Gaxpy, twoVectorArrays, above(7000), ownzelmGaxpy_mva_64f_P,  ownOMP_zelmGaxpy_mva_64f_P)
ARRAY_POINTER(zelmGaxpy_mvav_32f_P, GAXPY_MVAV, P, float,  N_C_Z_M_S_H_Gaxpy, singleAddend,    above(4500), ownzelmGaxpy_mvav_32f_P, ownOMP_zelmGaxpy_mvav_32f_P)
ARRAY_POINTER(zelmGaxpy_mvav_64f_P, GAXPY_MVAV, P, double, N_C_Z_M_S_H_Gaxpy, singleAddend,    above(7000), ownzelmGaxpy_mvav_64f_P, ownOMP_zelmGaxpy_mvav_64f_P)
// clang-format on
