// What a scan is the image of: normals and curvatures at its points, from quadrics
// z = f + d x + e y + a x^2 + b x y + c y^2
// through each point and its neighbours, by least squares, in frames by principal components.
#ifndef SURFACE_H
#define SURFACE_H

#include "neighbours.h"
#include "steps.h"
#include <limits>

enum class Solver : char { None, Cholesky, QR };

/// At a point of the scan; a line of the cache. Curvatures are those in the scan as it is, and NaN where there is no
/// quadric.
struct alignas(64) SurfacePoint {
  Vec3 normal{};                                          // of length 1; 0 where nothing tells it
  double mean = std::numeric_limits<double>::quiet_NaN(); // positive where the surface bulges to the side of the
                                                          // normal: 1 / radius on a sphere
  double gaussian = mean;                                 // 1 / radius^2 on a sphere, negative on a saddle
  double thickness = mean;                                // the neighbours' variance across their plane, relative
                                                          // to that in all directions
  double radius = 0;                                      // of the neighbourhood
  Solver solver = Solver::None;
};
using Surface = std::vector<SurfacePoint>;

/// The whole work through the library. `faces` are the sums of the normals of the faces around each point. Times are
/// those of one thread.
Surface surfaceByLibrary(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces,
                         Progress& progress, StepTimes* times);

/// The same with Eigen, one point after the other, its eigenvectors by iteration or by a closed form, which is quicker
/// and less exact.
using EigenWork = Surface (*)(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces,
                              bool closedForm);
/// Compiled for the same processors as the build of the library that has been loaded.
struct EigenBuild {
  const char* processors;
  EigenWork work;
};
EigenBuild eigenLikeLibrary();

/// A frame takes as many neighbours.
constexpr std::size_t leastNeighbours = 2;
/// A quadric takes as many points, the one that it is for among them.
constexpr std::size_t leastPoints = 6;
/// Coordinates are about 1 at most, so limits are absolute. A pivot of the normal equations as small as this has lost
/// most of its digits: the system is taken as not positive definite, and goes to QR.
constexpr double leastPivot = 1e-6;
/// A column of the tall matrix whose rest is shorter than the root of this depends on the others: there is no quadric.
constexpr double leastSquare = 2.220446049250313e-16;

using Quadric = std::array<double, 6>; // f, d, e, a, b, c

/// Puts down what follows from a quadric, and returns its normal in the frame. Lengths are in units of the
/// neighbourhood's radius.
inline Vec3 putQuadric(SurfacePoint& point, const Quadric& quadric) {
  const auto [f, d, e, a, b, c] = quadric;
  const double w = 1 + d * d + e * e, root = 1 / std::sqrt(w), scale = 1 / point.radius;
  point.mean = -((1 + e * e) * a - d * e * b + (1 + d * d) * c) * root * root * root * scale;
  point.gaussian = (4 * a * c - b * b) * (root * root * root * root) * (scale * scale);
  return {-d * root, -e * root, root};
}

#endif
