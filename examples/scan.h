// A scan: points, perhaps with triangles between them; and the little vector algebra that single points need.
#ifndef SCAN_H
#define SCAN_H

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

using Vec3 = std::array<double, 3>;
using Triangle = std::array<int32_t, 3>;

struct Scan {
  std::vector<Vec3> points;
  std::vector<Triangle> triangles; // polygons are cut into triangles around their first corner
};

inline Vec3 operator+(const Vec3& a, const Vec3& b) {
  return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}
inline Vec3 operator-(const Vec3& a, const Vec3& b) {
  return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
inline Vec3 operator*(double s, const Vec3& a) {
  return {s * a[0], s * a[1], s * a[2]};
}
inline double dot(const Vec3& a, const Vec3& b) {
  return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
inline double length(const Vec3& a) {
  return std::sqrt(dot(a, a));
}
inline Vec3 cross(const Vec3& a, const Vec3& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
inline Vec3 unit(const Vec3& a) {
  const double l = length(a);
  return l > 0 ? (1 / l) * a : Vec3{};
}

#endif
