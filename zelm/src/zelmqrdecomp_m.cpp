// Exported functions: QR decomposition of a matrix.
#include "zelmqrsignature.h"

// clang-format off
//     exported function  arguments type  order of tests  kernels: unit strides, any
SINGLE(zelmQRDecomp_m_32f, QR_FACTOR_M, S, float,  N_Z_S_Shape, ownzelmQRDecomp_m_32f, ownzelmQRDecomp_m_32f_S2)
SINGLE(zelmQRDecomp_m_64f, QR_FACTOR_M, S, double, N_Z_S_Shape, ownzelmQRDecomp_m_64f, ownzelmQRDecomp_m_64f_S2)

//             exported function  arguments type  order of tests  kernel
SINGLE_POINTER(zelmQRDecomp_m_32f_P, QR_FACTOR_M, P, float,  N_Z_H_Shape, ownzelmQRDecomp_m_32f_P)
SINGLE_POINTER(zelmQRDecomp_m_64f_P, QR_FACTOR_M, P, double, N_Z_H_Shape, ownzelmQRDecomp_m_64f_P)
// clang-format on
