// Exported functions: eigenvalues, right and left eigenvectors of a matrix.
#include "zelmeigenvaluessignature.h"

// clang-format off
// One kernel takes any strides.
//             exported function, arguments, layout, type, order of tests, kernel
SINGLE_POINTER(zelmEigenValuesVectors_m_32f,   EIGEN_BOTH_VECTORS_M, S, float,  N_Z_S, ownzelmEigenValuesVectors_m_32f)
SINGLE_POINTER(zelmEigenValuesVectors_m_64f,   EIGEN_BOTH_VECTORS_M, S, double, N_Z_S, ownzelmEigenValuesVectors_m_64f)
SINGLE_POINTER(zelmEigenValuesVectors_m_32f_P, EIGEN_BOTH_VECTORS_M, P, float,  N_Z_H, ownzelmEigenValuesVectors_m_32f_P)
SINGLE_POINTER(zelmEigenValuesVectors_m_64f_P, EIGEN_BOTH_VECTORS_M, P, double, N_Z_H, ownzelmEigenValuesVectors_m_64f_P)
// clang-format on
