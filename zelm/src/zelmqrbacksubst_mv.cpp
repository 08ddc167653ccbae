// Exported functions: solution of a system with a QR-decomposed matrix.
#include "zelmqrsignature.h"

// clang-format off
//     exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmQRBackSubst_mv_32f, QR_SOLVE_MV, S, float,  N_Z_S_Shape, ownzelmQRBackSubst_mv_32f, ownzelmQRBackSubst_mv_32f_S2)
SINGLE(zelmQRBackSubst_mv_64f, QR_SOLVE_MV, S, double, N_Z_S_Shape, ownzelmQRBackSubst_mv_64f, ownzelmQRBackSubst_mv_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmQRBackSubst_mv_32f_P, QR_SOLVE_MV, P, float,  N_Z_H_Shape, ownzelmQRBackSubst_mv_32f_P)
SINGLE_POINTER(zelmQRBackSubst_mv_64f_P, QR_SOLVE_MV, P, double, N_Z_H_Shape, ownzelmQRBackSubst_mv_64f_P)
// clang-format on
