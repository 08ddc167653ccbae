// Portable kernel: AffineTransform3DH on an array of points, any strides.
#include "zelmaffine.h"

// clang-format off
KERNEL(ownzelmAffineTransform3DH_mva_32f_S2, AFFINE_MVA, S, ANY, float, transformPoints)
// clang-format on
