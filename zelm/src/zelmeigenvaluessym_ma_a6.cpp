// Kernels on four-wide `32f` vectors: eigenvalues of an array of symmetric matrices, unit strides.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limit of a determinant
KERNEL(ownzelmEigenValuesSym_ma_32f,   SYM_VALUES_MA, S, UNIT, float, symmetricValues<Epsilon64f>)
KERNEL(ownzelmEigenValuesSym_ma_32f_L, SYM_VALUES_MA, L, UNIT, float, symmetricValues<Epsilon32f>)
// clang-format on
