// Parallel fronts: solution of systems with a QR-decomposed matrix each.
#include "zelmfront.h"
#include "zelmqrsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmQRBackSubst_mava_32f,   QR_SOLVE_MAVA, S, float,  Discards, ownzelmQRBackSubst_mava_32f,   ownzelmQRBackSubst_mava_32f_S2)
FRONT(ownOMP_zelmQRBackSubst_mava_64f,   QR_SOLVE_MAVA, S, double, Discards, ownzelmQRBackSubst_mava_64f,   ownzelmQRBackSubst_mava_64f_S2)
FRONT(ownOMP_zelmQRBackSubst_mava_32f_L, QR_SOLVE_MAVA, L, float,  Discards, ownzelmQRBackSubst_mava_32f_L, ownzelmQRBackSubst_mava_32f_LS2)
FRONT(ownOMP_zelmQRBackSubst_mava_64f_L, QR_SOLVE_MAVA, L, double, Discards, ownzelmQRBackSubst_mava_64f_L, ownzelmQRBackSubst_mava_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmQRBackSubst_mava_32f_P, QR_SOLVE_MAVA, P, float,  Discards, ownzelmQRBackSubst_mava_32f_P)
FRONT_POINTER(ownOMP_zelmQRBackSubst_mava_64f_P, QR_SOLVE_MAVA, P, double, Discards, ownzelmQRBackSubst_mava_64f_P)
// clang-format on
