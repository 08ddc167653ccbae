// Parallel front: AffineTransform3DH on an array of points.
#include "zelmaffinesignature.h"
#include "zelmfront.h"

// clang-format off
FRONT(ownOMP_zelmAffineTransform3DH_mva_32f, AFFINE_MVA, S, float, Merges, ownzelmAffineTransform3DH_mva_32f, ownzelmAffineTransform3DH_mva_32f_S2)
// clang-format on
