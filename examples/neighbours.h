// Who is near whom in a scan.
#ifndef NEIGHBOURS_H
#define NEIGHBOURS_H

#include "progress.h"
#include "scan.h"

/// A list of points for each point: that of v is index[first[v]] up to, not including, index[first[v + 1]]. No list has
/// its own point or more than mostNeighbours.
struct Neighbours {
  std::vector<std::size_t> first;
  std::vector<int32_t> index;
  std::size_t count(std::size_t v) const { return first[v + 1] - first[v]; }
};

constexpr std::size_t mostNeighbours = 64;

/// The points within two edges of each. Of more than mostNeighbours an even choice is taken.
Neighbours twoRings(const Scan& scan);

/// The `count` nearest points of each.
Neighbours nearestPoints(const Scan& scan, std::size_t count, Progress& progress);

/// The points within `radius` of each. Of more than mostNeighbours an even choice is taken, over distances.
Neighbours pointsWithin(const Scan& scan, double radius, Progress& progress);

#endif
