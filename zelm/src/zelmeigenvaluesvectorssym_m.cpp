// Exported functions: eigenvalues and eigenvectors of a symmetric matrix.
#include "zelmsymmetricsignature.h"

// clang-format off
//     exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmEigenValuesVectorsSym_m_32f, SYM_VECTORS_M, S, float,  N_Z_S, ownzelmEigenValuesVectorsSym_m_32f, ownzelmEigenValuesVectorsSym_m_32f_S2)
SINGLE(zelmEigenValuesVectorsSym_m_64f, SYM_VECTORS_M, S, double, N_Z_S, ownzelmEigenValuesVectorsSym_m_64f, ownzelmEigenValuesVectorsSym_m_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmEigenValuesVectorsSym_m_32f_P, SYM_VECTORS_M, P, float,  N_Z_H, ownzelmEigenValuesVectorsSym_m_32f_P)
SINGLE_POINTER(zelmEigenValuesVectorsSym_m_64f_P, SYM_VECTORS_M, P, double, N_Z_H, ownzelmEigenValuesVectorsSym_m_64f_P)
// clang-format on
