// Compiled once for each kind of processor. The second time Eigen itself has another name, see CMakeLists.txt: else the
// linker would take one of two functions of the same name for both.
#include "fit.h"
#include <Eigen/Dense>

#ifndef FIT_BY_EIGEN
#  define FIT_BY_EIGEN fitByEigen
#endif

void FIT_BY_EIGEN(const Problem& problem, Fits& fits) {
  using Tall = Eigen::Matrix<double, Eigen::Dynamic, 6, Eigen::RowMajor, 65, 6>;
  using Heights = Eigen::Matrix<double, Eigen::Dynamic, 1, 0, 65, 1>;
  using Matrix6 = Eigen::Matrix<double, 6, 6>;
  using Vector6 = Eigen::Matrix<double, 6, 1>;
  using Points = Eigen::Matrix<double, Eigen::Dynamic, 3, Eigen::RowMajor>;
  using Frame = Eigen::Matrix<double, 3, 3, Eigen::RowMajor>;
  const Matrix3* frames = problem.frames.data();
  Quadric* quadrics = fits.quadrics.data();
  Solver* solvers = fits.solvers.data();
  for (const Problem::Group& group : problem.groups) {
    const auto h = Eigen::Index(group.height);
    const Vec3* points = problem.points.data() + group.offset;
    for (size_t k = group.first; k < group.first + group.count; ++k, points += h) {
      const Eigen::Matrix<double, Eigen::Dynamic, 3, Eigen::RowMajor, 65, 3> local =
          Eigen::Map<const Points>(points[0].data(), h, 3)
              .lazyProduct(Eigen::Map<const Frame>(frames[k][0].data()).transpose());
      Tall tall(h, 6);
      for (Eigen::Index i = 0; i < h; ++i)
        quadricRow(local(i, 0), local(i, 1), tall.data() + 6 * i);
      const Heights heights = local.col(2);
      const Matrix6 matrix = tall.transpose().lazyProduct(tall);
      const Vector6 side = tall.transpose().lazyProduct(heights);
      Eigen::Map<Vector6> quadric(quadrics[k].data());
      const Eigen::LLT<Matrix6> llt(matrix);
      if (llt.info() == Eigen::Success && (llt.matrixLLT().diagonal().array().square() > leastPivot).all()) {
        quadric = llt.solve(side);
        solvers[k] = Solver::Cholesky;
        continue;
      }
      const Eigen::HouseholderQR<Tall> qr(tall);
      if ((qr.matrixQR().diagonal().array().square() >= leastSquare).all()) {
        quadric = qr.solve(heights);
        solvers[k] = Solver::QR;
      } else {
        quadric.setZero();
        solvers[k] = Solver::None;
      }
    }
  }
}
