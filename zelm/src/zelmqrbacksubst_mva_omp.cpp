// Parallel fronts: solution of systems with one QR-decomposed matrix.
#include "zelmfront.h"
#include "zelmqrsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmQRBackSubst_mva_32f,   QR_SOLVE_MVA, S, float,  Discards, ownzelmQRBackSubst_mva_32f,   ownzelmQRBackSubst_mva_32f_S2)
FRONT(ownOMP_zelmQRBackSubst_mva_64f,   QR_SOLVE_MVA, S, double, Discards, ownzelmQRBackSubst_mva_64f,   ownzelmQRBackSubst_mva_64f_S2)
FRONT(ownOMP_zelmQRBackSubst_mva_32f_L, QR_SOLVE_MVA, L, float,  Discards, ownzelmQRBackSubst_mva_32f_L, ownzelmQRBackSubst_mva_32f_LS2)
FRONT(ownOMP_zelmQRBackSubst_mva_64f_L, QR_SOLVE_MVA, L, double, Discards, ownzelmQRBackSubst_mva_64f_L, ownzelmQRBackSubst_mva_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmQRBackSubst_mva_32f_P, QR_SOLVE_MVA, P, float,  Discards, ownzelmQRBackSubst_mva_32f_P)
FRONT_POINTER(ownOMP_zelmQRBackSubst_mva_64f_P, QR_SOLVE_MVA, P, double, Discards, ownzelmQRBackSubst_mva_64f_P)
// clang-format on
