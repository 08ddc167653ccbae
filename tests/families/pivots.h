// Inputs of what eliminates with pivots.
#ifndef ZELMTEST_PIVOTS_H
#define ZELMTEST_PIVOTS_H

#include "../harness/job.h"

#include <cmath>
#include <limits>

namespace zelmtest {

// So many numbers further from zero, or nearer.
template <class T> T beside(T x, int steps) {
  for (; steps > 0; --steps)
    x = std::nextafter(x, std::numeric_limits<T>::infinity());
  for (; steps < 0; ++steps)
    x = std::nextafter(x, T(0));
  return x;
}

// Of either sign, from 0.5 to 1.5.
template <class T> T pivotValue(Rng& rng) {
  return static_cast<T>((rng.chance(2) ? 1 : -1) * (0.5 + rng.below(1 << 20) * 0x1p-20));
}

} // namespace zelmtest

#endif
