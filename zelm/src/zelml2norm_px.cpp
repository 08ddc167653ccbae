// Portable kernels: L2Norm, any strides and pointer layout.
#include "zelmdotproduct.h"

// clang-format off
//     kernel  arguments  strides type  body
KERNEL(ownzelmL2Norm_v_32f_S2,   NORM_V,  S, ANY, float,  norms<TailFirst>)
KERNEL(ownzelmL2Norm_v_64f_S2,   NORM_V,  S, ANY, double, norms<TailFirst>)
KERNEL(ownzelmL2Norm_v_32f_P,    NORM_V,  P, ANY, float,  norms<TailFirst>)
KERNEL(ownzelmL2Norm_v_64f_P,    NORM_V,  P, ANY, double, norms<TailFirst>)
KERNEL(ownzelmL2Norm_va_32f_S2,  NORM_VA, S, ANY, float,  norms<TailFirst>)
KERNEL(ownzelmL2Norm_va_64f_S2,  NORM_VA, S, ANY, double, norms<TailFirst>)
KERNEL(ownzelmL2Norm_va_32f_LS2, NORM_VA, L, ANY, float,  norms<TailFirst>)
KERNEL(ownzelmL2Norm_va_64f_LS2, NORM_VA, L, ANY, double, norms<TailFirst>)
KERNEL(ownzelmL2Norm_va_32f_P,   NORM_VA, P, ANY, float,  norms<TailFirst>)
KERNEL(ownzelmL2Norm_va_64f_P,   NORM_VA, P, ANY, double, norms<TailFirst>)
// clang-format on
