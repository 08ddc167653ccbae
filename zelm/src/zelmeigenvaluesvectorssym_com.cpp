// Eigenvalues and eigenvectors of symmetric matrices: the arithmetic, which the kernels of all layouts share.
#include "zelmsymmetricstages.h"

namespace zelm {

template <class L, class Vectors>
ZelStatus symmetricVectorsOf(const Column<L>& b, const Column<L>& values, const Vectors& v, int n,
                             const SymmetricLimits& limits) {
  return symmetricSolve<L>(b, values, v, n, limits);
}

// clang-format off
template ZelStatus symmetricVectorsOf(const Column<float>&, const Column<float>&, const AnyMatrixView<float>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(const Column<double>&, const Column<double>&, const AnyMatrixView<double>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(const Column<float>&, const Column<float>&, const PointerMatrixView<float>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(const Column<double>&, const Column<double>&, const PointerMatrixView<double>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(const Column<Lanes<float>>&, const Column<Lanes<float>>&, const Square<Lanes<float>>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(const Column<Lanes<double>>&, const Column<Lanes<double>>&, const Square<Lanes<double>>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(const Column<SymmetricLane<float>>&, const Column<SymmetricLane<float>>&, const Square<SymmetricLane<float>>&, int, const SymmetricLimits&);
template ZelStatus symmetricVectorsOf(const Column<SymmetricLane<double>>&, const Column<SymmetricLane<double>>&, const Square<SymmetricLane<double>>&, int, const SymmetricLimits&);
// clang-format on

} // namespace zelm
