#include "fit.h"
#include "check.h"
#include <algorithm>
#include <exception>
#include <limits>
#include <numeric>

namespace {

constexpr int32_t side = 6;
constexpr int32_t matrixBytes = side * side * 8, rowBytes = side * 8, vectorBytes = side * 8;
using Matrix6 = std::array<double, 36>;

// Vertices whose tall matrices are in hand at a time: they stay in the cache between the steps.
constexpr size_t blockSize = 128;

// The points of a group, or of a part of one, in their frames, as rows of tall matrices and heights above the tangent
// plane.
void tallSystems(const Problem& problem, const Problem::Group& group, std::vector<Vec3>& local,
                 std::vector<double>& rows, std::vector<double>& heights) {
  const auto h = int32_t(group.height);
  const size_t points = group.count * group.height;
  local.resize(std::max(local.size(), points));
  rows.resize(std::max(rows.size(), points * side));
  heights.resize(std::max(heights.size(), points));
  // (points as rows) times transpose(frame)
  check(zelmMul_mata_64f(&problem.points[group.offset][0], h * 24, 24, 8, 3, h, &problem.frames[group.first][0][0], 72,
                         24, 8, 3, 3, &local[0][0], h * 24, 24, 8, int32_t(group.count)),
        "zelmMul_mata_64f");
  for (size_t i = 0; i < points; ++i) {
    quadricRow(local[i][0], local[i][1], &rows[i * side]);
    heights[i] = local[i][2];
  }
}

// Blocks are independent of each other, so they are what the threads share here, in one region for all.
void normalEquations(const Problem& problem, std::vector<Matrix6>& matrices, std::vector<Quadric>& sides) {
  std::vector<Problem::Group> blocks;
  for (const Problem::Group& group : problem.groups)
    for (size_t done = 0; done < group.count; done += blockSize)
      blocks.push_back({group.first + done, std::min(blockSize, group.count - done), group.height,
                        group.offset + done * group.height});
  std::exception_ptr error;
#pragma omp parallel
  {
    std::vector<Vec3> local;
    std::vector<double> rows, heights;
#pragma omp for schedule(dynamic)
    for (size_t i = 0; i < blocks.size(); ++i)
      try {
        const Problem::Group& block = blocks[i];
        const auto h = int32_t(block.height), count = int32_t(block.count);
        tallSystems(problem, block, local, rows, heights);
        check(zelmMul_tama_64f(rows.data(), h * rowBytes, rowBytes, 8, side, h, rows.data(), h * rowBytes, rowBytes, 8,
                               side, h, matrices[block.first].data(), matrixBytes, rowBytes, 8, count),
              "zelmMul_tama_64f");
        check(zelmMul_tava_64f(rows.data(), h * rowBytes, rowBytes, 8, side, h, heights.data(), h * 8, 8, h,
                               sides[block.first].data(), vectorBytes, 8, count),
              "zelmMul_tava_64f");
      } catch (...) {
#pragma omp critical
        error = std::current_exception();
      }
  }
  if (error)
    std::rethrow_exception(error);
}

ZelStatus decompose(const Matrix6* matrices, Matrix6* factors, size_t count) {
  return zelmCholeskyDecomp_ma_64f(matrices->data(), matrixBytes, rowBytes, 8, factors->data(), matrixBytes, rowBytes,
                                   8, side, int32_t(count));
}

// Factorises all matrices in one batch, into factors that are zero, and returns which are not positive definite.
std::vector<size_t> choleskyFactors(const std::vector<Matrix6>& matrices, std::vector<Matrix6>& factors) {
  const size_t count = matrices.size();
  std::vector<size_t> failed;
  // A call stops at the first matrix that fails, on several threads each share at its first, and does not tell which
  // that is. But the last diagonal element of a finished factor is a reciprocal: one that is still zero is not
  // finished.
  const auto finished = [&](size_t k) { return factors[k].back() != 0; };
  if (decompose(matrices.data(), factors.data(), count) != zelStatusOk) {
    // The rest goes on in batches that stay on one thread: what fails is the first that is not finished behind the
    // call.
    constexpr size_t batch = 2000 / (side * side);
    for (size_t first = 0; first < count;) {
      if (finished(first)) {
        ++first;
        continue;
      }
      const size_t size = std::min(batch, count - first);
      if (decompose(&matrices[first], &factors[first], size) == zelStatusOk) {
        first += size;
        continue;
      }
      while (finished(first))
        ++first;
      failed.push_back(first++);
    }
  }
  for (size_t k = 0; k < count; ++k) {
    bool poor = false;
    for (size_t i = 0; i < side; ++i) {
      const double reciprocal = factors[k][i * (side + 1)]; // 1 / root of the pivot
      poor |= !(reciprocal * reciprocal * leastPivot < 1);
    }
    if (poor && finished(k))
      failed.push_back(k);
  }
  return failed;
}

bool fitByQR(const Problem& problem, size_t place, Quadric& quadric) {
  const auto group = std::find_if(problem.groups.begin(), problem.groups.end(),
                                  [&](const Problem::Group& g) { return place < g.first + g.count; });
  const auto h = int32_t(group->height);
  std::vector<Vec3> local;
  std::vector<double> rows, heights, buffer(group->height);
  tallSystems(problem, {place, 1, group->height, group->offset + (place - group->first) * group->height}, local, rows,
              heights);
  if (zelmQRDecomp_m_64f(rows.data(), rowBytes, 8, buffer.data(), rows.data(), rowBytes, 8, side, h) != zelStatusOk)
    return false;
  check(zelmQRBackSubst_mv_64f(rows.data(), rowBytes, 8, buffer.data(), heights.data(), 8, quadric.data(), 8, side, h),
        "zelmQRBackSubst_mv_64f");
  return true;
}

} // namespace

Problem makeProblem(const Mesh& mesh, const std::vector<Matrix3>& frames, const Neighbours& neighbours) {
  const auto size = [&](int32_t v) { return neighbours.first[size_t(v) + 1] - neighbours.first[size_t(v)]; };
  Problem problem;
  for (size_t v = 0; v < mesh.points.size(); ++v)
    if (size(int32_t(v)) + 1 >= side && frames[v] != Matrix3{})
      problem.vertex.push_back(int32_t(v));
  std::stable_sort(problem.vertex.begin(), problem.vertex.end(),
                   [&](int32_t a, int32_t b) { return size(a) < size(b); });
  for (int32_t vertex : problem.vertex) {
    const auto v = size_t(vertex);
    if (problem.groups.empty() || problem.groups.back().height != size(vertex) + 1)
      problem.groups.push_back({problem.radius.size(), 0, size(vertex) + 1, problem.points.size()});
    ++problem.groups.back().count;
    const size_t first = problem.points.size();
    double radius = 0;
    problem.points.push_back({});
    for (size_t i = neighbours.first[v]; i < neighbours.first[v + 1]; ++i) {
      problem.points.push_back(mesh.points[size_t(neighbours.index[i])] - mesh.points[v]);
      radius = std::max(radius, length(problem.points.back()));
    }
    for (size_t i = first; i < problem.points.size(); ++i)
      problem.points[i] = (1 / radius) * problem.points[i];
    problem.radius.push_back(radius);
    problem.frames.push_back(frames[v]);
  }
  return problem;
}

void fitByLibrary(const Problem& problem, Fits& fits) {
  const size_t count = problem.vertex.size();
  if (count == 0)
    return;
  std::vector<Matrix6> matrices(count), factors(count);
  normalEquations(problem, matrices, fits.quadrics);
  const std::vector<size_t> failed = choleskyFactors(matrices, factors);
  for (size_t place : failed) // what a failed decomposition leaves must not be passed on
    factors[place] = Matrix6{};
  check(zelmCholeskyBackSubst_mava_64f(factors[0].data(), matrixBytes, rowBytes, 8, fits.quadrics[0].data(),
                                       vectorBytes, 8, fits.quadrics[0].data(), vectorBytes, 8, side, int32_t(count)),
        "zelmCholeskyBackSubst_mava_64f");
  std::fill(fits.solvers.begin(), fits.solvers.end(), Solver::Cholesky);
  for (size_t place : failed)
    if (fitByQR(problem, place, fits.quadrics[place]))
      fits.solvers[place] = Solver::QR;
    else {
      fits.solvers[place] = Solver::None;
      fits.quadrics[place] = {};
    }
}

Surface makeSurface(const Problem& problem, const Fits& fits, const std::vector<Matrix3>& frames) {
  const size_t count = problem.vertex.size();
  Surface surface;
  surface.curvature.assign(frames.size(), std::numeric_limits<double>::quiet_NaN());
  for (const Matrix3& frame : frames)
    surface.normals.push_back(frame[2]);
  if (count == 0)
    return surface;
  std::vector<Vec3> local(count), normals(count);
  for (size_t k = 0; k < count; ++k) {
    const auto [a, b, c, d, e, f] = fits.quadrics[k];
    const double w = 1 + d * d + e * e;
    local[k] = (1 / std::sqrt(w)) * Vec3{-d, -e, 1};
    if (fits.solvers[k] != Solver::None)
      surface.curvature[size_t(problem.vertex[k])] =
          -((1 + e * e) * a - d * e * b + (1 + d * d) * c) / (w * std::sqrt(w) * problem.radius[k]);
  }
  // Back into the mesh's axes: transpose(frame) times normal.
  check(zelmMul_tava_64f(&problem.frames[0][0][0], 72, 24, 8, 3, 3, &local[0][0], 24, 8, 3, &normals[0][0], 24, 8,
                         int32_t(count)),
        "zelmMul_tava_64f");
  for (size_t k = 0; k < count; ++k)
    surface.normals[size_t(problem.vertex[k])] = normals[k];
  return surface;
}
