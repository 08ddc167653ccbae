#include "tidy.h"
#include <algorithm>
#include <cstring>

namespace {

// The same for points that are equal, -0 and 0 among them.
std::size_t hash(const Vec3& point) {
  uint64_t mixed = 0;
  for (double x : point) {
    uint64_t bits;
    x += 0.0;
    std::memcpy(&bits, &x, sizeof bits);
    mixed = (mixed ^ bits) * 0x9e3779b97f4a7c15;
    mixed ^= mixed >> 32;
  }
  return std::size_t(mixed);
}

} // namespace

std::vector<int32_t> mergeDuplicates(Scan& scan) {
  std::size_t size = 16;
  while (size < 2 * scan.points.size())
    size *= 2;
  std::vector<int32_t> table(size, -1), renamed;
  renamed.reserve(scan.points.size());
  std::vector<Vec3> points;
  points.reserve(scan.points.size());
  for (const Vec3& point : scan.points) {
    std::size_t slot = hash(point) & (size - 1);
    while (table[slot] >= 0 && points[size_t(table[slot])] != point)
      slot = (slot + 1) & (size - 1);
    if (table[slot] < 0) {
      table[slot] = static_cast<int32_t>(points.size());
      points.push_back(point);
    }
    renamed.push_back(table[slot]);
  }
  std::vector<Triangle> triangles;
  triangles.reserve(scan.triangles.size());
  for (const Triangle& t : scan.triangles) {
    const Triangle r = {renamed[size_t(t[0])], renamed[size_t(t[1])], renamed[size_t(t[2])]};
    if (r[0] != r[1] && r[1] != r[2] && r[2] != r[0])
      triangles.push_back(r);
  }
  scan.points = std::move(points);
  scan.triangles = std::move(triangles);
  return renamed;
}

Place normalise(Scan& scan) {
  Vec3 low = scan.points[0], high = low;
  for (const Vec3& p : scan.points)
    for (size_t i = 0; i < 3; ++i) {
      low[i] = std::min(low[i], p[i]);
      high[i] = std::max(high[i], p[i]);
    }
  // Halved first: the difference of two finite numbers may be infinite.
  const Vec3 half = 0.5 * high - 0.5 * low;
  Place place{0.5 * low + 0.5 * high, std::max({half[0], half[1], half[2]})};
  if (!(place.unit > 0))
    place.unit = 1;
  for (Vec3& p : scan.points)
    for (size_t i = 0; i < 3; ++i)
      p[i] = (p[i] - place.centre[i]) / place.unit;
  return place;
}
