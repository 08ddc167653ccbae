// Parallel fronts: Add on two arrays of matrices.
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmAdd_mama_32f,   MAMA, S, float,  Discards, ownzelmAdd_mama_32f,   ownzelmAdd_mama_32f_S2)
FRONT(ownOMP_zelmAdd_tama_32f,   TAMA, S, float,  Discards, ownzelmAdd_tama_32f,   ownzelmAdd_tama_32f_S2)
FRONT(ownOMP_zelmAdd_tata_32f,   TATA, S, float,  Discards, ownzelmAdd_tata_32f,   ownzelmAdd_tata_32f_S2)
FRONT(ownOMP_zelmAdd_mama_64f,   MAMA, S, double, Discards, ownzelmAdd_mama_64f,   ownzelmAdd_mama_64f_S2)
FRONT(ownOMP_zelmAdd_tama_64f,   TAMA, S, double, Discards, ownzelmAdd_tama_64f,   ownzelmAdd_tama_64f_S2)
FRONT(ownOMP_zelmAdd_tata_64f,   TATA, S, double, Discards, ownzelmAdd_tata_64f,   ownzelmAdd_tata_64f_S2)
FRONT(ownOMP_zelmAdd_mama_32f_L, MAMA, L, float,  Discards, ownzelmAdd_mama_32f_L, ownzelmAdd_mama_32f_LS2)
FRONT(ownOMP_zelmAdd_tama_32f_L, TAMA, L, float,  Discards, ownzelmAdd_tama_32f_L, ownzelmAdd_tama_32f_LS2)
FRONT(ownOMP_zelmAdd_tata_32f_L, TATA, L, float,  Discards, ownzelmAdd_tata_32f_L, ownzelmAdd_tata_32f_LS2)
FRONT(ownOMP_zelmAdd_mama_64f_L, MAMA, L, double, Discards, ownzelmAdd_mama_64f_L, ownzelmAdd_mama_64f_LS2)
FRONT(ownOMP_zelmAdd_tama_64f_L, TAMA, L, double, Discards, ownzelmAdd_tama_64f_L, ownzelmAdd_tama_64f_LS2)
FRONT(ownOMP_zelmAdd_tata_64f_L, TATA, L, double, Discards, ownzelmAdd_tata_64f_L, ownzelmAdd_tata_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmAdd_mama_32f_P, MAMA, P, float,  Discards, ownzelmAdd_mama_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_tama_32f_P, TAMA, P, float,  Discards, ownzelmAdd_tama_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_tata_32f_P, TATA, P, float,  Discards, ownzelmAdd_tata_32f_P)
FRONT_POINTER(ownOMP_zelmAdd_mama_64f_P, MAMA, P, double, Discards, ownzelmAdd_mama_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_tama_64f_P, TAMA, P, double, Discards, ownzelmAdd_tama_64f_P)
FRONT_POINTER(ownOMP_zelmAdd_tata_64f_P, TATA, P, double, Discards, ownzelmAdd_tata_64f_P)
// clang-format on
