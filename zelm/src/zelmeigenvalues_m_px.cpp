// Portable kernels: eigenvalues of a matrix.
#include "zelmeigenvalues.h"

// clang-format off
//     kernel, arguments, layout, strides, type, body
KERNEL(ownzelmEigenValues_m_32f,   EIGEN_VALUES_M, S, ANY, float,  eigenValues)
KERNEL(ownzelmEigenValues_m_64f,   EIGEN_VALUES_M, S, ANY, double, eigenValues)
KERNEL(ownzelmEigenValues_m_32f_P, EIGEN_VALUES_M, P, ANY, float,  eigenValues)
KERNEL(ownzelmEigenValues_m_64f_P, EIGEN_VALUES_M, P, ANY, double, eigenValues)
// clang-format on
