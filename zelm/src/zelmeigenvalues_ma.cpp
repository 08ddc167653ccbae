// Exported functions: eigenvalues of an array of matrices.
#include "zelmeigenvaluessignature.h"

// clang-format off
// One kernel takes any strides.
//            exported function, arguments, layout, type, order of tests, estimate, forks, kernel, front
ARRAY_POINTER(zelmEigenValues_ma_32f,   EIGEN_VALUES_MA, S, float,  N_Z_C_S,   eigenValuesWork, from(251), ownzelmEigenValues_ma_32f,   ownOMP_zelmEigenValues_ma_32f)
ARRAY_POINTER(zelmEigenValues_ma_64f,   EIGEN_VALUES_MA, S, double, N_Z_C_S,   eigenValuesWork, from(251), ownzelmEigenValues_ma_64f,   ownOMP_zelmEigenValues_ma_64f)
ARRAY_POINTER(zelmEigenValues_ma_32f_L, EIGEN_VALUES_MA, L, float,  N_Z_C_H_S, eigenValuesWork, from(251), ownzelmEigenValues_ma_32f_L, ownOMP_zelmEigenValues_ma_32f_L)
ARRAY_POINTER(zelmEigenValues_ma_64f_L, EIGEN_VALUES_MA, L, double, N_Z_C_H_S, eigenValuesWork, from(251), ownzelmEigenValues_ma_64f_L, ownOMP_zelmEigenValues_ma_64f_L)
ARRAY_POINTER(zelmEigenValues_ma_32f_P, EIGEN_VALUES_MA, P, float,  N_Z_C_H_S, eigenValuesWork, from(251), ownzelmEigenValues_ma_32f_P, ownOMP_zelmEigenValues_ma_32f_P)
ARRAY_POINTER(zelmEigenValues_ma_64f_P, EIGEN_VALUES_MA, P, double, N_Z_C_H_S, eigenValuesWork, from(251), ownzelmEigenValues_ma_64f_P, ownOMP_zelmEigenValues_ma_64f_P)
// clang-format on
