// Exported functions: eigenvalues and left eigenvectors of a matrix.
#include "zelmeigenvaluessignature.h"

// clang-format off
// One kernel takes any strides.
//             exported function, arguments, layout, type, order of tests, kernel
SINGLE_POINTER(zelmEigenValuesVectorsLeft_m_32f,   EIGEN_VECTORS_M, S, float,  N_Z_S, ownzelmEigenValuesVectorsLeft_m_32f)
SINGLE_POINTER(zelmEigenValuesVectorsLeft_m_64f,   EIGEN_VECTORS_M, S, double, N_Z_S, ownzelmEigenValuesVectorsLeft_m_64f)
SINGLE_POINTER(zelmEigenValuesVectorsLeft_m_32f_P, EIGEN_VECTORS_M, P, float,  N_Z_H, ownzelmEigenValuesVectorsLeft_m_32f_P)
SINGLE_POINTER(zelmEigenValuesVectorsLeft_m_64f_P, EIGEN_VECTORS_M, P, double, N_Z_H, ownzelmEigenValuesVectorsLeft_m_64f_P)
// clang-format on
