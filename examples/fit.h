// Frames, and quadrics in them, through points and their neighbours, by the library.
#ifndef FIT_H
#define FIT_H

#include "batches.h"
#include "surface.h"

/// Where the neighbours have no plane, `faces`, the normals of the faces around the point, may tell one. Normals are of
/// either side.
void fitQuadrics(const std::vector<Point4>& points, const Neighbours& neighbours, const Batches& batches,
                 const std::vector<Vec3>& faces, Surface& surface, Progress& progress, StepTimes* times);

#endif
