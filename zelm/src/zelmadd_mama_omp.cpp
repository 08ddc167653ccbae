// Parallel fronts: Add on two arrays of matrices.
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmAdd_mama_32f,   MAMA_S, float,  Discards, ownzelmAdd_mama_32f,   ownzelmAdd_mama_32f_S2)
FRONT(ownOMP_zelmAdd_tama_32f,   TAMA_S, float,  Discards, ownzelmAdd_tama_32f,   ownzelmAdd_tama_32f_S2)
FRONT(ownOMP_zelmAdd_tata_32f,   TATA_S, float,  Discards, ownzelmAdd_tata_32f,   ownzelmAdd_tata_32f_S2)
FRONT(ownOMP_zelmAdd_mama_64f,   MAMA_S, double, Discards, ownzelmAdd_mama_64f,   ownzelmAdd_mama_64f_S2)
FRONT(ownOMP_zelmAdd_tama_64f,   TAMA_S, double, Discards, ownzelmAdd_tama_64f,   ownzelmAdd_tama_64f_S2)
FRONT(ownOMP_zelmAdd_tata_64f,   TATA_S, double, Discards, ownzelmAdd_tata_64f,   ownzelmAdd_tata_64f_S2)
FRONT(ownOMP_zelmAdd_mama_32f_L, MAMA_L, float,  Discards, ownzelmAdd_mama_32f_L, ownzelmAdd_mama_32f_LS2)
FRONT(ownOMP_zelmAdd_tama_32f_L, TAMA_L, float,  Discards, ownzelmAdd_tama_32f_L, ownzelmAdd_tama_32f_LS2)
FRONT(ownOMP_zelmAdd_tata_32f_L, TATA_L, float,  Discards, ownzelmAdd_tata_32f_L, ownzelmAdd_tata_32f_LS2)
FRONT(ownOMP_zelmAdd_mama_64f_L, MAMA_L, double, Discards, ownzelmAdd_mama_64f_L, ownzelmAdd_mama_64f_LS2)
FRONT(ownOMP_zelmAdd_tama_64f_L, TAMA_L, double, Discards, ownzelmAdd_tama_64f_L, ownzelmAdd_tama_64f_LS2)
FRONT(ownOMP_zelmAdd_tata_64f_L, TATA_L, double, Discards, ownzelmAdd_tata_64f_L, ownzelmAdd_tata_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmAdd_mama_32f_P, MAMA_P, float,  Discards, ownzelmAdd_mama_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_tama_32f_P, TAMA_P, float,  Discards, ownzelmAdd_tama_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_tata_32f_P, TATA_P, float,  Discards, ownzelmAdd_tata_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_mama_64f_P, MAMA_P, double, Discards, ownzelmAdd_mama_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_tama_64f_P, TAMA_P, double, Discards, ownzelmAdd_tama_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_tata_64f_P, TATA_P, double, Discards, ownzelmAdd_tata_64f_P)
// clang-format on
