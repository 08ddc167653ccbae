// Parallel fronts: Gaxpy on arrays of vectors.
#include "zelmfront.h"
#include "zelmmulvsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmGaxpy_mva_32f,    GAXPY_MVA, S,  float,  Discards, ownzelmGaxpy_mva_32f,    ownzelmGaxpy_mva_32f_S2)
FRONT(ownOMP_zelmGaxpy_mva_64f,    GAXPY_MVA, S,  double, Discards, ownzelmGaxpy_mva_64f,    ownzelmGaxpy_mva_64f_S2)
FRONT(ownOMP_zelmGaxpy_mvav_32f,   GAXPY_MVAV, S, float,  Discards, ownzelmGaxpy_mvav_32f,   ownzelmGaxpy_mvav_32f_S2)
FRONT(ownOMP_zelmGaxpy_mvav_64f,   GAXPY_MVAV, S, double, Discards, ownzelmGaxpy_mvav_64f,   ownzelmGaxpy_mvav_64f_S2)
FRONT(ownOMP_zelmGaxpy_mva_32f_L,  GAXPY_MVA, L,  float,  Discards, ownzelmGaxpy_mva_32f_L,  ownzelmGaxpy_mva_32f_LS2)
FRONT(ownOMP_zelmGaxpy_mva_64f_L,  GAXPY_MVA, L,  double, Discards, ownzelmGaxpy_mva_64f_L,  ownzelmGaxpy_mva_64f_LS2)
FRONT(ownOMP_zelmGaxpy_mvav_32f_L, GAXPY_MVAV, L, float,  Discards, ownzelmGaxpy_mvav_32f_L, ownzelmGaxpy_mvav_32f_LS2)
FRONT(ownOMP_zelmGaxpy_mvav_64f_L, GAXPY_MVAV, L, double, Discards, ownzelmGaxpy_mvav_64f_L, ownzelmGaxpy_mvav_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmGaxpy_mva_32f_P,  GAXPY_MVA, P,  float,  Discards, ownzelmGaxpy_mva_32f_P)
FRONT_POINTER(ownOMP_zelmGaxpy_mva_64f_P,  GAXPY_MVA, P,  double, Discards, ownzelmGaxpy_mva_64f_P)
FRONT_POINTER(ownOMP_zelmGaxpy_mvav_32f_P, GAXPY_MVAV, P, float,  Discards, ownzelmGaxpy_mvav_32f_P)
FRONT_POINTER(ownOMP_zelmGaxpy_mvav_64f_P, GAXPY_MVAV, P, double, Discards, ownzelmGaxpy_mvav_64f_P)
// clang-format on
