#include "picture.h"
#include "check.h"
#include <algorithm>

namespace {

constexpr double margin = 0.06; // of the picture, around the scan

} // namespace

std::array<Vec3, 3> viewAxes(const View& view) {
  const double degree = std::acos(-1.0) / 180;
  const double ct = std::cos(view.turn * degree), st = std::sin(view.turn * degree);
  const double cu = std::cos(view.tilt * degree), su = std::sin(view.tilt * degree);
  return {Vec3{ct, 0, st}, Vec3{su * st, cu, -su * ct}, Vec3{-cu * st, su, cu * ct}};
}

void transformByLibrary(const Matrix4f& matrix, const std::vector<Point3f>& points, std::vector<Point3f>& moved) {
  moved.resize(points.size());
  check(zelmAffineTransform3DH_mva_32f(&matrix[0][0], 16, 4, &points[0][0], 12, 4, &moved[0][0], 12, 4,
                                       int32_t(points.size())),
        "zelmAffineTransform3DH_mva_32f");
}

void transformByLoop(const Matrix4f& matrix, const std::vector<Point3f>& points, std::vector<Point3f>& moved) {
  moved.resize(points.size());
  for (size_t k = 0; k < points.size(); ++k) {
    const Point3f& p = points[k];
    float y[4];
    for (size_t r = 0; r < 4; ++r)
      y[r] = ((matrix[r][0] * p[0] + matrix[r][3]) + matrix[r][1] * p[1]) + matrix[r][2] * p[2];
    const float reciprocal = 1 / y[3];
    moved[k] = {y[0] * reciprocal, y[1] * reciprocal, y[2] * reciprocal};
  }
}

Matrix4f pictureMatrix(const View& view, const std::vector<Point3f>& points) {
  const std::array<Vec3, 3> axes = viewAxes(view);
  Matrix4f matrix{};
  for (size_t i = 0; i < 3; ++i) {
    for (size_t r = 0; r < 3; ++r)
      matrix[r][i] = float(axes[r][i]);
    matrix[3][i] = float(-axes[2][i] / eyeDistance);
  }
  matrix[3][3] = 1;
  std::vector<Point3f> moved;
  transformByLibrary(matrix, points, moved);
  Point3f low = moved[0], high = low;
  for (const Point3f& p : moved)
    for (size_t i = 0; i < 2; ++i) {
      low[i] = std::min(low[i], p[i]);
      high[i] = std::max(high[i], p[i]);
    }
  // Into the middle of the picture. Multiples of the last row move what has been divided by the fourth coordinate.
  const double extentX = std::max(1e-6, double(high[0] - low[0])), extentY = std::max(1e-6, double(high[1] - low[1]));
  const double scale = (1 - 2 * margin) * std::min(view.width / extentX, view.height / extentY);
  const double moveX = 0.5 * view.width - scale * 0.5 * (double(low[0]) + high[0]);
  const double moveY = 0.5 * view.height + scale * 0.5 * (double(low[1]) + high[1]);
  for (size_t i = 0; i < 4; ++i) {
    matrix[0][i] = float(scale * matrix[0][i] + moveX * matrix[3][i]);
    matrix[1][i] = float(-scale * matrix[1][i] + moveY * matrix[3][i]);
  }
  return matrix;
}

Shape discs(const std::vector<Vec3>& points, const std::vector<Vec3>& normals, const std::vector<double>& radius,
            const std::vector<double>& values) {
  constexpr int32_t corners = 6;
  Shape shape;
  for (size_t v = 0; v < points.size(); ++v) {
    const Vec3& n = normals[v];
    // Two directions across the normal; any two for a point that has none.
    const Vec3 x = unit(std::abs(n[0]) < 0.7 ? Vec3{0, n[2], -n[1]} : Vec3{-n[2], 0, n[0]}), y = cross(n, x);
    const bool flat = length(x) > 0;
    const auto first = int32_t(shape.points.size());
    for (int32_t c = 0; c < corners; ++c) {
      const double angle = std::acos(-1.0) / 3 * c;
      const Vec3 p = points[v] + radius[v] * (std::cos(angle) * (flat ? x : Vec3{1, 0, 0}) +
                                              std::sin(angle) * (flat ? y : Vec3{0, 1, 0}));
      shape.points.push_back({float(p[0]), float(p[1]), float(p[2])});
      shape.normals.push_back(n);
      shape.values.push_back(values[v]);
      if (c >= 2)
        shape.triangles.push_back({first, first + c - 1, first + c});
    }
  }
  return shape;
}
