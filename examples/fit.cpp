#include "fit.h"
#include "check.h"
#include "frames.h"
#include "orient.h"

namespace {

constexpr int32_t side = 6;
// A point's row: its height above the tangent plane, then the terms of the quadric, 1, x, y, x^2, x y, y^2.
enum Column { Height, Terms, X = Terms + 1, Y, Squares, Columns = Squares + 3, Pitch = 8 };
constexpr int32_t rowBytes = Pitch * 8, matrixBytes = Columns * rowBytes;

// What a thread needs for a batch. All of it stays in the cache from one step to the next.
class Fitter {
public:
  Fitter(const std::vector<Point4>& allPoints, const Neighbours& near, const Batches& all,
         const std::vector<Vec3>& around, Surface& result, StepTimes* laps)
      : points(allPoints), neighbours(near), batches(all), faces(around), surface(result), times(laps),
        gathered(mostInBatch * (mostNeighbours + 1)), rows(gathered.size()), toFrame(mostInBatch), half(mostInBatch),
        matrices(mostInBatch), factors(mostInBatch), quadrics(mostInBatch), normals(mostInBatch), turned(mostInBatch),
        solvers(mostInBatch) {}

  void operator()(const Batch& batch) {
    gatherBatch(points, neighbours, batches, batch, gathered.data());
    lap(Step::Gathering);
    frames.find(batch, gathered);
    makeFrames(batch);
    lap(Step::Frames);
    if (size_t(batch.height) < leastPoints)
      return;
    makeRows(batch);
    lap(Step::Rows);
    makeEquations(batch);
    lap(Step::NormalEquations);
    solve(batch);
    lap(Step::Solutions);
    finish(batch);
    lap(Step::Curvatures);
  }

private:
  struct alignas(64) Row {
    double element[Pitch];
    double& operator[](size_t i) { return element[i]; }
    const double& operator[](size_t i) const { return element[i]; }
  };
  using Equations = std::array<Row, Columns>;
  using Factor = std::array<std::array<double, side>, side>;

  void lap(Step step) {
    if (times)
      times->done(step);
  }

  SurfacePoint& pointOf(const Batch& batch, size_t k) { return surface[size_t(batches.order[batch.first + k])]; }

  // Matrices that make (z, 1, x, y) in a frame of (1, x, y, z), by their transpositions, in units of the radius. The
  // normal is that of the frame until there is a better one; 0 if there is no frame.
  void makeFrames(const Batch& batch) {
    for (size_t k = 0; k < batch.count; ++k) {
      SurfacePoint& point = pointOf(batch, k);
      const Vec3 variances = frames.variances(k);
      Matrix3 axes = frames.axes(k);
      point.radius = frames.radius(k);
      point.thickness = variances[2];
      if (!hasPlane(variances)) {
        const Vec3& normal = faces[size_t(batches.order[batch.first + k])];
        axes = tellsSide(normal, point.radius) ? frameOf(unit(normal)) : Matrix3{};
      }
      point.normal = {axes[0][2], axes[1][2], axes[2][2]};
      const double scale = 1 / point.radius;
      toFrame[k][0] = {{0, 1, 0, 0}};
      for (size_t i = 0; i < 3; ++i)
        toFrame[k][i + 1] = {{scale * axes[i][2], 0, scale * axes[i][0], scale * axes[i][1]}};
    }
  }

  void makeRows(const Batch& batch) {
    const auto height = size_t(batch.height);
    for (size_t k = 0; k < batch.count; ++k)
      check(zelmMul_tva_64f(toFrame[k][0].element, 32, 8, 4, 4, gathered[k * height].element, 32, 8, 4,
                            &rows[k * height][Height], rowBytes, 8, batch.height),
            "zelmMul_tva_64f");
    for (size_t i = 0; i < batch.count * height; ++i) {
      Row& row = rows[i];
      row[Squares] = row[X] * row[X];
      row[Squares + 1] = row[X] * row[Y];
      row[Squares + 2] = row[Y] * row[Y];
    }
  }

  // The products of the terms with all columns: the symmetric matrix, and in the first column the right side. Only the
  // blocks on and below the diagonal are made, which is what Cholesky reads. Of them the products of 1, x and y are
  // the frames' sums, brought into the frame from both sides.
  void makeEquations(const Batch& batch) {
    const int32_t stride = batch.height * rowBytes, count = int32_t(batch.count);
    const double *squares = &rows[0][Squares], *all = &rows[0][Height];
    check(zelmMul_tama_64f(squares, stride, rowBytes, 8, 3, batch.height, all, stride, rowBytes, 8, Columns,
                           batch.height, &matrices[0][Squares][0], matrixBytes, rowBytes, 8, count),
          "zelmMul_tama_64f");
    check(zelmMul_tama_64f(toFrame[0][0].element, 128, 32, 8, 4, 4, frames.sums()[0][0].element, 128, 32, 8, 4, 4,
                           half[0][0].element, 128, 32, 8, count),
          "zelmMul_tama_64f");
    check(zelmMul_mama_64f(half[0][0].element, 128, 32, 8, 4, 4, toFrame[0][0].element, 128, 32, 8, 4, 4,
                           &matrices[0][0][0], matrixBytes, rowBytes, 8, count),
          "zelmMul_mama_64f");
  }

  ZelStatus decompose(size_t first, size_t count) {
    return zelmCholeskyDecomp_ma_64f(&matrices[first][Terms][Terms], matrixBytes, rowBytes, 8, &factors[first][0][0],
                                     sizeof(Factor), side * 8, 8, side, int32_t(count));
  }

  // A call stops at the first matrix that fails and does not tell which. But the last diagonal element of a finished
  // factor is a reciprocal: one that is still zero is not finished.
  void factorise(const Batch& batch) {
    for (size_t k = 0; k < batch.count; ++k)
      factors[k][side - 1][side - 1] = 0;
    for (size_t first = 0; first < batch.count;) {
      if (decompose(first, batch.count - first) == zelStatusOk)
        break;
      while (factors[first][side - 1][side - 1] != 0)
        ++first;
      factors[first++] = {}; // what a failed decomposition leaves must not be passed on
    }
    for (size_t k = 0; k < batch.count; ++k) {
      bool good = true;
      for (size_t i = 0; i < side; ++i) {
        const double reciprocal = factors[k][i][i]; // 1 / root of the pivot
        good &= reciprocal != 0 && reciprocal * reciprocal * leastPivot < 1;
      }
      solvers[k] = good ? Solver::Cholesky : Solver::None;
    }
  }

  void solve(const Batch& batch) {
    factorise(batch);
    check(zelmCholeskyBackSubst_mava_64f(&factors[0][0][0], sizeof(Factor), side * 8, 8, &matrices[0][Terms][Height],
                                         matrixBytes, rowBytes, quadrics[0].data(), sizeof(Quadric), 8, side,
                                         int32_t(batch.count)),
          "zelmCholeskyBackSubst_mava_64f");
    for (size_t k = 0; k < batch.count; ++k)
      if (solvers[k] == Solver::None)
        solvers[k] = solveByQR(k, batch.height);
  }

  Solver solveByQR(size_t k, int32_t height) {
    const Row& first = rows[k * size_t(height)];
    std::vector<double> tall(size_t(height) * side), buffer(static_cast<size_t>(height));
    if (zelmQRDecomp_m_64f(&first[Terms], rowBytes, 8, buffer.data(), tall.data(), side * 8, 8, side, height) !=
        zelStatusOk)
      return Solver::None;
    // The last column of a square matrix is not tested there.
    if (const double last = tall.back(); height == side && last * last < leastSquare)
      return Solver::None;
    check(zelmQRBackSubst_mv_64f(tall.data(), side * 8, 8, buffer.data(), &first[Height], rowBytes, quadrics[k].data(),
                                 8, side, height),
          "zelmQRBackSubst_mv_64f");
    return Solver::QR;
  }

  void finish(const Batch& batch) {
    for (size_t k = 0; k < batch.count; ++k) {
      SurfacePoint& point = pointOf(batch, k);
      // A quadric in a frame that is none is left alone.
      point.solver = point.normal == Vec3{} ? Solver::None : solvers[k];
      const Vec3 normal = point.solver == Solver::None ? Vec3{0, 0, 1} : putQuadric(point, quadrics[k]);
      normals[k] = {{point.radius * normal[2], 0, point.radius * normal[0], point.radius * normal[1]}};
    }
    // Back into the scan's axes.
    check(zelmMul_mava_64f(toFrame[0][0].element, sizeof(Matrix4), 32, 8, 4, 4, normals[0].element, 32, 8, 4,
                           turned[0].element, 32, 8, int32_t(batch.count)),
          "zelmMul_mava_64f");
    for (size_t k = 0; k < batch.count; ++k)
      pointOf(batch, k).normal = {turned[k][1], turned[k][2], turned[k][3]};
  }

  const std::vector<Point4>& points;
  const Neighbours& neighbours;
  const Batches& batches;
  const std::vector<Vec3>& faces;
  Surface& surface;
  StepTimes* times;
  std::vector<Point4> gathered;
  PrincipalFrames frames;
  std::vector<Row> rows;
  std::vector<Matrix4> toFrame, half;
  std::vector<Equations> matrices;
  std::vector<Factor> factors;
  std::vector<Quadric> quadrics;
  std::vector<Point4> normals, turned;
  std::vector<Solver> solvers;
};

} // namespace

void fitQuadrics(const std::vector<Point4>& points, const Neighbours& neighbours, const Batches& batches,
                 const std::vector<Vec3>& faces, Surface& surface, Progress& progress, StepTimes* times) {
  forBatches(batches, progress, [&] { return Fitter(points, neighbours, batches, faces, surface, times); });
}
