// Writing what has been computed, for other programs.
#ifndef SAVE_H
#define SAVE_H

#include "scan.h"
#include "surface.h"
#include <string>

/// Writes a PLY file (binary, the lowest byte first): the points of a scan with their normals and curvatures, in the
/// order of the scan, and its triangles. Point v has the values of place[v] in the surface; curvatures are divided by
/// `unit`. Throws std::runtime_error if it cannot.
void savePly(const std::string& path, const Scan& scan, const Surface& surface, const std::vector<int32_t>& place,
             double unit);

#endif
