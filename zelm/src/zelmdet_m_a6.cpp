// Kernels on four-wide `32f` vectors: determinant of a matrix, unit strides.
#include "zelmdet.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmDet_m_32f, DET_M, S, UNIT, float, determinants)
// clang-format on
