// Portable kernels: eigenvalues and left eigenvectors of an array of matrices.
#include "zelmeigenvectors.h"

// clang-format off
// The 64f kernels shift in single precision.
//     kernel, arguments, layout, strides, type, body with its shifts
KERNEL(ownzelmEigenValuesVectorsLeft_ma_32f,   EIGEN_VECTORS_MA, S, ANY, float,  eigenVectorsLeft<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsLeft_ma_64f,   EIGEN_VECTORS_MA, S, ANY, double, eigenVectorsLeft<WithVectors<SingleShifts>>)
KERNEL(ownzelmEigenValuesVectorsLeft_ma_32f_L, EIGEN_VECTORS_MA, L, ANY, float,  eigenVectorsLeft<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsLeft_ma_64f_L, EIGEN_VECTORS_MA, L, ANY, double, eigenVectorsLeft<WithVectors<SingleShifts>>)
KERNEL(ownzelmEigenValuesVectorsLeft_ma_32f_P, EIGEN_VECTORS_MA, P, ANY, float,  eigenVectorsLeft<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectorsLeft_ma_64f_P, EIGEN_VECTORS_MA, P, ANY, double, eigenVectorsLeft<WithVectors<SingleShifts>>)
// clang-format on
