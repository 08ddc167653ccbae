// Parallel fronts: Cholesky decomposition of an array of matrices.
#include "zelmcholesky.h"
#include "zelmfront.h"

// clang-format off
//    front  arguments type  statuses  kernels: unit strides, any
FRONT(ownOMP_zelmCholeskyDecomp_ma_32f,   CHOLESKY_FACTOR_MA_S, float,  Merges, ownzelmCholeskyDecomp_ma_32f,   ownzelmCholeskyDecomp_ma_32f_S2)
FRONT(ownOMP_zelmCholeskyDecomp_ma_64f,   CHOLESKY_FACTOR_MA_S, double, Merges, ownzelmCholeskyDecomp_ma_64f,   ownzelmCholeskyDecomp_ma_64f_S2)
FRONT(ownOMP_zelmCholeskyDecomp_ma_32f_L, CHOLESKY_FACTOR_MA_L, float,  Merges, ownzelmCholeskyDecomp_ma_32f_L, ownzelmCholeskyDecomp_ma_32f_LS2)
FRONT(ownOMP_zelmCholeskyDecomp_ma_64f_L, CHOLESKY_FACTOR_MA_L, double, Merges, ownzelmCholeskyDecomp_ma_64f_L, ownzelmCholeskyDecomp_ma_64f_LS2)

//            front  arguments type  statuses  kernel
FRONT_POINTER(ownOMP_zelmCholeskyDecomp_ma_32f_P, CHOLESKY_FACTOR_MA_P, float,  Merges, ownzelmCholeskyDecomp_ma_32f_P)
FRONT_POINTER(ownOMP_zelmCholeskyDecomp_ma_64f_P, CHOLESKY_FACTOR_MA_P, double, Merges, ownzelmCholeskyDecomp_ma_64f_P)
// clang-format on
