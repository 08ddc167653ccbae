// Exported functions: Sub on single matrices.
#include "zelmframe.h"

// clang-format off
//             exported function, arguments, layout, type, order of tests, kernels: unit strides, any
SINGLE(        zelmSub_mm_32f,   MM, S, float,  N_Z_S, ownzelmSub_mm_32f, ownzelmSub_mm_32f_S2)
SINGLE(        zelmSub_mm_64f,   MM, S, double, N_Z_S, ownzelmSub_mm_64f, ownzelmSub_mm_64f_S2)
SINGLE(        zelmSub_mt_32f,   MT, S, float,  N_Z_S, ownzelmSub_mt_32f, ownzelmSub_mt_32f_S2)
SINGLE(        zelmSub_mt_64f,   MT, S, double, N_Z_S, ownzelmSub_mt_64f, ownzelmSub_mt_64f_S2)
SINGLE(        zelmSub_tm_32f,   TM, S, float,  N_Z_S, ownzelmSub_tm_32f, ownzelmSub_tm_32f_S2)
SINGLE(        zelmSub_tm_64f,   TM, S, double, N_Z_S, ownzelmSub_tm_64f, ownzelmSub_tm_64f_S2)
SINGLE(        zelmSub_tt_32f,   TT, S, float,  N_Z_S, ownzelmSub_tt_32f, ownzelmSub_tt_32f_S2)
SINGLE(        zelmSub_tt_64f,   TT, S, double, N_Z_S, ownzelmSub_tt_64f, ownzelmSub_tt_64f_S2)
SINGLE_POINTER(zelmSub_mm_32f_P, MM, P, float,  N_Z_H, ownzelmSub_mm_32f_P)
SINGLE_POINTER(zelmSub_mm_64f_P, MM, P, double, N_Z_H, ownzelmSub_mm_64f_P)
SINGLE_POINTER(zelmSub_mt_32f_P, MT, P, float,  N_Z_H, ownzelmSub_mt_32f_P)
SINGLE_POINTER(zelmSub_mt_64f_P, MT, P, double, N_Z_H, ownzelmSub_mt_64f_P)
SINGLE_POINTER(zelmSub_tm_32f_P, TM, P, float,  N_Z_H, ownzelmSub_tm_32f_P)
SINGLE_POINTER(zelmSub_tm_64f_P, TM, P, double, N_Z_H, ownzelmSub_tm_64f_P)
SINGLE_POINTER(zelmSub_tt_32f_P, TT, P, float,  N_Z_H, ownzelmSub_tt_32f_P)
SINGLE_POINTER(zelmSub_tt_64f_P, TT, P, double, N_Z_H, ownzelmSub_tt_64f_P)
// clang-format on
