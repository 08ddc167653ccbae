#include "orient.h"
#include <algorithm>

namespace {

// Points that wait for their side, those that agree best with a point that has its side before the others.
class Waiting {
public:
  void add(int32_t point, double agreement) {
    const auto place = std::min(size_t((1 - agreement) * steps), steps - 1);
    list[place].push_back(point);
    first = std::min(first, place);
  }
  // -1 when there are none.
  int32_t take() {
    while (first < steps && list[first].empty())
      ++first;
    if (first == steps)
      return -1;
    const int32_t point = list[first].back();
    list[first].pop_back();
    return point;
  }

private:
  static constexpr size_t steps = 64;
  std::vector<int32_t> list[steps];
  size_t first = steps;
};

class Orientation {
public:
  Orientation(const Scan& source, const Neighbours& near, Surface& turned)
      : scan(source), neighbours(near), surface(turned), decided(turned.size(), false) {}

  void byFaces(const std::vector<Vec3>& faces) {
    constexpr double clearly = 0.2;
    for (size_t v = 0; v < surface.size(); ++v) {
      const double along = dot(faces[v], surface[v].normal);
      if (!(tellsSide(faces[v], surface[v].radius) && along * along > clearly * clearly * dot(faces[v], faces[v])))
        continue;
      if (along < 0)
        turn(v);
      decided[v] = true;
    }
  }

  void byNeighbours() {
    if (std::find(decided.begin(), decided.end(), false) == decided.end())
      return;
    normals.reserve(surface.size());
    for (const SurfacePoint& point : surface)
      normals.push_back(point.normal);
    agreement.assign(surface.size(), -1);
    from.resize(surface.size());
    if (std::find(decided.begin(), decided.end(), true) != decided.end()) {
      for (size_t v = 0; v < surface.size(); ++v)
        if (!decided[v])
          lookAround(v);
      spread();
    }
    for (size_t v = 0; v < surface.size(); ++v) {
      if (decided[v] || normals[v] == Vec3{})
        continue;
      piece.clear();
      lookAround(v);
      const bool alone = agreement[v] < 0;
      if (alone) {
        decide(v);
        offer(v);
      }
      spread();
      if (alone)
        turnOutward();
    }
  }

private:
  void turn(size_t v) {
    surface[v].normal = -1.0 * surface[v].normal;
    surface[v].mean = -surface[v].mean;
    if (!normals.empty())
      normals[v] = surface[v].normal;
  }
  void decide(size_t v) {
    decided[v] = true;
    piece.push_back(int32_t(v));
  }

  // A point without a side takes it from the neighbour that agrees best, if one has a side.
  void lookAround(size_t v) {
    for (size_t i = neighbours.first[v]; i < neighbours.first[v + 1]; ++i)
      if (const auto w = size_t(neighbours.index[i]); decided[w])
        consider(w, v);
  }
  // And gives it to those that have none.
  void offer(size_t v) {
    for (size_t i = neighbours.first[v]; i < neighbours.first[v + 1]; ++i)
      if (const auto w = size_t(neighbours.index[i]); !decided[w])
        consider(v, w);
  }
  void consider(size_t giver, size_t taker) {
    if (normals[taker] == Vec3{})
      return;
    const double along = std::abs(dot(normals[giver], normals[taker]));
    if (along <= agreement[taker])
      return;
    agreement[taker] = along;
    from[taker] = int32_t(giver);
    waiting.add(int32_t(taker), along);
  }

  void spread() {
    for (int32_t taken; (taken = waiting.take()) >= 0;) {
      const auto v = size_t(taken);
      if (decided[v])
        continue;
      if (dot(normals[size_t(from[v])], normals[v]) < 0)
        turn(v);
      decide(v);
      offer(v);
    }
  }

  // Over a closed surface the sum of normal times place is positive if normals point outward, whatever its shape. What
  // is as good as flat gets normals with a positive largest coordinate.
  void turnOutward() {
    Vec3 centre{}, mean{};
    for (int32_t v : piece)
      centre = centre + (1 / double(piece.size())) * scan.points[size_t(v)];
    double outward = 0, size = 0;
    for (int32_t v : piece) {
      const Vec3 place = scan.points[size_t(v)] - centre;
      outward += dot(normals[size_t(v)], place);
      size += length(place);
      mean = mean + normals[size_t(v)];
    }
    if (std::abs(outward) < 1e-3 * size)
      outward =
          *std::max_element(mean.begin(), mean.end(), [](double a, double b) { return std::abs(a) < std::abs(b); });
    if (outward < 0)
      for (int32_t v : piece)
        turn(size_t(v));
  }

  const Scan& scan;
  const Neighbours& neighbours;
  Surface& surface;
  std::vector<char> decided;
  // What the way from neighbour to neighbour takes.
  std::vector<Vec3> normals;     // of the surface, side by side
  std::vector<double> agreement; // of a point that waits, with its giver
  std::vector<int32_t> from;     // the giver
  std::vector<int32_t> piece;    // points decided since a piece was begun
  Waiting waiting;
};

} // namespace

std::vector<Vec3> faceNormals(const Scan& scan) {
  std::vector<Vec3> sums(scan.points.size(), Vec3{});
  for (const Triangle& t : scan.triangles) {
    const Vec3 a = scan.points[size_t(t[0])];
    const Vec3 area = cross(scan.points[size_t(t[1])] - a, scan.points[size_t(t[2])] - a);
    for (int32_t corner : t)
      sums[size_t(corner)] = sums[size_t(corner)] + area;
  }
  return sums;
}

void orient(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces, Surface& surface) {
  Orientation orientation(scan, neighbours, surface);
  if (!scan.triangles.empty())
    orientation.byFaces(faces);
  orientation.byNeighbours();
}
