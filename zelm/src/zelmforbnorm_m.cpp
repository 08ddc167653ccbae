// Exported functions: Frobenius norm of a matrix.
#include "zelmfrobnormsignature.h"

// clang-format off
// One kernel for all strides.
//             exported function  arguments layout type  order of tests  kernel
SINGLE_POINTER(zelmFrobNorm_m_32f,   FROBNORM_M, S, float,  N_Z_S, ownzelmFrobNorm_m_32f)
SINGLE_POINTER(zelmFrobNorm_m_64f,   FROBNORM_M, S, double, N_Z_S, ownzelmFrobNorm_m_64f)
SINGLE_POINTER(zelmFrobNorm_m_32f_P, FROBNORM_M, P, float,  N_Z_H, ownzelmFrobNorm_m_32f_P)
SINGLE_POINTER(zelmFrobNorm_m_64f_P, FROBNORM_M, P, double, N_Z_H, ownzelmFrobNorm_m_64f_P)
// clang-format on
