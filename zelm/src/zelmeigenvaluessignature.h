// Eigenvalues and eigenvectors of general matrices: argument lists, tests, work estimates, sizes of the work buffers.
#pragma once

#include "zelmframe.h"

// clang-format off
#define EIGEN_VALUES(W, E)               ZELM_PLAIN(W, valuesRe, E, widthHeight), ZELM_PLAIN(W, valuesIm, E, widthHeight), ZELM_SIZE(W, widthHeight)
#define EIGEN_BUFFER(W, E)               ZELM_BUFFER(W, buffer, void, zelm::eigenBufferBytes<E>(widthHeight))
#define EIGEN_SOURCE(W, Y, E, M)         ZELM_##M##_##Y(W, src, const E)
#define EIGEN_VECTORS(W, Y, E, M)        EIGEN_SOURCE(W, Y, E, M), ZELM_##M##_##Y(W, vectors, E), EIGEN_VALUES(W, E)
#define EIGEN_BOTH_VECTORS(W, Y, E, M)   EIGEN_SOURCE(W, Y, E, M), ZELM_##M##_##Y(W, vectorsRight, E), ZELM_##M##_##Y(W, vectorsLeft, E), EIGEN_VALUES(W, E)

#define EIGEN_VALUES_M(W, Y, E)          EIGEN_SOURCE(W, Y, E, M), EIGEN_VALUES(W, E), EIGEN_BUFFER(W, E)
#define EIGEN_VALUES_MA(W, Y, E)         EIGEN_SOURCE(W, Y, E, MA), EIGEN_VALUES(W, E), ZELM_COUNT(W), EIGEN_BUFFER(W, E)
#define EIGEN_VECTORS_M(W, Y, E)         EIGEN_VECTORS(W, Y, E, M), EIGEN_BUFFER(W, E)
#define EIGEN_VECTORS_MA(W, Y, E)        EIGEN_VECTORS(W, Y, E, MA), ZELM_COUNT(W), EIGEN_BUFFER(W, E)
#define EIGEN_BOTH_VECTORS_M(W, Y, E)    EIGEN_BOTH_VECTORS(W, Y, E, M), EIGEN_BUFFER(W, E)
#define EIGEN_BOTH_VECTORS_MA(W, Y, E)   EIGEN_BOTH_VECTORS(W, Y, E, MA), ZELM_COUNT(W), EIGEN_BUFFER(W, E)
// clang-format on

namespace zelm {

// The bytes of a work buffer, as the queries report them: in 32 bits that wrap.
template <class T> constexpr int32_t eigenBytes(int32_t side, uint32_t squares) {
  const auto n = static_cast<uint32_t>(side);
  return static_cast<int32_t>(n * (squares * n + 5) * static_cast<uint32_t>(sizeof(T)));
}
// All four families' fronts take the vectors' size for each thread. One that has wrapped below zero cannot be had.
template <class T> constexpr int32_t eigenBufferBytes(int32_t side) {
  const int32_t bytes = eigenBytes<T>(side, 3);
  return bytes < 0 ? INT32_MAX : bytes;
}

constexpr Wrapping eigenValuesWork(Size widthHeight, Count count) {
  return Wrapping(widthHeight) * (Wrapping(widthHeight) + 1) * count;
}
constexpr Wrapping eigenVectorsWork(Size widthHeight, Count count) {
  return Wrapping(widthHeight) * (Wrapping(3) * widthHeight + 1) * count;
}

// The iteration's usual length, a step a value and a half; the vectors take as much again, and what is solved for them.
ZELM_WORK(EIGEN_VALUES_MA) = [](Size widthHeight, Count count) {
  const double n = widthHeight;
  return (30 * n + 100) * n * n * count;
};
constexpr double iterationAndVectors(Size widthHeight, Count count) {
  const double n = widthHeight;
  return (75 * n + 150) * n * n * count;
}
ZELM_WORK(EIGEN_VECTORS_MA) = iterationAndVectors;
ZELM_WORK(EIGEN_BOTH_VECTORS_MA) = iterationAndVectors;

} // namespace zelm
