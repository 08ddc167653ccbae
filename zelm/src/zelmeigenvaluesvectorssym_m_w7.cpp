// Kernels on two-wide `64f` vectors: eigenvalues and eigenvectors of a symmetric matrix, unit strides.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limits: reduction, product
KERNEL(ownzelmEigenValuesVectorsSym_m_64f, SYM_VECTORS_M, S, UNIT, double, symmetricVectors<Epsilon64f, Epsilon64f>)
// clang-format on
