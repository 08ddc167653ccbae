// Exported function: AffineTransform3DH on an array of points.
#include "zelmaffinesignature.h"

// clang-format off
//             exported function               arguments     type   order  estimate         forks       kernels: unit strides, any                                        front
ESTIMATE_FIRST(zelmAffineTransform3DH_mva_32f, AFFINE_MVA, S, float, N_C_S, pointsAndMatrix, above(800), ownzelmAffineTransform3DH_mva_32f, ownzelmAffineTransform3DH_mva_32f_S2, ownOMP_zelmAffineTransform3DH_mva_32f)
// clang-format on
