#include "batches.h"

namespace {

// Point v and its neighbours, seen from it.
void gather(const std::vector<Point4>& points, const Neighbours& neighbours, std::size_t v, Point4* to) {
  Point4 origin = points[v];
  *to++ = {{1, 0, 0, 0}};
  origin[0] -= 1;
  for (std::size_t i = neighbours.first[v]; i < neighbours.first[v + 1]; ++i) {
    const Point4& point = points[size_t(neighbours.index[i])];
    *to++ = {{point[0] - origin[0], point[1] - origin[1], point[2] - origin[2], point[3] - origin[3]}};
  }
}

} // namespace

Batches makeBatches(const Neighbours& neighbours, std::size_t least) {
  // So many points in their order, then by their number of neighbours: few enough for the cache, enough to fill
  // batches.
  constexpr std::size_t together = 16384;
  const std::size_t count = neighbours.first.size() - 1;
  Batches batches;
  batches.order.reserve(count);
  std::vector<int32_t> ofSize[mostNeighbours + 1];
  for (std::size_t begin = 0; begin < count; begin += together) {
    for (std::size_t v = begin; v < std::min(count, begin + together); ++v)
      ofSize[neighbours.count(v)].push_back(int32_t(v));
    for (std::size_t size = 0; size <= mostNeighbours; ++size) {
      std::vector<int32_t>& points = ofSize[size];
      for (std::size_t i = 0; i < points.size() && size >= least; i += mostInBatch)
        batches.list.push_back({batches.order.size() + i, std::min(mostInBatch, points.size() - i), int32_t(size) + 1});
      if (size >= least)
        batches.order.insert(batches.order.end(), points.begin(), points.end());
      points.clear();
    }
  }
  return batches;
}

std::vector<Point4> homogeneous(const Scan& scan) {
  std::vector<Point4> points;
  points.reserve(scan.points.size());
  for (const Vec3& p : scan.points)
    points.push_back({{1, p[0], p[1], p[2]}});
  return points;
}

// Neighbours lie all over the scan: what the next points need is asked for while this one is gathered.
void gatherBatch(const std::vector<Point4>& points, const Neighbours& neighbours, const Batches& batches,
                 const Batch& batch, Point4* to) {
  const std::vector<size_t>& first = neighbours.first;
  const int32_t* const index = neighbours.index.data();
  const auto ahead = [&](size_t k) { return size_t(batches.order[std::min(k, batches.order.size() - 1)]); };
  for (size_t k = batch.first; k < batch.first + batch.count; ++k, to += batch.height) {
    __builtin_prefetch(&first[ahead(k + 16)]);
    const int32_t* const list = index + first[ahead(k + 8)];
    __builtin_prefetch(list);
    __builtin_prefetch(list + 16);
    const size_t next = ahead(k + 2);
    for (size_t i = first[next]; i < first[next + 1]; ++i)
      __builtin_prefetch(&points[size_t(index[i])]);
    gather(points, neighbours, ahead(k), to);
  }
}
