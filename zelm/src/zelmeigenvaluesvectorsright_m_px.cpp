// Portable kernels: eigenvalues and right eigenvectors of a matrix.
#include "zelmeigenvectors.h"

// clang-format off
// The 64f kernels shift in single precision.
//     kernel, arguments, layout, strides, type, body with its shifts
KERNEL(ownzelmEigenValuesVectorsRight_m_32f,   EIGEN_VECTORS_M, S, ANY, float,  eigenVectorsRight<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsRight_m_64f,   EIGEN_VECTORS_M, S, ANY, double, eigenVectorsRight<WithVectors<SingleShifts>>)
KERNEL(ownzelmEigenValuesVectorsRight_m_32f_P, EIGEN_VECTORS_M, P, ANY, float,  eigenVectorsRight<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsRight_m_64f_P, EIGEN_VECTORS_M, P, ANY, double, eigenVectorsRight<WithVectors<SingleShifts>>)
// clang-format on
