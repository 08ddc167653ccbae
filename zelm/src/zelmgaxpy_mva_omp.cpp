// Parallel fronts: Gaxpy on arrays of vectors.
#include "zelmfront.h"
#include "zelmmulv.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmGaxpy_mva_32f,    GAXPY_MVA_S,  float,  Discards, ownzelmGaxpy_mva_32f,    ownzelmGaxpy_mva_32f_S2)
FRONT(ownOMP_zelmGaxpy_mva_64f,    GAXPY_MVA_S,  double, Discards, ownzelmGaxpy_mva_64f,    ownzelmGaxpy_mva_64f_S2)
FRONT(ownOMP_zelmGaxpy_mvav_32f,   GAXPY_MVAV_S, float,  Discards, ownzelmGaxpy_mvav_32f,   ownzelmGaxpy_mvav_32f_S2)
FRONT(ownOMP_zelmGaxpy_mvav_64f,   GAXPY_MVAV_S, double, Discards, ownzelmGaxpy_mvav_64f,   ownzelmGaxpy_mvav_64f_S2)
FRONT(ownOMP_zelmGaxpy_mva_32f_L,  GAXPY_MVA_L,  float,  Discards, ownzelmGaxpy_mva_32f_L,  ownzelmGaxpy_mva_32f_LS2)
FRONT(ownOMP_zelmGaxpy_mva_64f_L,  GAXPY_MVA_L,  double, Discards, ownzelmGaxpy_mva_64f_L,  ownzelmGaxpy_mva_64f_LS2)
FRONT(ownOMP_zelmGaxpy_mvav_32f_L, GAXPY_MVAV_L, float,  Discards, ownzelmGaxpy_mvav_32f_L, ownzelmGaxpy_mvav_32f_LS2)
FRONT(ownOMP_zelmGaxpy_mvav_64f_L, GAXPY_MVAV_L, double, Discards, ownzelmGaxpy_mvav_64f_L, ownzelmGaxpy_mvav_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmGaxpy_mva_32f_P,  GAXPY_MVA_P,  float,  Discards, ownzelmGaxpy_mva_32f_P)
FRONT_POINTER(ownOMP_zelmGaxpy_mva_64f_P,  GAXPY_MVA_P,  double, Discards, ownzelmGaxpy_mva_64f_P)
FRONT_POINTER(ownOMP_zelmGaxpy_mvav_32f_P, GAXPY_MVAV_P, float,  Discards, ownzelmGaxpy_mvav_32f_P)
FRONT_POINTER(ownOMP_zelmGaxpy_mvav_64f_P, GAXPY_MVAV_P, double, Discards, ownzelmGaxpy_mvav_64f_P)
// clang-format on
