// Exported functions: Sub on single vectors and constants.
#include "zelmframe.h"

// clang-format off
//             exported function, arguments, layout, type, order of tests, kernels: unit strides, any
SINGLE(        zelmSub_vv_32f,   VV, S, float,  N_Z_S, ownzelmSub_vv_32f, ownzelmSub_vv_32f_S2)
SINGLE(        zelmSub_vv_64f,   VV, S, double, N_Z_S, ownzelmSub_vv_64f, ownzelmSub_vv_64f_S2)
SINGLE(        zelmSub_vc_32f,   VC, S, float,  N_Z_S, ownzelmSub_vc_32f, ownzelmSub_vc_32f_S2)
SINGLE(        zelmSub_vc_64f,   VC, S, double, N_Z_S, ownzelmSub_vc_64f, ownzelmSub_vc_64f_S2)
SINGLE(        zelmSub_cv_32f,   CV, S, float,  N_Z_S, ownzelmSub_cv_32f, ownzelmSub_cv_32f_S2)
SINGLE(        zelmSub_cv_64f,   CV, S, double, N_Z_S, ownzelmSub_cv_64f, ownzelmSub_cv_64f_S2)
SINGLE_POINTER(zelmSub_vv_32f_P, VV, P, float,  N_Z_H, ownzelmSub_vv_32f_P)
SINGLE_POINTER(zelmSub_vv_64f_P, VV, P, double, N_Z_H, ownzelmSub_vv_64f_P)
SINGLE_POINTER(zelmSub_vc_32f_P, VC, P, float,  N_Z_H, ownzelmSub_vc_32f_P)
SINGLE_POINTER(zelmSub_vc_64f_P, VC, P, double, N_Z_H, ownzelmSub_vc_64f_P)
SINGLE_POINTER(zelmSub_cv_32f_P, CV, P, float,  N_Z_H, ownzelmSub_cv_32f_P)
SINGLE_POINTER(zelmSub_cv_64f_P, CV, P, double, N_Z_H, ownzelmSub_cv_64f_P)
// clang-format on
