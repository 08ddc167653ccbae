// Exported functions: Add on single vectors and constants.
#include "zelmframe.h"

// clang-format off
//             exported function, arguments, layout, type, order of tests, kernels: unit strides, any
SINGLE(        zelmAdd_vv_32f,   VV, S, float,  N_Z_S, ownzelmAdd_vv_32f, ownzelmAdd_vv_32f_S2)
SINGLE(        zelmAdd_vv_64f,   VV, S, double, N_Z_S, ownzelmAdd_vv_64f, ownzelmAdd_vv_64f_S2)
SINGLE(        zelmAdd_vc_32f,   VC, S, float,  N_Z_S, ownzelmAdd_vc_32f, ownzelmAdd_vc_32f_S2)
SINGLE(        zelmAdd_vc_64f,   VC, S, double, N_Z_S, ownzelmAdd_vc_64f, ownzelmAdd_vc_64f_S2)
SINGLE_POINTER(zelmAdd_vv_32f_P, VV, P, float,  N_Z_H, ownzelmAdd_vv_32f_P)
SINGLE_POINTER(zelmAdd_vv_64f_P, VV, P, double, N_Z_H, ownzelmAdd_vv_64f_P)
SINGLE_POINTER(zelmAdd_vc_32f_P, VC, P, float,  N_Z_H, ownzelmAdd_vc_32f_P)
SINGLE_POINTER(zelmAdd_vc_64f_P, VC, P, double, N_Z_H, ownzelmAdd_vc_64f_P)
// clang-format on
