// Exported functions: eigenvalues of a symmetric matrix.
#include "zelmsymmetricsignature.h"

// clang-format off
//     exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmEigenValuesSym_m_32f, SYM_VALUES_M, S, float,  N_Z_S, ownzelmEigenValuesSym_m_32f, ownzelmEigenValuesSym_m_32f_S2)
SINGLE(zelmEigenValuesSym_m_64f, SYM_VALUES_M, S, double, N_Z_S, ownzelmEigenValuesSym_m_64f, ownzelmEigenValuesSym_m_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmEigenValuesSym_m_32f_P, SYM_VALUES_M, P, float,  N_Z_H, ownzelmEigenValuesSym_m_32f_P)
SINGLE_POINTER(zelmEigenValuesSym_m_64f_P, SYM_VALUES_M, P, double, N_Z_H, ownzelmEigenValuesSym_m_64f_P)
// clang-format on
