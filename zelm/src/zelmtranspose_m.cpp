// Exported functions: Transpose on single matrices.
#include "zelmtransposesignature.h"

// clang-format off
//             exported function  arguments layout type  order  kernels: unit strides, any
SINGLE(        zelmTranspose_m_32f,   TRANSPOSE_M, S, float,  N_Z_S, ownzelmTranspose_m_32f,   ownzelmTranspose_m_32f_S2)
SINGLE(        zelmTranspose_m_64f,   TRANSPOSE_M, S, double, N_Z_S, ownzelmTranspose_m_64f,   ownzelmTranspose_m_64f_S2)
SINGLE_POINTER(zelmTranspose_m_32f_P, TRANSPOSE_M, P, float,  N_Z_H, ownzelmTranspose_m_32f_P)
SINGLE_POINTER(zelmTranspose_m_64f_P, TRANSPOSE_M, P, double, N_Z_H, ownzelmTranspose_m_64f_P)
// clang-format on
