#include "surface.h"
#include "fit.h"
#include "orient.h"

Surface surfaceByLibrary(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces,
                         Progress& progress, StepTimes* times) {
  if (times)
    times->start();
  progress.start("quadrics");
  const std::vector<Point4> points = homogeneous(scan);
  const Batches batches = makeBatches(neighbours, leastNeighbours);
  Surface surface(scan.points.size());
  if (times)
    times->done(Step::Gathering);
  fitQuadrics(points, neighbours, batches, faces, surface, progress, times);
  progress.start("orientation");
  orient(scan, neighbours, faces, surface);
  if (times)
    times->done(Step::Orientation);
  return surface;
}
