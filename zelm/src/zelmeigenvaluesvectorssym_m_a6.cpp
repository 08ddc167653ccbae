// Kernels on four-wide `32f` vectors: eigenvalues and eigenvectors of a symmetric matrix, unit strides.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limits: reduction, product
KERNEL(ownzelmEigenValuesVectorsSym_m_32f, SYM_VECTORS_M, S, UNIT, float, symmetricVectors<Epsilon32f, Epsilon32f>)
// clang-format on
