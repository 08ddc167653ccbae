// Compiled once for each kind of processor, under another name, see CMakeLists.txt.
#include "frames.h"
#include "orient.h"
#include <Eigen/Dense>

Surface SURFACE_BY_EIGEN(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces,
                         bool closedForm);

namespace {

constexpr int most = int(mostNeighbours) + 1;
using Points = Eigen::Matrix<double, Eigen::Dynamic, 3, Eigen::RowMajor, most, 3>;
using Tall = Eigen::Matrix<double, Eigen::Dynamic, 6, Eigen::RowMajor, most, 6>;
using Matrix6 = Eigen::Matrix<double, 6, 6>;
using Vector6 = Eigen::Matrix<double, 6, 1>;

Vec3 fromEigen(const Eigen::Vector3d& v) {
  return {v[0], v[1], v[2]};
}

// The point and its neighbours, seen from it.
Points gather(const Scan& scan, const Neighbours& neighbours, size_t v) {
  const auto point = [&](size_t i) { return Eigen::Map<const Eigen::RowVector3d>(scan.points[i].data()); };
  Points points(Eigen::Index(neighbours.count(v)) + 1, 3);
  points.row(0).setZero();
  for (Eigen::Index i = 1; i < points.rows(); ++i)
    points.row(i) = point(size_t(neighbours.index[neighbours.first[v] + size_t(i) - 1])) - point(v);
  return points;
}

Solver solve(const Tall& tall, const Eigen::Matrix<double, Eigen::Dynamic, 1, 0, most, 1>& heights, Vector6& quadric) {
  const Matrix6 matrix = tall.transpose().lazyProduct(tall);
  const Vector6 right = tall.transpose().lazyProduct(heights);
  const Eigen::LLT<Matrix6> llt(matrix);
  if (llt.info() == Eigen::Success && (llt.matrixLLT().diagonal().array().square() > leastPivot).all()) {
    quadric = llt.solve(right);
    return Solver::Cholesky;
  }
  const Eigen::HouseholderQR<Tall> qr(tall);
  if (!(qr.matrixQR().diagonal().array().square() >= leastSquare).all())
    return Solver::None;
  quadric = qr.solve(heights);
  return Solver::QR;
}

void fit(const Points& points, const Eigen::Matrix3d& axes, SurfacePoint& result) {
  result.normal = fromEigen(axes.col(2));
  if (size_t(points.rows()) < leastPoints)
    return;
  const Points local = points.lazyProduct(axes / result.radius);
  Tall tall(points.rows(), 6);
  tall.col(0).setOnes();
  tall.col(1) = local.col(0);
  tall.col(2) = local.col(1);
  tall.col(3) = local.col(0).cwiseProduct(local.col(0));
  tall.col(4) = local.col(0).cwiseProduct(local.col(1));
  tall.col(5) = local.col(1).cwiseProduct(local.col(1));
  Vector6 found;
  result.solver = solve(tall, local.col(2), found);
  if (result.solver == Solver::None)
    return;
  const Vec3 normal = putQuadric(result, {found[0], found[1], found[2], found[3], found[4], found[5]});
  result.normal = fromEigen(axes * Eigen::Vector3d(normal[0], normal[1], normal[2]));
}

} // namespace

Surface SURFACE_BY_EIGEN(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces,
                         bool closedForm) {
  Surface surface(scan.points.size());
  for (size_t v = 0; v < scan.points.size(); ++v)
    if (neighbours.count(v) >= leastNeighbours) {
      const Points points = gather(scan, neighbours, v);
      const Points centred = points.rowwise() - points.colwise().mean();
      const Eigen::Matrix3d covariance = centred.transpose().lazyProduct(centred);
      Eigen::SelfAdjointEigenSolver<Eigen::Matrix3d> solver;
      if (closedForm)
        solver.computeDirect(covariance);
      else
        solver.compute(covariance);
      const Eigen::Vector3d variances = solver.eigenvalues().reverse() / covariance.trace();
      SurfacePoint& result = surface[v];
      result.radius = std::sqrt(2 * points.squaredNorm() / double(points.rows()));
      result.thickness = variances[2];
      if (hasPlane(fromEigen(variances)))
        fit(points, solver.eigenvectors().rowwise().reverse(), result);
      else if (tellsSide(faces[v], result.radius))
        fit(points, Eigen::Map<const Eigen::Matrix<double, 3, 3, Eigen::RowMajor>>(frameOf(unit(faces[v]))[0].data()),
            result);
    }
  orient(scan, neighbours, faces, surface);
  return surface;
}
