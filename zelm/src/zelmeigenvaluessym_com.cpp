// Eigenvalues of symmetric matrices: the arithmetic, which the kernels of all layouts share.
#include "zelmsymmetricstages.h"

namespace zelm {

template <class T> bool symmetricPair(T a, T b, T d, double limit, SymmetricPair<T>& pair) {
  constexpr T eps = symmetricEpsilon<T>;
  const T det = a * d - b * b;
  if (double{magnitude(det)} <= limit)
    return false;
  T t = a - d;
  const T w = b + b;
  const T disc = squareRoot(t * t + w * w);
  const T trace = a + d;
  // A trace below zero gives the smaller value first.
  if (trace > eps) {
    pair.values[0] = (disc + trace) * T(0.5);
    pair.values[1] = det / pair.values[0];
  } else if (trace < -eps) {
    pair.values[0] = (trace - disc) * T(0.5);
    pair.values[1] = det / pair.values[0];
  } else {
    pair.values[0] = disc * T(0.5);
    pair.values[1] = disc * T(-0.5);
  }

  const bool ascends = trace < -eps;
  const bool rises = t >= -eps;
  t = rises ? t + disc : t - disc;
  T x = 1, y = 0;
  if (magnitude(w) < magnitude(t)) {
    const T q = (0 - w) / t;
    y = 1 / squareRoot(q * q + 1);
    x = q * y;
  } else if (magnitude(w) > eps) {
    const T q = (0 - t) / w;
    x = 1 / squareRoot(q * q + 1);
    y = q * x;
  }
  const bool crossed = ascends != rises;
  const T p = crossed ? 0 - y : x;
  const T q = crossed ? x : y;
  pair.vectors[0] = p;
  pair.vectors[1] = 0 - q;
  pair.vectors[2] = q;
  pair.vectors[3] = p;
  return true;
}

template bool symmetricPair(float, float, float, double, SymmetricPair<float>&);
template bool symmetricPair(double, double, double, double, SymmetricPair<double>&);

template <class L> ZelStatus symmetricValuesOf(const Column<L>& b, const Column<L>& values, int n) {
  constexpr double limit{symmetricEpsilon<ElementOf<L>>};
  return symmetricSolve<L>(b, values, NoVectors{}, n, {limit, limit, true});
}

// clang-format off
template ZelStatus symmetricValuesOf(const Column<float>&, const Column<float>&, int);
template ZelStatus symmetricValuesOf(const Column<double>&, const Column<double>&, int);
template ZelStatus symmetricValuesOf(const Column<Lanes<float>>&, const Column<Lanes<float>>&, int);
template ZelStatus symmetricValuesOf(const Column<Lanes<double>>&, const Column<Lanes<double>>&, int);
template ZelStatus symmetricValuesOf(const Column<SymmetricLane<float>>&, const Column<SymmetricLane<float>>&, int);
template ZelStatus symmetricValuesOf(const Column<SymmetricLane<double>>&, const Column<SymmetricLane<double>>&, int);
// clang-format on

} // namespace zelm
