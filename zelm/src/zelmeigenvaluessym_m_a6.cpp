// Kernels on four-wide `32f` vectors: eigenvalues of a symmetric matrix, unit strides.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limit of a determinant
KERNEL(ownzelmEigenValuesSym_m_32f, SYM_VALUES_M, S, UNIT, float, symmetricValues<Epsilon32f>)
// clang-format on
