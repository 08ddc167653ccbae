// Local frames of a mesh's vertices, from the faces around them.
#ifndef FRAMES_H
#define FRAMES_H

#include "mesh.h"

using Matrix3 = std::array<Vec3, 3>; // rows

/// A matrix for each triangle whose rows are its corners.
std::vector<Matrix3> triangleCorners(const Mesh& mesh);

/// The edges of triangles, b - a, c - b, a - c, as rows of a matrix: through the library, as products with one matrix.
void edgesByLibrary(const std::vector<Matrix3>& corners, std::vector<Matrix3>& edges);
/// The same in a plain loop.
void edgesByLoop(const std::vector<Matrix3>& corners, std::vector<Matrix3>& edges);

/// A frame for each vertex, with two tangents and the normal as its rows. The normal is the mean of those of the faces
/// around, each weighted by its angle there. All zero where there is no face with an area.
std::vector<Matrix3> vertexFrames(const Mesh& mesh, const std::vector<Matrix3>& edges);

#endif
