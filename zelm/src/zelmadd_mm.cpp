// Exported functions: Add on single matrices.
#include "zelmframe.h"

// clang-format off
//             exported function    arguments  type    order  kernels: unit strides, any
SINGLE(        zelmAdd_mm_32f,   MM, S, float,  N_Z_S, ownzelmAdd_mm_32f, ownzelmAdd_mm_32f_S2)
SINGLE(        zelmAdd_mm_64f,   MM, S, double, N_Z_S, ownzelmAdd_mm_64f, ownzelmAdd_mm_64f_S2)
SINGLE(        zelmAdd_tm_32f,   TM, S, float,  N_Z_S, ownzelmAdd_tm_32f, ownzelmAdd_tm_32f_S2)
SINGLE(        zelmAdd_tm_64f,   TM, S, double, N_Z_S, ownzelmAdd_tm_64f, ownzelmAdd_tm_64f_S2)
SINGLE(        zelmAdd_tt_32f,   TT, S, float,  N_Z_S, ownzelmAdd_tt_32f, ownzelmAdd_tt_32f_S2)
SINGLE(        zelmAdd_tt_64f,   TT, S, double, N_Z_S, ownzelmAdd_tt_64f, ownzelmAdd_tt_64f_S2)
SINGLE_POINTER(zelmAdd_mm_32f_P, MM, P, float,  N_Z_H, ownzelmAdd_mm_32f_P)
SINGLE_POINTER(zelmAdd_mm_64f_P, MM, P, double, N_Z_H, ownzelmAdd_mm_64f_P)
SINGLE_POINTER(zelmAdd_tm_32f_P, TM, P, float,  N_Z_H, ownzelmAdd_tm_32f_P)
SINGLE_POINTER(zelmAdd_tm_64f_P, TM, P, double, N_Z_H, ownzelmAdd_tm_64f_P)
SINGLE_POINTER(zelmAdd_tt_32f_P, TT, P, float,  N_Z_H, ownzelmAdd_tt_32f_P)
SINGLE_POINTER(zelmAdd_tt_64f_P, TT, P, double, N_Z_H, ownzelmAdd_tt_64f_P)
// clang-format on
