// Kernel on four-wide `32f` vectors: AffineTransform3DH on an array of points, unit strides.
#include "zelmaffine.h"

// clang-format off
KERNEL(ownzelmAffineTransform3DH_mva_32f, AFFINE_MVA, S, UNIT, float, transformPoints)
// clang-format on
