// A picture of a mesh: perspective, depth buffer, light, colours for a value of each vertex.
#ifndef PICTURE_H
#define PICTURE_H

#include "mesh.h"
#include <string>

using Matrix4f = std::array<std::array<float, 4>, 4>;
using Point3f = std::array<float, 3>;

struct View {
  double turn = 0, tilt = 0; // degrees: of the model around its y axis, and towards the eye
  int width = 1000, height = 800;
};

/// Moves points through a homogeneous matrix: by zelmAffineTransform3DH_mva_32f, and in a plain loop.
void transformByLibrary(const Matrix4f& matrix, const std::vector<Point3f>& points, std::vector<Point3f>& moved);
void transformByLoop(const Matrix4f& matrix, const std::vector<Point3f>& points, std::vector<Point3f>& moved);

/// The matrix that leads from a mesh (in its box of 2) to the pixels of the picture, filled by the mesh up to a margin.
/// The third coordinate grows towards the eye.
Matrix4f pictureMatrix(const View& view, const std::vector<Point3f>& points);

/// Draws the triangles with the vertices at `moved`, lit by their normals, coloured from blue (-limit) over a light
/// neutral tone (0) to red (limit), grey where the value is NaN, and writes the picture as a PNG file. Throws
/// std::runtime_error if that cannot be written.
void drawPicture(const std::string& path, const View& view, const Mesh& mesh, const std::vector<Point3f>& moved,
                 const std::vector<Vec3>& normals, const std::vector<double>& values, double limit);

#endif
