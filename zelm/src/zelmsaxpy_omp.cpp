// Parallel fronts: Saxpy.
#include "zelmfront.h"
#include "zelmvectorsignature.h"

// clang-format off
//    front  arguments  type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmSaxpy_vav_32f,    SAXPY_VAV,  S, float,  Discards, ownzelmSaxpy_vav_32f,    ownzelmSaxpy_vav_32f_S2)
FRONT(ownOMP_zelmSaxpy_vva_32f,    SAXPY_VVA,  S, float,  Discards, ownzelmSaxpy_vva_32f,    ownzelmSaxpy_vva_32f_S2)
FRONT(ownOMP_zelmSaxpy_vava_32f,   SAXPY_VAVA, S, float,  Discards, ownzelmSaxpy_vava_32f,   ownzelmSaxpy_vava_32f_S2)
FRONT(ownOMP_zelmSaxpy_vav_64f,    SAXPY_VAV,  S, double, Discards, ownzelmSaxpy_vav_64f,    ownzelmSaxpy_vav_64f_S2)
FRONT(ownOMP_zelmSaxpy_vva_64f,    SAXPY_VVA,  S, double, Discards, ownzelmSaxpy_vva_64f,    ownzelmSaxpy_vva_64f_S2)
FRONT(ownOMP_zelmSaxpy_vava_64f,   SAXPY_VAVA, S, double, Discards, ownzelmSaxpy_vava_64f,   ownzelmSaxpy_vava_64f_S2)
FRONT(ownOMP_zelmSaxpy_vav_32f_L,  SAXPY_VAV,  L, float,  Discards, ownzelmSaxpy_vav_32f_L,  ownzelmSaxpy_vav_32f_LS2)
FRONT(ownOMP_zelmSaxpy_vva_32f_L,  SAXPY_VVA,  L, float,  Discards, ownzelmSaxpy_vva_32f_L,  ownzelmSaxpy_vva_32f_LS2)
FRONT(ownOMP_zelmSaxpy_vava_32f_L, SAXPY_VAVA, L, float,  Discards, ownzelmSaxpy_vava_32f_L, ownzelmSaxpy_vava_32f_LS2)
FRONT(ownOMP_zelmSaxpy_vav_64f_L,  SAXPY_VAV,  L, double, Discards, ownzelmSaxpy_vav_64f_L,  ownzelmSaxpy_vav_64f_LS2)
FRONT(ownOMP_zelmSaxpy_vva_64f_L,  SAXPY_VVA,  L, double, Discards, ownzelmSaxpy_vva_64f_L,  ownzelmSaxpy_vva_64f_LS2)
FRONT(ownOMP_zelmSaxpy_vava_64f_L, SAXPY_VAVA, L, double, Discards, ownzelmSaxpy_vava_64f_L, ownzelmSaxpy_vava_64f_LS2)

//            front  arguments  type  statuses  kernel
FRONT_POINTER(ownOMP_zelmSaxpy_vav_32f_P,  SAXPY_VAV,  P, float,  Discards, ownzelmSaxpy_vav_32f_P)
FRONT_POINTER(ownOMP_zelmSaxpy_vva_32f_P,  SAXPY_VVA,  P, float,  Discards, ownzelmSaxpy_vva_32f_P)
FRONT_POINTER(ownOMP_zelmSaxpy_vava_32f_P, SAXPY_VAVA, P, float,  Discards, ownzelmSaxpy_vava_32f_P)
FRONT_POINTER(ownOMP_zelmSaxpy_vav_64f_P,  SAXPY_VAV,  P, double, Discards, ownzelmSaxpy_vav_64f_P)
FRONT_POINTER(ownOMP_zelmSaxpy_vva_64f_P,  SAXPY_VVA,  P, double, Discards, ownzelmSaxpy_vva_64f_P)
FRONT_POINTER(ownOMP_zelmSaxpy_vava_64f_P, SAXPY_VAVA, P, double, Discards, ownzelmSaxpy_vava_64f_P)
// clang-format on
