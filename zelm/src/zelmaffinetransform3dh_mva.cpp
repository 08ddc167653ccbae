// Exported function: AffineTransform3DH on an array of points.
#include "zelmaffine.h"

namespace zelm {
namespace {

// A point in and a point out, and the matrix: 6 * count + 16.
struct PointsAndMatrix {
  template <class A, class B, class D> static Wrapping of(const A&, const B&, const D&, Count count) {
    return Wrapping(6) * count + 16;
  }
};

} // namespace
} // namespace zelm

// clang-format off
//             exported function               arguments     type   order  estimate         forks       kernels: unit strides, any                                        front
ESTIMATE_FIRST(zelmAffineTransform3DH_mva_32f, AFFINE_MVA_S, float, N_C_S, PointsAndMatrix, above(800), ownzelmAffineTransform3DH_mva_32f, ownzelmAffineTransform3DH_mva_32f_S2, ownOMP_zelmAffineTransform3DH_mva_32f)
// clang-format on
