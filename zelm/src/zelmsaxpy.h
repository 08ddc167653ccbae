// Saxpy and LComb: what is computed of an element of each vector. A product is rounded before it is added.
#pragma once

#include "zelmrun.h"
#include "zelmvectorsignature.h"

namespace zelm {

struct ScaledPlus {
  template <class L> ZELM_INLINE L operator()(const L& a, const L& factor, const L& b) const { return a * factor + b; }
};

struct Combination {
  template <class L> ZELM_INLINE L operator()(const L& a, const L& factorOfA, const L& b, const L& factorOfB) const {
    return a * factorOfA + b * factorOfB;
  }
};

} // namespace zelm
