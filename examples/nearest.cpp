// Neighbours by distance, through nanoflann's tree.
#include "neighbours.h"
#include <algorithm>
#include <nanoflann.hpp>
#include <omp.h>

namespace {

// What the tree asks of points.
struct Cloud {
  const std::vector<Vec3>& points;
  std::size_t kdtree_get_point_count() const { return points.size(); }
  double kdtree_get_pt(std::size_t v, std::size_t axis) const { return points[v][axis]; }
  template <class Box> bool kdtree_get_bbox(Box&) const { return false; }
};
using Tree = nanoflann::KDTreeSingleIndexAdaptor<nanoflann::L2_Simple_Adaptor<double, Cloud>, Cloud, 3, std::uint32_t>;

// The lists of all points, each by find(point, list), which may be called on several threads.
template <class Find> Neighbours collect(std::size_t count, Progress& progress, const Find& find) {
  std::vector<std::vector<int32_t>> parts(static_cast<std::size_t>(omp_get_max_threads()));
  std::vector<std::size_t> sizes(count);
  Neighbours all;
  all.first.assign(count + 1, 0);
  // Each thread a run of points, so that its list is a part of the whole.
#pragma omp parallel
  {
    const auto threads = size_t(omp_get_num_threads()), thread = size_t(omp_get_thread_num());
    const std::size_t begin = count * thread / threads, end = count * (thread + 1) / threads;
    std::vector<int32_t>& part = parts[thread];
    std::vector<int32_t> list;
    for (std::size_t v = begin; v < end; ++v) {
      find(v, list);
      part.insert(part.end(), list.begin(), list.end());
      all.first[v + 1] = list.size();
      if (thread == 0 && v % 256 == 0)
        progress.at(v - begin, end - begin);
    }
  }
  for (std::size_t v = 0; v < count; ++v)
    all.first[v + 1] += all.first[v];
  all.index.reserve(all.first[count]);
  for (const std::vector<int32_t>& part : parts)
    all.index.insert(all.index.end(), part.begin(), part.end());
  return all;
}

} // namespace

Neighbours nearestPoints(const Scan& scan, std::size_t count, Progress& progress) {
  const Cloud cloud{scan.points};
  const Tree tree(3, cloud);
  const std::size_t wanted = std::min(count + 1, scan.points.size()); // the point itself is the nearest
  return collect(scan.points.size(), progress, [&](std::size_t v, std::vector<int32_t>& list) {
    std::uint32_t found[mostNeighbours + 1];
    double squares[mostNeighbours + 1];
    const std::size_t size = tree.knnSearch(scan.points[v].data(), wanted, found, squares);
    list.clear();
    for (std::size_t i = 0; i < size; ++i)
      if (found[i] != v)
        list.push_back(int32_t(found[i]));
  });
}

Neighbours pointsWithin(const Scan& scan, double radius, Progress& progress) {
  const Cloud cloud{scan.points};
  const Tree tree(3, cloud);
  return collect(scan.points.size(), progress, [&](std::size_t v, std::vector<int32_t>& list) {
    static thread_local std::vector<std::pair<std::uint32_t, double>> found;
    tree.radiusSearch(scan.points[v].data(), radius * radius, found, nanoflann::SearchParams());
    list.clear();
    found.erase(std::remove_if(found.begin(), found.end(), [&](const auto& pair) { return pair.first == v; }),
                found.end());
    const std::size_t taken = std::min(found.size(), mostNeighbours);
    for (std::size_t i = 0; i < taken; ++i)
      list.push_back(int32_t(found[i * found.size() / taken].first));
  });
}
