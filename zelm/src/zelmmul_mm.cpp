// Exported functions: Mul on single matrices.
#include "zelmmulsignature.h"

// clang-format off
//     exported function  arguments  type    order of tests  kernels: unit strides  any
SINGLE(zelmMul_mm_32f,    MUL_MM, S,  float,  N_Z_M_S_Mul,    ownzelmMul_mm_32f,     ownzelmMul_mm_32f_S2)
SINGLE(zelmMul_mt_32f,    MUL_MT, S,  float,  N_Z_M_S_Mul,    ownzelmMul_mt_32f,     ownzelmMul_mt_32f_S2)
SINGLE(zelmMul_tm_32f,    MUL_TM, S,  float,  N_Z_M_S_Mul,    ownzelmMul_tm_32f,     ownzelmMul_tm_32f_S2)
SINGLE(zelmMul_tt_32f,    MUL_TT, S,  float,  N_Z_M_S_Mul,    ownzelmMul_tt_32f,     ownzelmMul_tt_32f_S2)
SINGLE(zelmMul_mm_64f,    MUL_MM, S,  double, N_Z_M_S_Mul,    ownzelmMul_mm_64f,     ownzelmMul_mm_64f_S2)
SINGLE(zelmMul_mt_64f,    MUL_MT, S,  double, N_Z_M_S_Mul,    ownzelmMul_mt_64f,     ownzelmMul_mt_64f_S2)
SINGLE(zelmMul_tm_64f,    MUL_TM, S,  double, N_Z_M_S_Mul,    ownzelmMul_tm_64f,     ownzelmMul_tm_64f_S2)
SINGLE(zelmMul_tt_64f,    MUL_TT, S,  double, N_Z_M_S_Mul,    ownzelmMul_tt_64f,     ownzelmMul_tt_64f_S2)

//             exported function  arguments  type    order of tests  kernel
SINGLE_POINTER(zelmMul_mm_32f_P,  MUL_MM, P,  float,  N_Z_M_H_Mul,    ownzelmMul_mm_32f_P)
SINGLE_POINTER(zelmMul_mt_32f_P,  MUL_MT, P,  float,  N_Z_M_H_Mul,    ownzelmMul_mt_32f_P)
SINGLE_POINTER(zelmMul_tm_32f_P,  MUL_TM, P,  float,  N_Z_M_H_Mul,    ownzelmMul_tm_32f_P)
SINGLE_POINTER(zelmMul_tt_32f_P,  MUL_TT, P,  float,  N_Z_M_H_Mul,    ownzelmMul_tt_32f_P)
SINGLE_POINTER(zelmMul_mm_64f_P,  MUL_MM, P,  double, N_Z_M_H_Mul,    ownzelmMul_mm_64f_P)
SINGLE_POINTER(zelmMul_mt_64f_P,  MUL_MT, P,  double, N_Z_M_H_Mul,    ownzelmMul_mt_64f_P)
SINGLE_POINTER(zelmMul_tm_64f_P,  MUL_TM, P,  double, N_Z_M_H_Mul,    ownzelmMul_tm_64f_P)
SINGLE_POINTER(zelmMul_tt_64f_P,  MUL_TT, P,  double, N_Z_M_H_Mul,    ownzelmMul_tt_64f_P)
// clang-format on
