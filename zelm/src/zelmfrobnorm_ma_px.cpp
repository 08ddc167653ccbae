// Portable kernels: Frobenius norms of an array of matrices, any strides, list and pointer layout.
#include "zelmfrobnorm.h"

// clang-format off
//     kernel  arguments layout strides type  body: order of the sums
KERNEL(ownzelmFrobNorm_ma_32f_S2,  FROBNORM_MA, S, ANY,  float,  normsByRows)
KERNEL(ownzelmFrobNorm_ma_64f_S2,  FROBNORM_MA, S, ANY,  double, norms<InOrder>)
KERNEL(ownzelmFrobNorm_ma_32f_L,   FROBNORM_MA, L, UNIT, float,  normsByRows)
KERNEL(ownzelmFrobNorm_ma_64f_L,   FROBNORM_MA, L, UNIT, double, norms<InOrder>)
KERNEL(ownzelmFrobNorm_ma_32f_LS2, FROBNORM_MA, L, ANY,  float,  normsByRows)
KERNEL(ownzelmFrobNorm_ma_64f_LS2, FROBNORM_MA, L, ANY,  double, norms<InOrder>)
KERNEL(ownzelmFrobNorm_ma_32f_P,   FROBNORM_MA, P, ANY,  float,  norms<InOrder>)
KERNEL(ownzelmFrobNorm_ma_64f_P,   FROBNORM_MA, P, ANY,  double, norms<InOrder>)
// clang-format on
