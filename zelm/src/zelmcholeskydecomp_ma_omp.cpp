// Parallel fronts: Cholesky decomposition of an array of matrices.
#include "zelmcholeskysignature.h"
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmCholeskyDecomp_ma_32f,   CHOLESKY_FACTOR_MA, S, float,  Merges, ownzelmCholeskyDecomp_ma_32f,   ownzelmCholeskyDecomp_ma_32f_S2)
FRONT(ownOMP_zelmCholeskyDecomp_ma_64f,   CHOLESKY_FACTOR_MA, S, double, Merges, ownzelmCholeskyDecomp_ma_64f,   ownzelmCholeskyDecomp_ma_64f_S2)
FRONT(ownOMP_zelmCholeskyDecomp_ma_32f_L, CHOLESKY_FACTOR_MA, L, float,  Merges, ownzelmCholeskyDecomp_ma_32f_L, ownzelmCholeskyDecomp_ma_32f_LS2)
FRONT(ownOMP_zelmCholeskyDecomp_ma_64f_L, CHOLESKY_FACTOR_MA, L, double, Merges, ownzelmCholeskyDecomp_ma_64f_L, ownzelmCholeskyDecomp_ma_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmCholeskyDecomp_ma_32f_P, CHOLESKY_FACTOR_MA, P, float,  Merges, ownzelmCholeskyDecomp_ma_32f_P)
FRONT_POINTER(ownOMP_zelmCholeskyDecomp_ma_64f_P, CHOLESKY_FACTOR_MA, P, double, Merges, ownzelmCholeskyDecomp_ma_64f_P)
// clang-format on
