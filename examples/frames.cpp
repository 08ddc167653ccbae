#include "frames.h"
#include "check.h"
#include <algorithm>

namespace {

// The covariance matrix relative to its trace, and the unit matrix added. Its eigenvectors are the same; its
// eigenvalues, 1 more and so between 1 and 2, are far from what the solver takes for singular.
Matrix3 shifted(const Matrix4& moments) {
  const double share = 1 / moments[0][0]; // of one point
  Matrix3 matrix;
  double trace = 0;
  for (size_t i = 0; i < 3; ++i) {
    for (size_t j = 0; j < 3; ++j)
      matrix[i][j] = moments[i + 1][j + 1] - share * moments[0][i + 1] * moments[0][j + 1];
    trace += matrix[i][i];
  }
  const double scale = trace > 1e-280 ? 1 / trace : 0; // points that are so near are one
  for (size_t i = 0; i < 3; ++i)
    for (size_t j = 0; j < 3; ++j)
      matrix[i][j] = scale * matrix[i][j] + (i == j);
  return matrix;
}

} // namespace

void PrincipalFrames::find(const Batch& batch, const std::vector<Point4>& gathered) {
  const auto count = int32_t(batch.count);
  const double* const rows = gathered[0].element;
  check(zelmMul_tama_64f(rows, batch.height * 32, 32, 8, 4, batch.height, rows, batch.height * 32, 32, 8, 4,
                         batch.height, moments[0][0].element, 128, 32, 8, count),
        "zelmMul_tama_64f");
  for (size_t k = 0; k < batch.count; ++k) {
    const Matrix4& m = moments[k];
    matrices[k] = shifted(m);
    radii[k] = std::sqrt(2 * (m[1][1] + m[2][2] + m[3][3]) / m[0][0]);
  }
  Matrix3 buffer;
  check(zelmEigenValuesVectorsSym_ma_64f(&matrices[0][0][0], 72, 24, 8, &buffer[0][0], &vectors[0][0][0], 72, 24, 8,
                                         &values[0][0], 3, count),
        "zelmEigenValuesVectorsSym_ma_64f");
}

Matrix3 frameOf(const Vec3& normal) {
  Vec3 axis{};
  axis[size_t(
      std::min_element(normal.begin(), normal.end(), [](double a, double b) { return std::abs(a) < std::abs(b); }) -
      normal.begin())] = 1;
  const Vec3 x = unit(cross(axis, normal)), y = cross(normal, x);
  return {Vec3{x[0], y[0], normal[0]}, Vec3{x[1], y[1], normal[1]}, Vec3{x[2], y[2], normal[2]}};
}
