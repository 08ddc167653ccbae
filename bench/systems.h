// What the benchmarks of the factorisations share: the pointer layout's view of a packed operand.
#pragma once

#include "bench.h"

#include <vector>

namespace bench {

// A copy of packed objects with a run for each element position, stride0 being the element size. Where the operand is a
// result, its memory itself is cut into such runs.
template <class T> struct Positions {
  std::vector<T> copy;
  std::vector<T*> list;

  void take(const Block& block, int operand, int elements) {
    const T* from = source<T>(block, operand);
    const auto count = static_cast<std::size_t>(block.count);
    const auto each = static_cast<std::size_t>(elements);
    copy.resize(count * each);
    for (std::size_t k = 0; k < count; ++k)
      for (std::size_t p = 0; p < each; ++p)
        copy[p * count + k] = from[k * each + p];
    cut(copy.data(), block, elements);
  }
  void cut(T* at, const Block& block, int elements) {
    list.clear();
    for (int p = 0; p < elements; ++p)
      list.push_back(at + static_cast<std::ptrdiff_t>(p) * block.count);
  }
};

// Decomposition and solution: matrices, right-hand sides, factors, solutions.
template <class T> struct SystemPositions {
  Positions<T> matrices, sides, factors, solutions;

  void take(const Block& block, int width, int height) {
    matrices.take(block, 0, width * height);
    sides.take(block, 1, height);
    factors.cut(result<T>(block, 2), block, width * height);
    solutions.cut(result<T>(block, 3), block, width);
  }
};

} // namespace bench
