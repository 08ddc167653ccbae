// Kernels on two-wide `64f` vectors: eigenvalues and eigenvectors of an array of symmetric matrices, unit strides.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limits: reduction, product
KERNEL(ownzelmEigenValuesVectorsSym_ma_64f,   SYM_VECTORS_MA, S, UNIT, double, symmetricVectors<Epsilon64f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_ma_64f_L, SYM_VECTORS_MA, L, UNIT, double, symmetricVectors<Epsilon64f, Epsilon32f>)
// clang-format on
