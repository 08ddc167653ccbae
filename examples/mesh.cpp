// Reads a scan, fits a quadric around every point, and draws the scan with the mean curvature as its colour.
#include "options.h"
#include "orient.h"
#include "read.h"
#include "save.h"
#include "surface.h"
#include "tidy.h"
#include <algorithm>
#include <cstdio>
#include <exception>
#include <malloc.h>
#include <omp.h>

namespace {

constexpr std::size_t nearestWithoutFaces = 20;

Neighbours findNeighbours(const Options& options, const Scan& scan, double unit, Progress& progress) {
  progress.start("neighbours");
  const double start = secondsNow();
  std::string kind;
  Neighbours neighbours;
  if (options.radius > 0) {
    kind = "points within the radius";
    neighbours = pointsWithin(scan, options.radius / unit, progress);
  } else if (options.nearest > 0 || scan.triangles.empty()) {
    kind = "the nearest points";
    neighbours = nearestPoints(scan, options.nearest > 0 ? options.nearest : nearestWithoutFaces, progress);
  } else {
    kind = "two rings of faces";
    neighbours = twoRings(scan);
  }
  progress.clear();
  std::printf("neighbours: %s, %.1f on average, found in %.3f s\n", kind.c_str(),
              double(neighbours.index.size()) / double(scan.points.size()), secondsNow() - start);
  return neighbours;
}

// The largest difference of mean curvatures, times the neighbourhood's radius; and how many points have a curvature in
// one surface alone.
struct Difference {
  double largest = 0;
  std::size_t one = 0;
  Difference(const Surface& a, const Surface& b) {
    for (std::size_t v = 0; v < a.size(); ++v) {
      one += std::isnan(a[v].mean) != std::isnan(b[v].mean);
      const double difference = a[v].radius * std::abs(a[v].mean - b[v].mean);
      largest = std::max(largest, std::isnan(difference) ? 0 : difference);
    }
  }
};

// A result and the least time that it took. More runs than one only while they take little time.
template <class Work> double leastTime(const Work& work) {
  double least = 1e300;
  for (double start = secondsNow(), begin = start, end; least == 1e300 || end - start < 0.03; begin = end) {
    work();
    end = secondsNow();
    least = std::min(least, end - begin);
  }
  return least;
}

// The surface, and what is to be told of the work: its speed on one and on all threads, beside Eigen, and its steps.
Surface findSurface(const Scan& scan, const Neighbours& neighbours, Progress& progress) {
  const std::vector<Vec3> faces = faceNormals(scan);
  const int threads = omp_get_max_threads();
  const std::size_t count = scan.points.size();
  Surface surface, single, eigen, closed;
  StepTimes steps;
  const double allTime = leastTime([&] { surface = surfaceByLibrary(scan, neighbours, faces, progress, nullptr); });
  omp_set_num_threads(1);
  double oneTime = 1e300;
  leastTime([&] {
    StepTimes now;
    const double start = secondsNow();
    single = surfaceByLibrary(scan, neighbours, faces, progress, &now);
    if (const double time = secondsNow() - start; time < oneTime) {
      oneTime = time;
      steps = now;
    }
  });
  omp_set_num_threads(threads);
  progress.start("the same with Eigen");
  const EigenBuild build = eigenLikeLibrary();
  const double eigenTime = leastTime([&] { eigen = build.work(scan, neighbours, faces, false); });
  const double closedTime = leastTime([&] { closed = build.work(scan, neighbours, faces, true); });
  progress.clear();

  const auto solved = [&](Solver solver) {
    return std::size_t(std::count_if(surface.begin(), surface.end(),
                                     [&](const SurfacePoint& point) { return point.solver == solver; }));
  };
  const std::size_t cholesky = solved(Solver::Cholesky), qr = solved(Solver::QR);
  std::printf("fits: %zu quadrics, %zu by Cholesky, %zu by QR; %zu points without\n", cholesky + qr, cholesky, qr,
              count - cholesky - qr);
  std::printf("speed: %.0f points a second from neighbours to curvatures, %.0f with %d threads; %.0f with Eigen one at "
              "a time (%s): %.2f and %.2f times as many\n",
              double(count) / oneTime, double(count) / allTime, threads, double(count) / eigenTime, build.processors,
              eigenTime / oneTime, eigenTime / allTime);
  std::printf("       %.0f with Eigen and its closed form for eigenvectors: %.2f and %.2f times as many\n",
              double(count) / closedTime, closedTime / oneTime, closedTime / allTime);
  std::printf("steps:");
  for (std::size_t i = 0; i < stepNames.size(); ++i)
    std::printf("%s %s %.0f %%", i > 0 ? "," : "", stepNames[i], 100 * steps.seconds[i] / oneTime);
  const Difference toEigen(surface, eigen), toClosed(surface, closed), toSingle(surface, single);
  std::printf("\ndifferences: curvature times radius %.1e (library and Eigen), %.1e (library and closed form), %.1e (1 "
              "and %d threads); %zu points have one of the first two alone\n",
              toEigen.largest, toClosed.largest, toSingle.largest, threads, toEigen.one);
  return surface;
}

// The size of curvature that gets the darkest colours: few have more. What is as small as rounding leaves of a plane
// gets none.
double colourLimit(const Surface& surface, double unit) {
  std::vector<double> sorted, sizes;
  for (const SurfacePoint& point : surface)
    if (!std::isnan(point.mean)) {
      sorted.push_back(point.mean / unit);
      sizes.push_back(std::abs(point.mean / unit));
    }
  const double least = 1e-6 / unit;
  if (sorted.empty())
    return least;
  const auto at = [](std::vector<double>& list, double share) {
    const auto place = list.begin() + std::ptrdiff_t(share * double(list.size() - 1));
    std::nth_element(list.begin(), place, list.end());
    return *place;
  };
  const double first = at(sorted, 0), low = at(sorted, 0.05), middle = at(sorted, 0.5), high = at(sorted, 0.95);
  std::printf("mean curvature: %.6g least, %.6g at 5 %%, %.6g median, %.6g at 95 %%, %.6g greatest\n", first, low,
              middle, high, at(sorted, 1));
  return std::max(least, at(sizes, 0.94));
}

void draw(const Options& options, const Scan& scan, const Neighbours& neighbours, const Surface& surface, double unit,
          Progress& progress) {
  const double limit = colourLimit(surface, unit);
  progress.start("drawing");
  std::vector<Vec3> normals;
  std::vector<double> values;
  for (const SurfacePoint& point : surface) {
    normals.push_back(point.normal);
    values.push_back(point.mean / unit / limit);
  }
  Shape shape;
  if (scan.triangles.empty()) {
    std::vector<double> radius; // of discs that are large enough to leave no gaps between neighbours
    for (std::size_t v = 0; v < scan.points.size(); ++v)
      radius.push_back(std::max(0.002, 1.8 * surface[v].radius / std::sqrt(double(neighbours.count(v)) + 1)));
    shape = discs(scan.points, normals, radius, values);
  } else {
    shape = {scan.triangles, {}, std::move(normals), std::move(values)};
    for (const Vec3& p : scan.points)
      shape.points.push_back({float(p[0]), float(p[1]), float(p[2])});
  }
  const Matrix4f matrix = pictureMatrix(options.view, shape.points);
  std::vector<Point3f> moved, movedByLoop;
  const double library = leastTime([&] { transformByLibrary(matrix, shape.points, moved); });
  const double loop = leastTime([&] { transformByLoop(matrix, shape.points, movedByLoop); });
  shape.points = std::move(moved);
  writePng(options.picture, options.view, render(options.view, shape));
  progress.clear();
  std::printf("transform: %zu points in %.3f ms through the library, %.3f ms in a plain loop; results %s\n",
              shape.points.size(), 1e3 * library, 1e3 * loop, shape.points == movedByLoop ? "equal" : "DIFFER");
  std::printf("picture: %s, %d by %d, curvature from %.3g (blue) to %.3g (red)\n", options.picture.c_str(),
              options.view.width, options.view.height, -limit, limit);
}

void run(const Options& options) {
  const double start = secondsNow();
  Progress progress(options.progress);
  Model model = readModel(options.model, progress);
  const Scan original = options.points.empty() ? Scan{} : model.scan;
  Scan& scan = model.scan;
  const std::size_t inFile = scan.points.size();
  const std::vector<int32_t> places = mergeDuplicates(scan);
  const double unit = normalise(scan).unit;
  progress.clear();
  std::printf("%s: %zu points (%zu of them duplicates), %zu faces, %zu triangles, read in %.3f s\n",
              options.model.c_str(), inFile, inFile - scan.points.size(), model.faces, scan.triangles.size(),
              secondsNow() - start);
  const Neighbours neighbours = findNeighbours(options, scan, unit, progress);
  const Surface surface = findSurface(scan, neighbours, progress);
  draw(options, scan, neighbours, surface, unit, progress);
  if (!options.points.empty()) {
    savePly(options.points, original, surface, places, unit);
    std::printf("points: %s, with normals and curvatures\n", options.points.c_str());
  }
  std::printf("all: %.3f s\n", secondsNow() - start);
}

} // namespace

int main(int argc, char** argv) {
  // What is freed stays in the process, for the next step: pages that come anew from the system cost more than many a
  // step's work on them.
  mallopt(M_MMAP_MAX, 0);
  mallopt(M_TRIM_THRESHOLD, 1 << 30);
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
