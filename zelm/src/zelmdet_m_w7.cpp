// Kernels on two-wide `64f` vectors: determinant of a matrix, unit strides.
#include "zelmdet.h"

// clang-format off
//     kernel  arguments layout strides type  body
KERNEL(ownzelmDet_m_64f, DET_M, S, UNIT, double, determinants)
// clang-format on
