// Exported functions: eigenvalues of a matrix.
#include "zelmeigenvaluessignature.h"

// clang-format off
// One kernel takes any strides.
//             exported function, arguments, layout, type, order of tests, kernel
SINGLE_POINTER(zelmEigenValues_m_32f,   EIGEN_VALUES_M, S, float,  N_Z_S, ownzelmEigenValues_m_32f)
SINGLE_POINTER(zelmEigenValues_m_64f,   EIGEN_VALUES_M, S, double, N_Z_S, ownzelmEigenValues_m_64f)
SINGLE_POINTER(zelmEigenValues_m_32f_P, EIGEN_VALUES_M, P, float,  N_Z_H, ownzelmEigenValues_m_32f_P)
SINGLE_POINTER(zelmEigenValues_m_64f_P, EIGEN_VALUES_M, P, double, N_Z_H, ownzelmEigenValues_m_64f_P)
// clang-format on
