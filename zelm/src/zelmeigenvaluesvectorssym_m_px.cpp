// Portable kernels: eigenvalues and eigenvectors of a symmetric matrix, any strides and pointer layout.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limits: reduction, product
KERNEL(ownzelmEigenValuesVectorsSym_m_32f_S2, SYM_VECTORS_M, S, ANY, float,  symmetricVectors<Epsilon32f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_m_64f_S2, SYM_VECTORS_M, S, ANY, double, symmetricVectors<Epsilon64f, Epsilon64f>)
KERNEL(ownzelmEigenValuesVectorsSym_m_32f_P,  SYM_VECTORS_M, P, ANY, float,  symmetricVectors<Epsilon32f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_m_64f_P,  SYM_VECTORS_M, P, ANY, double, symmetricVectors<Epsilon64f, Epsilon64f>)
// clang-format on
