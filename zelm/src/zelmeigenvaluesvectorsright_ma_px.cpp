// Portable kernels: eigenvalues and right eigenvectors of an array of matrices.
#include "zelmeigenvectors.h"

// clang-format off
// The 64f kernels shift in single precision.
//     kernel, arguments, layout, strides, type, body with its shifts
KERNEL(ownzelmEigenValuesVectorsRight_ma_32f,   EIGEN_VECTORS_MA, S, ANY, float,  eigenVectorsRight<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsRight_ma_64f,   EIGEN_VECTORS_MA, S, ANY, double, eigenVectorsRight<WithVectors<SingleShifts>>)
KERNEL(ownzelmEigenValuesVectorsRight_ma_32f_L, EIGEN_VECTORS_MA, L, ANY, float,  eigenVectorsRight<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsRight_ma_64f_L, EIGEN_VECTORS_MA, L, ANY, double, eigenVectorsRight<WithVectors<SingleShifts>>)
KERNEL(ownzelmEigenValuesVectorsRight_ma_32f_P, EIGEN_VECTORS_MA, P, ANY, float,  eigenVectorsRight<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsRight_ma_64f_P, EIGEN_VECTORS_MA, P, ANY, double, eigenVectorsRight<WithVectors<SingleShifts>>)
// clang-format on
