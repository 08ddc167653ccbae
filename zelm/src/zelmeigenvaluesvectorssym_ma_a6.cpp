// Kernels on four-wide `32f` vectors: eigenvalues and eigenvectors of an array of symmetric matrices, unit strides.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limits: reduction, product
KERNEL(ownzelmEigenValuesVectorsSym_ma_32f,   SYM_VECTORS_MA, S, UNIT, float, symmetricVectors<Epsilon32f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_ma_32f_L, SYM_VECTORS_MA, L, UNIT, float, symmetricVectors<Epsilon64f, Epsilon32f>)
// clang-format on
