// Portable kernels: determinant of a matrix, any strides and pointer layout.
#include "zelmdet.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmDet_m_32f_S2, DET_M, S, ANY, float,  determinants)
KERNEL(ownzelmDet_m_64f_S2, DET_M, S, ANY, double, determinants)
KERNEL(ownzelmDet_m_32f_P,  DET_M, P, ANY, float,  determinants)
KERNEL(ownzelmDet_m_64f_P,  DET_M, P, ANY, double, determinants)
// clang-format on
