// Eigenvalues and eigenvectors of symmetric matrices: the arithmetic, which the kernels of all layouts share.
#include "zelmsymmetricstages.h"

namespace zelm {

template <class L, class Vectors>
ZelStatus symmetricVectorsOf(L* b, L* values, const Vectors& v, int n, const SymmetricLimits& limits) {
  return symmetricSolve<L>(b, values, v, n, limits);
}

// clang-format off
template ZelStatus symmetricVectorsOf(float*, float*, const AnyMatrixView<float>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(double*, double*, const AnyMatrixView<double>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(float*, float*, const PointerMatrixView<float>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(double*, double*, const PointerMatrixView<double>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(Lanes<float>*, Lanes<float>*, const Square<Lanes<float>>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(Lanes<double>*, Lanes<double>*, const Square<Lanes<double>>&, int, const SymmetricLimits&);
// clang-format on

} // namespace zelm
