// Who is near whom on a mesh.
#ifndef NEIGHBOURS_H
#define NEIGHBOURS_H

#include "mesh.h"
#include <cstddef>

/// A list of vertices for each vertex: that of v is index[first[v]] up to, not including, index[first[v + 1]].
struct Neighbours {
  std::vector<std::size_t> first;
  std::vector<int32_t> index;
};

/// The vertices within two edges of each vertex, itself left out. Of more than 64 an even choice of 64 is taken.
Neighbours twoRings(const Mesh& mesh);

#endif
