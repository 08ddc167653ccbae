// Parallel fronts: Sub on two arrays of matrices.
#include "zelmfront.h"

// clang-format off
//    front, arguments, layout, type, statuses, kernels: unit strides, any
FRONT(ownOMP_zelmSub_mama_32f,   MAMA, S, float,  Discards, ownzelmSub_mama_32f,   ownzelmSub_mama_32f_S2)
FRONT(ownOMP_zelmSub_mama_64f,   MAMA, S, double, Discards, ownzelmSub_mama_64f,   ownzelmSub_mama_64f_S2)
FRONT(ownOMP_zelmSub_mata_32f,   MATA, S, float,  Discards, ownzelmSub_mata_32f,   ownzelmSub_mata_32f_S2)
FRONT(ownOMP_zelmSub_mata_64f,   MATA, S, double, Discards, ownzelmSub_mata_64f,   ownzelmSub_mata_64f_S2)
FRONT(ownOMP_zelmSub_tama_32f,   TAMA, S, float,  Discards, ownzelmSub_tama_32f,   ownzelmSub_tama_32f_S2)
FRONT(ownOMP_zelmSub_tama_64f,   TAMA, S, double, Discards, ownzelmSub_tama_64f,   ownzelmSub_tama_64f_S2)
FRONT(ownOMP_zelmSub_tata_32f,   TATA, S, float,  Discards, ownzelmSub_tata_32f,   ownzelmSub_tata_32f_S2)
FRONT(ownOMP_zelmSub_tata_64f,   TATA, S, double, Discards, ownzelmSub_tata_64f,   ownzelmSub_tata_64f_S2)
FRONT(ownOMP_zelmSub_mama_32f_L, MAMA, L, float,  Discards, ownzelmSub_mama_32f_L, ownzelmSub_mama_32f_LS2)
FRONT(ownOMP_zelmSub_mama_64f_L, MAMA, L, double, Discards, ownzelmSub_mama_64f_L, ownzelmSub_mama_64f_LS2)
FRONT(ownOMP_zelmSub_mata_32f_L, MATA, L, float,  Discards, ownzelmSub_mata_32f_L, ownzelmSub_mata_32f_LS2)
FRONT(ownOMP_zelmSub_mata_64f_L, MATA, L, double, Discards, ownzelmSub_mata_64f_L, ownzelmSub_mata_64f_LS2)
FRONT(ownOMP_zelmSub_tama_32f_L, TAMA, L, float,  Discards, ownzelmSub_tama_32f_L, ownzelmSub_tama_32f_LS2)
FRONT(ownOMP_zelmSub_tama_64f_L, TAMA, L, double, Discards, ownzelmSub_tama_64f_L, ownzelmSub_tama_64f_LS2)
FRONT(ownOMP_zelmSub_tata_32f_L, TATA, L, float,  Discards, ownzelmSub_tata_32f_L, ownzelmSub_tata_32f_LS2)
FRONT(ownOMP_zelmSub_tata_64f_L, TATA, L, double, Discards, ownzelmSub_tata_64f_L, ownzelmSub_tata_64f_LS2)

//            front, arguments, layout, type, statuses, kernel
FRONT_POINTER(ownOMP_zelmSub_mama_32f_P, MAMA, P, float,  Discards, ownzelmSub_mama_32f_P)
FRONT_POINTER(ownOMP_zelmSub_mama_64f_P, MAMA, P, double, Discards, ownzelmSub_mama_64f_P)
FRONT_POINTER(ownOMP_zelmSub_mata_32f_P, MATA, P, float,  Discards, ownzelmSub_mata_32f_P)
FRONT_POINTER(ownOMP_zelmSub_mata_64f_P, MATA, P, double, Discards, ownzelmSub_mata_64f_P)
FRONT_POINTER(ownOMP_zelmSub_tama_32f_P, TAMA, P, float,  Discards, ownzelmSub_tama_32f_P)
FRONT_POINTER(ownOMP_zelmSub_tama_64f_P, TAMA, P, double, Discards, ownzelmSub_tama_64f_P)
FRONT_POINTER(ownOMP_zelmSub_tata_32f_P, TATA, P, float,  Discards, ownzelmSub_tata_32f_P)
FRONT_POINTER(ownOMP_zelmSub_tata_64f_P, TATA, P, double, Discards, ownzelmSub_tata_64f_P)
// clang-format on
