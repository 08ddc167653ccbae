// Portable kernels: eigenvalues of a symmetric matrix, any strides and pointer layout.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limit of a determinant
KERNEL(ownzelmEigenValuesSym_m_32f_S2, SYM_VALUES_M, S, ANY, float,  symmetricValues<Epsilon32f>)
KERNEL(ownzelmEigenValuesSym_m_64f_S2, SYM_VALUES_M, S, ANY, double, symmetricValues<Epsilon64f>)
KERNEL(ownzelmEigenValuesSym_m_32f_P,  SYM_VALUES_M, P, ANY, float,  symmetricValues<Epsilon32f>)
KERNEL(ownzelmEigenValuesSym_m_64f_P,  SYM_VALUES_M, P, ANY, double, symmetricValues<Epsilon64f>)
// clang-format on
