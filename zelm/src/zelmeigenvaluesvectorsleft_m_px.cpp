// Portable kernels: eigenvalues and left eigenvectors of a matrix.
#include "zelmeigenvectors.h"

// clang-format off
// The 64f kernels shift in single precision.
//     kernel, arguments, layout, strides, type, body with its shifts
KERNEL(ownzelmEigenValuesVectorsLeft_m_32f,   EIGEN_VECTORS_M, S, ANY, float,  eigenVectorsLeft<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsLeft_m_64f,   EIGEN_VECTORS_M, S, ANY, double, eigenVectorsLeft<WithVectors<SingleShifts>>)
KERNEL(ownzelmEigenValuesVectorsLeft_m_32f_P, EIGEN_VECTORS_M, P, ANY, float,  eigenVectorsLeft<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsLeft_m_64f_P, EIGEN_VECTORS_M, P, ANY, double, eigenVectorsLeft<WithVectors<SingleShifts>>)
// clang-format on
