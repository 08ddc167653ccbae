// What counts as singular in determinants and inverses, and the scratch of their elimination.
#pragma once

#include "zelmoperand.h"

namespace zelm {

// A pivot below this counts as zero, and so does a determinant: 2 n^3 times the smallest normal number. The cube wraps.
template <class T> constexpr T singularLimit(int32_t side) {
  const auto n = static_cast<uint32_t>(side);
  return static_cast<T>(static_cast<int32_t>(2 * n * n * n)) * static_cast<T>(sizeof(T) == 4 ? 0x1p-126 : 0x1p-1022);
}

// Elements of the buffer: a square matrix and an index of its rows. More than fits is the most that fits.
constexpr int32_t workingElements(int32_t side) {
  const int64_t elements = int64_t{side} * side + side;
  return elements <= INT32_MAX ? static_cast<int32_t>(elements) : INT32_MAX;
}

} // namespace zelm
