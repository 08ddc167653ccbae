// Kernels on two-wide `64f` vectors: eigenvalues of an array of symmetric matrices, unit strides.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limit of a determinant
KERNEL(ownzelmEigenValuesSym_ma_64f,   SYM_VALUES_MA, S, UNIT, double, symmetricValues<Epsilon64f>)
KERNEL(ownzelmEigenValuesSym_ma_64f_L, SYM_VALUES_MA, L, UNIT, double, symmetricValues<Epsilon64f>)
// clang-format on
