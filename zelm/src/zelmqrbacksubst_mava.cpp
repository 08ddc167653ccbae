// Exported functions: solution of systems with a QR-decomposed matrix each.
#include "zelmqrsignature.h"

// clang-format off
//           exported function  arguments type  order of tests  estimate  forks: unit strides, any  kernels: unit strides, any  front
STRIDE_FIRST(zelmQRBackSubst_mava_32f,   QR_SOLVE_MAVA, S, float,  N_C_Z_S_Shape,   matrixEach, from(2801), from(2801), ownzelmQRBackSubst_mava_32f,   ownzelmQRBackSubst_mava_32f_S2,  ownOMP_zelmQRBackSubst_mava_32f)
STRIDE_FIRST(zelmQRBackSubst_mava_64f,   QR_SOLVE_MAVA, S, double, N_C_Z_S_Shape,   matrixEach, from(2801), from(2801), ownzelmQRBackSubst_mava_64f,   ownzelmQRBackSubst_mava_64f_S2,  ownOMP_zelmQRBackSubst_mava_64f)
STRIDE_FIRST(zelmQRBackSubst_mava_32f_L, QR_SOLVE_MAVA, L, float,  N_C_Z_S_H_Shape, matrixEach, from(1801), from(1801), ownzelmQRBackSubst_mava_32f_L, ownzelmQRBackSubst_mava_32f_LS2, ownOMP_zelmQRBackSubst_mava_32f_L)
STRIDE_FIRST(zelmQRBackSubst_mava_64f_L, QR_SOLVE_MAVA, L, double, N_C_Z_S_H_Shape, matrixEach, from(1801), from(1801), ownzelmQRBackSubst_mava_64f_L, ownzelmQRBackSubst_mava_64f_LS2, ownOMP_zelmQRBackSubst_mava_64f_L)

//            exported function  arguments type  order of tests  estimate  forks  kernel  front
ARRAY_POINTER(zelmQRBackSubst_mava_32f_P, QR_SOLVE_MAVA, P, float,  N_C_Z_S_H_Shape, matrixEach, from(1801), ownzelmQRBackSubst_mava_32f_P, ownOMP_zelmQRBackSubst_mava_32f_P)
ARRAY_POINTER(zelmQRBackSubst_mava_64f_P, QR_SOLVE_MAVA, P, double, N_C_Z_S_H_Shape, matrixEach, from(1801), ownzelmQRBackSubst_mava_64f_P, ownOMP_zelmQRBackSubst_mava_64f_P)
// clang-format on
