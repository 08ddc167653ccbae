// Exported functions: LUDecomp on arrays of matrices.
#include "zelmlusignature.h"

// clang-format off
//           exported function      arguments      type    order of tests, estimate, forks: unit strides, any    kernels: unit strides, any                          front
STRIDE_FIRST(zelmLUDecomp_ma_32f,    LUDECOMP_MA, S, float,  N_C_Z_S,   squares, from(1001), from(1001), ownzelmLUDecomp_ma_32f,     ownzelmLUDecomp_ma_32f_S2,    ownOMP_zelmLUDecomp_ma_32f)
STRIDE_FIRST(zelmLUDecomp_ma_64f,    LUDECOMP_MA, S, double, N_C_Z_S,   squares, from(1001), from(1001), ownzelmLUDecomp_ma_64f,     ownzelmLUDecomp_ma_64f_S2,    ownOMP_zelmLUDecomp_ma_64f)
STRIDE_FIRST(zelmLUDecomp_ma_32f_L,  LUDECOMP_MA, L, float,  N_C_Z_S_H, squares, from(1001), from(1001), ownzelmLUDecomp_ma_32f_L,   ownzelmLUDecomp_ma_32f_LS2,   ownOMP_zelmLUDecomp_ma_32f_L)
STRIDE_FIRST(zelmLUDecomp_ma_64f_L,  LUDECOMP_MA, L, double, N_C_Z_S_H, squares, from(1001), from(1001), ownzelmLUDecomp_ma_64f_L,   ownzelmLUDecomp_ma_64f_LS2,   ownOMP_zelmLUDecomp_ma_64f_L)

//            exported function      arguments      type    order of tests, estimate, forks     kernel                    front
ARRAY_POINTER(zelmLUDecomp_ma_32f_P, LUDECOMP_MA, P, float,  N_C_Z_S_H, squares, from(1001), ownzelmLUDecomp_ma_32f_P, ownOMP_zelmLUDecomp_ma_32f_P)
ARRAY_POINTER(zelmLUDecomp_ma_64f_P, LUDECOMP_MA, P, double, N_C_Z_S_H, squares, from(1001), ownzelmLUDecomp_ma_64f_P, ownOMP_zelmLUDecomp_ma_64f_P)
// clang-format on
