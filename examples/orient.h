// The side of a surface that its normals point to.
#ifndef ORIENT_H
#define ORIENT_H

#include "surface.h"

/// The sum of the normals of the faces around each point, by area.
std::vector<Vec3> faceNormals(const Scan& scan);
/// Is that of a point more than what rounding leaves of faces back to back?
inline bool tellsSide(const Vec3& faces, double radius) {
  return length(faces) > 1e-6 * (radius * radius);
}

/// Turns normals round where they are the wrong way, with the signs of the mean curvatures. Faces decide where they
/// can. From there the decision goes from neighbour to neighbour, first where normals differ least. A piece of a scan
/// that no face decides is turned as a whole, so that its normals point away from its middle. Normals of length 0 stay.
void orient(const Scan& scan, const Neighbours& neighbours, const std::vector<Vec3>& faces, Surface& surface);

#endif
