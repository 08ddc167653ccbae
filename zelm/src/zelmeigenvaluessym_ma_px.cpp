// Portable kernels: eigenvalues of an array of symmetric matrices, any strides and pointer layout.
#include "zelmsymmetric.h"

// clang-format off
//     kernel  arguments strides type  body  limit of a determinant
KERNEL(ownzelmEigenValuesSym_ma_32f_S2,  SYM_VALUES_MA, S, ANY, float,  symmetricValues<Epsilon32f>)
KERNEL(ownzelmEigenValuesSym_ma_64f_S2,  SYM_VALUES_MA, S, ANY, double, symmetricValues<Epsilon64f>)
KERNEL(ownzelmEigenValuesSym_ma_32f_LS2, SYM_VALUES_MA, L, ANY, float,  symmetricValues<Epsilon32f>)
KERNEL(ownzelmEigenValuesSym_ma_64f_LS2, SYM_VALUES_MA, L, ANY, double, symmetricValues<Epsilon64f>)
KERNEL(ownzelmEigenValuesSym_ma_32f_P,   SYM_VALUES_MA, P, ANY, float,  symmetricValues<Epsilon32f>)
KERNEL(ownzelmEigenValuesSym_ma_64f_P,   SYM_VALUES_MA, P, ANY, double, symmetricValues<Epsilon64f>)
// clang-format on
