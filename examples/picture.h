// The picture of a scan: perspective, depth, light, colours for a value of each point.
#ifndef PICTURE_H
#define PICTURE_H

#include "scan.h"
#include <string>

using Matrix4f = std::array<std::array<float, 4>, 4>;
using Point3f = std::array<float, 3>;

struct View {
  double turn = 0, tilt = 0; // degrees: of the model around its y axis, and towards the eye
  int width = 1000, height = 800;
};

/// Distance of the eye from the scan's centre.
constexpr double eyeDistance = 5.5;

/// Rows: to the right, up, and to the eye.
std::array<Vec3, 3> viewAxes(const View& view);

/// Moves points through a homogeneous matrix: by zelmAffineTransform3DH_mva_32f, and in a plain loop.
void transformByLibrary(const Matrix4f& matrix, const std::vector<Point3f>& points, std::vector<Point3f>& moved);
void transformByLoop(const Matrix4f& matrix, const std::vector<Point3f>& points, std::vector<Point3f>& moved);

/// The matrix that leads from a scan (in its box of 2) to the pixels of the picture, filled by the scan up to a margin.
/// The third coordinate grows towards the eye.
Matrix4f pictureMatrix(const View& view, const std::vector<Point3f>& points);

/// What is drawn: triangles with normals, and values from -1 to 1, at their corners.
struct Shape {
  std::vector<Triangle> triangles;
  std::vector<Point3f> points;
  std::vector<Vec3> normals;
  std::vector<double> values;
};

/// A disc for each point, across its normal.
Shape discs(const std::vector<Vec3>& points, const std::vector<Vec3>& normals, const std::vector<double>& radius,
            const std::vector<double>& values);

/// The pixels of triangles whose points have been moved into the picture, row after row, red, green and blue, lit and
/// coloured from blue (-1) over a light neutral tone (0) to red (1), grey where the value is NaN.
std::vector<std::uint8_t> render(const View& view, const Shape& shape);

/// Writes a PNG file. Throws std::runtime_error if it cannot.
void writePng(const std::string& path, const View& view, const std::vector<std::uint8_t>& pixels);

#endif
