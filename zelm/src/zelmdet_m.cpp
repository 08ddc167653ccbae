// Exported functions: determinant of a matrix.
#include "zelmdetsignature.h"

// clang-format off
//     exported function  arguments layout type  order of tests  kernels: unit strides, any
SINGLE(zelmDet_m_32f, DET_M, S, float,  N_Z_S, ownzelmDet_m_32f, ownzelmDet_m_32f_S2)
SINGLE(zelmDet_m_64f, DET_M, S, double, N_Z_S, ownzelmDet_m_64f, ownzelmDet_m_64f_S2)

//             exported function  arguments layout type  order of tests  kernel
SINGLE_POINTER(zelmDet_m_32f_P, DET_M, P, float,  N_Z_H, ownzelmDet_m_32f_P)
SINGLE_POINTER(zelmDet_m_64f_P, DET_M, P, double, N_Z_H, ownzelmDet_m_64f_P)
// clang-format on
