// Portable kernels: eigenvalues, right and left eigenvectors of an array of matrices.
#include "zelmeigenvectors.h"

// clang-format off
// The 64f kernels shift in single precision, other than those of a single matrix.
//     kernel, arguments, layout, strides, type, body with its shifts
KERNEL(ownzelmEigenValuesVectors_ma_32f,   EIGEN_BOTH_VECTORS_MA, S, ANY, float,  eigenVectors<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectors_ma_64f,   EIGEN_BOTH_VECTORS_MA, S, ANY, double, eigenVectors<WithVectors<SingleShifts>>)
KERNEL(ownzelmEigenValuesVectors_ma_32f_L, EIGEN_BOTH_VECTORS_MA, L, ANY, float,  eigenVectors<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectors_ma_64f_L, EIGEN_BOTH_VECTORS_MA, L, ANY, double, eigenVectors<WithVectors<SingleShifts>>)
KERNEL(ownzelmEigenValuesVectors_ma_32f_P, EIGEN_BOTH_VECTORS_MA, P, ANY, float,  eigenVectors<WithVectors<ElementShifts>>)
KERNEL(ownzelmEigenValuesVectors_ma_64f_P, EIGEN_BOTH_VECTORS_MA, P, ANY, double, eigenVectors<WithVectors<SingleShifts>>)
// clang-format on
