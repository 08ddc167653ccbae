// Parallel fronts: eigenvalues and eigenvectors of an array of symmetric matrices.
#include "zelmfront.h"
#include "zelmsymmetricsignature.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmEigenValuesVectorsSym_ma_32f,   SYM_VECTORS_MA, S, float,  Merges, ownzelmEigenValuesVectorsSym_ma_32f,   ownzelmEigenValuesVectorsSym_ma_32f_S2)
FRONT(ownOMP_zelmEigenValuesVectorsSym_ma_64f,   SYM_VECTORS_MA, S, double, Merges, ownzelmEigenValuesVectorsSym_ma_64f,   ownzelmEigenValuesVectorsSym_ma_64f_S2)
FRONT(ownOMP_zelmEigenValuesVectorsSym_ma_32f_L, SYM_VECTORS_MA, L, float,  Merges, ownzelmEigenValuesVectorsSym_ma_32f_L, ownzelmEigenValuesVectorsSym_ma_32f_LS2)
FRONT(ownOMP_zelmEigenValuesVectorsSym_ma_64f_L, SYM_VECTORS_MA, L, double, Merges, ownzelmEigenValuesVectorsSym_ma_64f_L, ownzelmEigenValuesVectorsSym_ma_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmEigenValuesVectorsSym_ma_32f_P, SYM_VECTORS_MA, P, float,  Merges, ownzelmEigenValuesVectorsSym_ma_32f_P)
FRONT_POINTER(ownOMP_zelmEigenValuesVectorsSym_ma_64f_P, SYM_VECTORS_MA, P, double, Merges, ownzelmEigenValuesVectorsSym_ma_64f_P)
// clang-format on
