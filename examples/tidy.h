// Putting a scan in order before anything is computed from it.
#ifndef TIDY_H
#define TIDY_H

#include "scan.h"

/// Makes points of the same place one and drops triangles that have lost a corner. Returns for each point of old which
/// one it is now.
std::vector<int32_t> mergeDuplicates(Scan& scan);

/// Where a scan was before it was normalised.
struct Place {
  Vec3 centre;
  double unit; // what is 1 now
};

/// Moves and scales the scan so that its bounding box is centred at the origin with 2 as its longest side.
Place normalise(Scan& scan);

#endif
