// Portable kernels: eigenvalues, right and left eigenvectors of a matrix.
#include "zelmeigenvectors.h"

// clang-format off
// Alone among the 64f kernels with vectors these have shifts of their own precision.
//     kernel, arguments, layout, strides, type, body with its shifts
KERNEL(ownzelmEigenValuesVectors_m_32f,   EIGEN_BOTH_VECTORS_M, S, ANY, float,  eigenVectors<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectors_m_64f,   EIGEN_BOTH_VECTORS_M, S, ANY, double, eigenVectors<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectors_m_32f_P, EIGEN_BOTH_VECTORS_M, P, ANY, float,  eigenVectors<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectors_m_64f_P, EIGEN_BOTH_VECTORS_M, P, ANY, double, eigenVectors<WithVectors<ElementShifts>>)
// clang-format on
