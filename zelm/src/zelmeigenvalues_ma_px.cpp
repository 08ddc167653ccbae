// Portable kernels: eigenvalues of an array of matrices.
#include "zelmeigenvalues.h"

// clang-format off
//     kernel, arguments, layout, strides, type, body
KERNEL(ownzelmEigenValues_ma_32f,   EIGEN_VALUES_MA, S, ANY, float,  eigenValues)
KERNEL(ownzelmEigenValues_ma_64f,   EIGEN_VALUES_MA, S, ANY, double, eigenValues)
KERNEL(ownzelmEigenValues_ma_32f_L, EIGEN_VALUES_MA, L, ANY, float,  eigenValues)
KERNEL(ownzelmEigenValues_ma_64f_L, EIGEN_VALUES_MA, L, ANY, double, eigenValues)
KERNEL(ownzelmEigenValues_ma_32f_P, EIGEN_VALUES_MA, P, ANY, float,  eigenValues)
KERNEL(ownzelmEigenValues_ma_64f_P, EIGEN_VALUES_MA, P, ANY, double, eigenValues)
// clang-format on
