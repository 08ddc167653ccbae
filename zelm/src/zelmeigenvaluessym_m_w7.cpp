// Kernels on two-wide `64f` vectors: eigenvalues of a symmetric matrix, unit strides.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limit of a determinant
KERNEL(ownzelmEigenValuesSym_m_64f, SYM_VALUES_M, S, UNIT, double, symmetricValues<Epsilon64f>)
// clang-format on
