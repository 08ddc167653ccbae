// Portable kernels: eigenvalues and eigenvectors of an array of symmetric matrices, any strides and pointer layout.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limits: reduction, product
KERNEL(ownzelmEigenValuesVectorsSym_ma_32f_S2,  SYM_VECTORS_MA, S, ANY, float,  symmetricVectors<Epsilon32f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_ma_64f_S2,  SYM_VECTORS_MA, S, ANY, double, symmetricVectors<Epsilon64f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_ma_32f_LS2, SYM_VECTORS_MA, L, ANY, float,  symmetricVectors<Epsilon32f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_ma_64f_LS2, SYM_VECTORS_MA, L, ANY, double, symmetricVectors<Epsilon64f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_ma_32f_P,   SYM_VECTORS_MA, P, ANY, float,  symmetricVectors<Epsilon32f, Epsilon32f>)
KERNEL(ownzelmEigenValuesVectorsSym_ma_64f_P,   SYM_VECTORS_MA, P, ANY, double, symmetricVectors<Epsilon64f, Epsilon32f>)
// clang-format on
