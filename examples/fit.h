// Quadrics z = a x^2 + b x y + c y^2 + d x + e y + f through the points around each vertex of a mesh, by least squares.
#ifndef FIT_H
#define FIT_H

#include "frames.h"
#include "neighbours.h"

/// What is to be fitted: for each vertex the points around it and itself, seen from it. Vertices with equally many
/// points stand together, so that their matrices are one batch.
struct Problem {
  struct Group {
    size_t first, count; // vertices
    size_t height;       // points of each
    size_t offset;       // of the first point, in all points
  };
  std::vector<Group> groups;
  std::vector<int32_t> vertex; // the mesh's vertex at each place
  std::vector<Matrix3> frames; // of each place
  std::vector<double> radius;  // of each place: the distance of the farthest point
  std::vector<Vec3> points;    // relative to the vertex, in units of its radius, in the mesh's axes
};

/// Vertices with no frame or fewer than 6 points are left out.
Problem makeProblem(const Mesh& mesh, const std::vector<Matrix3>& frames, const Neighbours& neighbours);

enum class Solver : char { None, Cholesky, QR };
using Quadric = std::array<double, 6>;

struct Fits {
  explicit Fits(size_t count) : quadrics(count), solvers(count, Solver::None) {}
  std::vector<Quadric> quadrics; // in the order of the problem; zero if there is none
  std::vector<Solver> solvers;
  size_t solved(Solver solver) const {
    size_t count = 0;
    for (Solver s : solvers)
      count += s == solver;
    return count;
  }
};

/// Coordinates are at most 1, so limits are absolute. A pivot of the normal equations as small as this has lost most of
/// its digits: the system is taken as not positive definite, and goes to QR.
constexpr double leastPivot = 1e-6;
/// A column of the tall matrix whose rest is shorter than the root of this depends on the others: there is no quadric.
constexpr double leastSquare = 2.220446049250313e-16;

/// The row of the tall matrix for a point.
inline void quadricRow(double x, double y, double* row) {
  row[0] = x * x;
  row[1] = x * y;
  row[2] = y * y;
  row[3] = x;
  row[4] = y;
  row[5] = 1;
}

void fitByLibrary(const Problem& problem, Fits& fits);
/// The same fits with Eigen, one vertex after the other: for any x86-64 processor, and for x86-64-v3.
void fitByEigen(const Problem& problem, Fits& fits);
void fitByEigenV3(const Problem& problem, Fits& fits);

/// Normal and mean curvature of the quadrics at the vertices, for every vertex of the mesh. The curvature is that of
/// the mesh as it is, positive where the surface bulges to the side of its normals (a sphere has 1 / radius). Where
/// there is no quadric, the normal is that of the frame, and the curvature is NaN.
struct Surface {
  std::vector<Vec3> normals;
  std::vector<double> curvature;
};
Surface makeSurface(const Problem& problem, const Fits& fits, const std::vector<Matrix3>& frames);

#endif
