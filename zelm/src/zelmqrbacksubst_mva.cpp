// Exported functions: solution of systems with one QR-decomposed matrix.
#include "zelmqrsignature.h"

// clang-format off
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmQRBackSubst_mva_32f,   QR_SOLVE_MVA, S, float,  N_C_Z_S_Shape,   oneMatrix, from(2801), from(2801), ownzelmQRBackSubst_mva_32f,   ownzelmQRBackSubst_mva_32f_S2,  ownOMP_zelmQRBackSubst_mva_32f)
STRIDE_FIRST(zelmQRBackSubst_mva_64f,   QR_SOLVE_MVA, S, double, N_C_Z_S_Shape,   oneMatrix, from(2801), from(2801), ownzelmQRBackSubst_mva_64f,   ownzelmQRBackSubst_mva_64f_S2,  ownOMP_zelmQRBackSubst_mva_64f)
STRIDE_FIRST(zelmQRBackSubst_mva_32f_L, QR_SOLVE_MVA, L, float,  N_C_Z_S_H_Shape, oneMatrix, from(1801), from(1801), ownzelmQRBackSubst_mva_32f_L, ownzelmQRBackSubst_mva_32f_LS2, ownOMP_zelmQRBackSubst_mva_32f_L)
STRIDE_FIRST(zelmQRBackSubst_mva_64f_L, QR_SOLVE_MVA, L, double, N_C_Z_S_H_Shape, oneMatrix, from(1801), from(1801), ownzelmQRBackSubst_mva_64f_L, ownzelmQRBackSubst_mva_64f_LS2, ownOMP_zelmQRBackSubst_mva_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmQRBackSubst_mva_32f_P, QR_SOLVE_MVA, P, float,  N_C_Z_S_H_Shape, oneMatrix, from(1801), ownzelmQRBackSubst_mva_32f_P, ownOMP_zelmQRBackSubst_mva_32f_P)
ARRAY_POINTER(zelmQRBackSubst_mva_64f_P, QR_SOLVE_MVA, P, double, N_C_Z_S_H_Shape, oneMatrix, from(1801), ownzelmQRBackSubst_mva_64f_P, ownOMP_zelmQRBackSubst_mva_64f_P)
// clang-format on
