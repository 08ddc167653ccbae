#include "neighbours.h"
#include <algorithm>

namespace {

// Where thousands of edges meet, the walk ends early: it would take a time that grows with their square.
constexpr std::size_t mostVisited = 4096;

Neighbours oneRing(const Scan& scan) {
  const std::size_t count = scan.points.size();
  Neighbours all;
  all.first.assign(count + 1, 0);
  for (const Triangle& t : scan.triangles)
    for (int32_t corner : t)
      all.first[size_t(corner) + 1] += 2;
  for (std::size_t v = 0; v < count; ++v)
    all.first[v + 1] += all.first[v];
  all.index.resize(all.first[count]);
  std::vector<std::size_t> end(all.first.begin(), all.first.end() - 1);
  for (const Triangle& t : scan.triangles)
    for (size_t c = 0; c < 3; ++c) {
      all.index[end[size_t(t[c])]++] = t[(c + 1) % 3];
      all.index[end[size_t(t[c])]++] = t[(c + 2) % 3];
    }
  // An edge inside a surface has come twice, from the two triangles beside it.
  Neighbours ring;
  ring.first.reserve(count + 1);
  ring.first.push_back(0);
  for (std::size_t v = 0; v < count; ++v) {
    const auto begin = all.index.begin() + std::ptrdiff_t(all.first[v]),
               last = all.index.begin() + std::ptrdiff_t(end[v]);
    std::sort(begin, last);
    ring.index.insert(ring.index.end(), begin, std::unique(begin, last));
    ring.first.push_back(ring.index.size());
  }
  return ring;
}

} // namespace

Neighbours twoRings(const Scan& scan) {
  const std::size_t count = scan.points.size();
  const Neighbours ring = oneRing(scan);
  Neighbours result;
  result.first.reserve(count + 1);
  result.first.push_back(0);
  std::vector<std::size_t> seenFrom(count, count); // the last vertex from whose list this one was seen
  std::vector<int32_t> found;
  for (std::size_t v = 0; v < count; ++v) {
    found.clear();
    seenFrom[v] = v;
    const auto visit = [&](std::size_t centre) {
      for (std::size_t i = ring.first[centre]; i < ring.first[centre + 1] && found.size() < mostVisited; ++i) {
        const int32_t other = ring.index[i];
        if (seenFrom[size_t(other)] != v) {
          seenFrom[size_t(other)] = v;
          found.push_back(other);
        }
      }
    };
    visit(v);
    for (std::size_t i = 0, inner = found.size(); i < inner && found.size() < mostVisited; ++i)
      visit(size_t(found[i]));
    const std::size_t taken = std::min(found.size(), mostNeighbours);
    for (std::size_t i = 0; i < taken; ++i)
      result.index.push_back(found[i * found.size() / taken]);
    result.first.push_back(result.index.size());
  }
  return result;
}
