// Exported functions: inverse of a matrix.
#include "zelminvertsignature.h"

// clang-format off
//     exported function  arguments layout type  order of tests  kernels: unit strides, any
SINGLE(zelmInvert_m_32f, INVERT_M, S, float,  N_Z_S_Elements, ownzelmInvert_m_32f, ownzelmInvert_m_32f_S2)
SINGLE(zelmInvert_m_64f, INVERT_M, S, double, N_Z_S_Elements, ownzelmInvert_m_64f, ownzelmInvert_m_64f_S2)

//             exported function  arguments layout type  order of tests  kernel
SINGLE_POINTER(zelmInvert_m_32f_P, INVERT_M, P, float,  N_Z_H_Elements, ownzelmInvert_m_32f_P)
SINGLE_POINTER(zelmInvert_m_64f_P, INVERT_M, P, double, N_Z_H_Elements, ownzelmInvert_m_64f_P)
// clang-format on
