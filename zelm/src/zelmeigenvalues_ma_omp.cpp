// Parallel fronts: eigenvalues of an array of matrices.
#include "zelmeigenvaluessignature.h"
#include "zelmfront.h"

// clang-format off
//            front, arguments, layout, type, statuses, kernel
FRONT_POINTER(ownOMP_zelmEigenValues_ma_32f,   EIGEN_VALUES_MA, S, float,  Merges, ownzelmEigenValues_ma_32f)
FRONT_POINTER(ownOMP_zelmEigenValues_ma_64f,   EIGEN_VALUES_MA, S, double, Merges, ownzelmEigenValues_ma_64f)
FRONT_POINTER(ownOMP_zelmEigenValues_ma_32f_L, EIGEN_VALUES_MA, L, float,  Merges, ownzelmEigenValues_ma_32f_L)
FRONT_POINTER(ownOMP_zelmEigenValues_ma_64f_L, EIGEN_VALUES_MA, L, double, Merges, ownzelmEigenValues_ma_64f_L)
FRONT_POINTER(ownOMP_zelmEigenValues_ma_32f_P, EIGEN_VALUES_MA, P, float,  Merges, ownzelmEigenValues_ma_32f_P)
FRONT_POINTER(ownOMP_zelmEigenValues_ma_64f_P, EIGEN_VALUES_MA, P, double, Merges, ownzelmEigenValues_ma_64f_P)
// clang-format on
