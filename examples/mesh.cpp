// Reads a triangle mesh, fits a quadric around every vertex, and draws the mesh with the mean curvature as its colour.
#include "fit.h"
#include "obj.h"
#include "picture.h"
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <omp.h>
#include <stdexcept>

namespace {

struct Options {
  std::string model = MESH_DEFAULT_MODEL, picture = "mesh.png";
  View view{-20, 12};
};

[[noreturn]] void usage(int code) {
  std::fprintf(code ? stderr : stdout,
               "usage: mesh [-o picture.png] [-turn degrees] [-tilt degrees] [model.obj]\n"
               "Fits a quadric around every vertex of a mesh and draws the mesh coloured by its mean curvature.\n"
               "The model is " MESH_DEFAULT_MODEL " if none is given, the picture mesh.png.\n");
  std::exit(code);
}

Options readOptions(int argc, char** argv) {
  Options options;
  bool model = false;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    const auto value = [&] {
      if (++i >= argc)
        usage(2);
      return argv[i];
    };
    const auto degrees = [&] {
      char* end = nullptr;
      const char* text = value();
      const double result = std::strtod(text, &end);
      if (end == text || *end != 0 || !std::isfinite(result))
        usage(2);
      return result;
    };
    if (word == "-h" || word == "--help")
      usage(0);
    else if (word == "-o")
      options.picture = value();
    else if (word == "-turn")
      options.view.turn = degrees();
    else if (word == "-tilt")
      options.view.tilt = degrees();
    else if ((word.size() > 1 && word[0] == '-') || model)
      usage(2);
    else {
      options.model = word;
      model = true;
    }
  }
  return options;
}

double seconds() {
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

// The least time of several runs of two pieces of work, run in turn.
template <class First, class Second> std::array<double, 2> leastTimes(int runs, First first, Second second) {
  std::array<double, 2> least = {1e300, 1e300};
  for (int run = 0; run < runs; ++run) {
    const double start = seconds();
    first();
    const double between = seconds();
    second();
    least = {std::min(least[0], between - start), std::min(least[1], seconds() - between)};
  }
  return least;
}

// The largest difference of coefficients, relative to the largest coefficient of the vertex. Coefficients below 1e-6
// mean a plane but for rounding: the neighbourhood's radius is 1.
double largestDifference(const Fits& a, const Fits& b) {
  double largest = 0;
  for (size_t k = 0; k < a.quadrics.size(); ++k) {
    double size = 1e-6, difference = 0;
    for (size_t i = 0; i < 6; ++i) {
      size = std::max(size, std::abs(b.quadrics[k][i]));
      difference = std::max(difference, std::abs(a.quadrics[k][i] - b.quadrics[k][i]));
    }
    largest = std::max(largest, difference / size);
  }
  return largest;
}

void run(const Options& options) {
  ObjModel model = readObj(options.model);
  const size_t vertices = model.mesh.points.size();
  const size_t merged = mergeDuplicates(model.mesh);
  const double unit = normalise(model.mesh);
  const Mesh& mesh = model.mesh;
  std::printf("%s: %zu vertices (%zu of them duplicates), %zu faces, %zu triangles\n", options.model.c_str(), vertices,
              merged, model.faces, mesh.triangles.size());

  const std::vector<Matrix3> corners = triangleCorners(mesh);
  std::vector<Matrix3> edges, loopEdges;
  const auto edgeTime = leastTimes(
      9, [&] { edgesByLibrary(corners, edges); }, [&] { edgesByLoop(corners, loopEdges); });
  std::printf("edges: %zu matrices of 3 by 3 in %.3f ms through the library, %.3f ms in a plain loop; results %s\n",
              edges.size(), 1e3 * edgeTime[0], 1e3 * edgeTime[1], edges == loopEdges ? "equal" : "DIFFER");

  const std::vector<Matrix3> frames = vertexFrames(mesh, edges);
  const Problem problem = makeProblem(mesh, frames, twoRings(mesh));
  const size_t count = problem.vertex.size();
  Fits fits(count), single(count), eigen(count);
  const bool v3 = __builtin_cpu_supports("avx2") && __builtin_cpu_supports("fma");
  const int threads = omp_get_max_threads();
  const auto fitTime = leastTimes(
      5,
      [&] {
        omp_set_num_threads(1);
        fitByLibrary(problem, single);
        omp_set_num_threads(threads);
      },
      [&] { v3 ? fitByEigenV3(problem, eigen) : fitByEigen(problem, eigen); });
  const auto threadTime = leastTimes(
      5, [&] { fitByLibrary(problem, fits); }, [] {});
  const double points = count ? double(problem.points.size()) / double(count) : 0;
  std::printf("fits: %zu quadrics through %.1f points on average, %zu by Cholesky, %zu by QR; %zu vertices without\n",
              count - fits.solved(Solver::None), points, fits.solved(Solver::Cholesky), fits.solved(Solver::QR),
              mesh.points.size() - count + fits.solved(Solver::None));
  if (count > 0)
    std::printf("      %.0f vertices a second through the library, %.0f with %d threads; %.0f with Eigen one at a time "
                "(%s): %.2f and %.2f times as many\n",
                double(count) / fitTime[0], double(count) / threadTime[0], threads, double(count) / fitTime[1],
                v3 ? "x86-64-v3" : "x86-64", fitTime[1] / fitTime[0], fitTime[1] / threadTime[0]);
  std::printf("      largest difference of coefficients, relative: %.1e (library and Eigen), %.1e (1 and %d threads)\n",
              largestDifference(fits, eigen), largestDifference(fits, single), threads);

  Surface surface = makeSurface(problem, fits, frames);
  std::vector<double> sorted, sizes;
  for (double& value : surface.curvature) {
    value /= unit;
    if (!std::isnan(value)) {
      sorted.push_back(value);
      sizes.push_back(std::abs(value));
    }
  }
  std::sort(sorted.begin(), sorted.end());
  std::sort(sizes.begin(), sizes.end());
  // Numbers as small as what rounding leaves of a plane get no colours.
  double limit = 1e-6 / unit;
  if (!sorted.empty()) {
    const auto at = [](const std::vector<double>& list, double share) {
      return list[size_t(share * double(list.size() - 1))];
    };
    limit = std::max(limit, at(sizes, 0.94));
    std::printf("mean curvature: %.6g least, %.6g at 5 %%, %.6g median, %.6g at 95 %%, %.6g greatest\n", sorted.front(),
                at(sorted, 0.05), at(sorted, 0.5), at(sorted, 0.95), sorted.back());
  }

  std::vector<Point3f> located, moved, loopMoved;
  for (const Vec3& p : mesh.points)
    located.push_back({float(p[0]), float(p[1]), float(p[2])});
  const Matrix4f matrix = pictureMatrix(options.view, located);
  const auto moveTime = leastTimes(
      25, [&] { transformByLibrary(matrix, located, moved); }, [&] { transformByLoop(matrix, located, loopMoved); });
  std::printf("transform: %zu points in %.3f ms through the library, %.3f ms in a plain loop; results %s\n",
              moved.size(), 1e3 * moveTime[0], 1e3 * moveTime[1], moved == loopMoved ? "equal" : "DIFFER");
  drawPicture(options.picture, options.view, mesh, moved, surface.normals, surface.curvature, limit);
  std::printf("picture: %s, %d by %d, curvature from %.3g (blue) to %.3g (red)\n", options.picture.c_str(),
              options.view.width, options.view.height, -limit, limit);
}

} // namespace

int main(int argc, char** argv) {
  const Options options = readOptions(argc, argv);
  try {
    run(options);
  } catch (const std::exception& error) {
    std::fflush(stdout);
    std::fprintf(stderr, "mesh: %s\n", error.what());
    return 1;
  }
  return 0;
}
