// Reading OBJ files.
#ifndef OBJ_H
#define OBJ_H

#include "mesh.h"
#include <cstddef>
#include <string>

struct ObjModel {
  Mesh mesh;             // polygons are cut into triangles around their first corner
  std::size_t faces = 0; // polygons in the file
};

/// Reads the vertices and faces of an OBJ file. Throws std::runtime_error with "file: what" or "file:line: what" if the
/// file cannot be read, a line is malformed, a number is not finite, an index names no vertex, or there is nothing to
/// do.
ObjModel readObj(const std::string& path);

/// Makes vertices of the same place one and drops triangles that have lost a corner; returns how many vertices went.
std::size_t mergeDuplicates(Mesh& mesh);

/// Moves and scales the mesh so that its bounding box is centred at the origin with 2 as its longest side; returns the
/// number of the file's units that are 1 now.
double normalise(Mesh& mesh);

#endif
