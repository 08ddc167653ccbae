// Exported functions: Mul on a matrix or a vector and a constant.
#include "zelmelementwisesignature.h"

// clang-format off
//     exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmMul_mc_32f, MC, S, float,  N_Z_S, ownzelmMul_mc_32f, ownzelmMul_mc_32f_S2)
SINGLE(zelmMul_mc_64f, MC, S, double, N_Z_S, ownzelmMul_mc_64f, ownzelmMul_mc_64f_S2)
SINGLE(zelmMul_tc_32f, TC, S, float,  N_Z_S, ownzelmMul_tc_32f, ownzelmMul_tc_32f_S2)
SINGLE(zelmMul_tc_64f, TC, S, double, N_Z_S, ownzelmMul_tc_64f, ownzelmMul_tc_64f_S2)
SINGLE(zelmMul_vc_32f, VC, S, float,  N_Z_S, ownzelmMul_vc_32f, ownzelmMul_vc_32f_S2)
SINGLE(zelmMul_vc_64f, VC, S, double, N_Z_S, ownzelmMul_vc_64f, ownzelmMul_vc_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmMul_mc_32f_P, MC, P, float,  N_Z_H, ownzelmMul_mc_32f_P)
SINGLE_POINTER(zelmMul_mc_64f_P, MC, P, double, N_Z_H, ownzelmMul_mc_64f_P)
SINGLE_POINTER(zelmMul_tc_32f_P, TC, P, float,  N_Z_H, ownzelmMul_tc_32f_P)
SINGLE_POINTER(zelmMul_tc_64f_P, TC, P, double, N_Z_H, ownzelmMul_tc_64f_P)
SINGLE_POINTER(zelmMul_vc_32f_P, VC, P, float,  N_Z_H, ownzelmMul_vc_32f_P)
SINGLE_POINTER(zelmMul_vc_64f_P, VC, P, double, N_Z_H, ownzelmMul_vc_64f_P)
// clang-format on
